// Small settings files of this program, whose mistakes are reported with their line.
#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <span>

namespace norvane::command
{

/// "Key=Value" of a settings file, with the section and the number of its line.
struct SettingLine {
    int number = 0;
    QString section; ///< without brackets
    QString key;     ///< empty for the line of the section itself
    QString value;
};

/// The lines of a file in its order. UTF-8; blank lines and those that begin with ";" or "#" are comments.
struct SettingsFile {
    QString name; ///< of the file, without its folder
    QList<SettingLine> lines;
    QStringList mistakes;

    /// "reports.ini, line 4: ...".
    void addMistake(int line, const QString& reason);
};

/// A file that does not exist has no lines.
[[nodiscard]] SettingsFile readSettingsFile(const QString& path);

/// A key and how its value is taken.
template <typename Target>
struct SettingRule {
    QLatin1StringView key;
    QLatin1StringView expected; ///< "pdf, csv or xlsx"
    /// @return false for another value than expected.
    bool (*take)(const QString& value, Target& target);
};

/// Puts the value of a line into @p target; an unknown key or an unexpected value is added to the mistakes.
template <typename Target>
void takeSetting(SettingsFile& file, const SettingLine& line, std::span<const SettingRule<Target>> rules,
                 Target& target)
{
    QStringList known;
    for (const auto& rule : rules) {
        known << rule.key;
        if (line.key.compare(rule.key, Qt::CaseInsensitive) != 0)
            continue;
        if (!rule.take(line.value, target)) {
            file.addMistake(
                line.number,
                QStringLiteral("%1 is \"%2\"; it must be %3.").arg(rule.key, line.value, rule.expected));
        }
        return;
    }
    file.addMistake(line.number, QStringLiteral("Unknown key \"%1\". The keys are: %2.")
                                     .arg(line.key, known.join(QStringLiteral(", "))));
}

} // namespace norvane::command
