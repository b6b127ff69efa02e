// The two files as tables of keys; see NightSettings.h.
#include "command/NightSettings.h"

#include "platform/FilePaths.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr auto closedPeriods = std::to_array<NightPeriod>({
    {"day"_L1, "yesterday"_L1, "yyyy-MM-dd"_L1},
    {"week"_L1, "lastweekfromsun"_L1, "'week to' yyyy-MM-dd"_L1},
    {"week-monday"_L1, "lastweekfrommon"_L1, "'week to' yyyy-MM-dd"_L1},
    {"month"_L1, "lastmonth"_L1, "yyyy-MM"_L1},
    {"quarter"_L1, "lastquarter"_L1, "'quarter to' yyyy-MM"_L1},
    {"year"_L1, "lastyear"_L1, "yyyy"_L1},
});

bool takePeriod(const QString& value, NightReport& report)
{
    const auto* const found = std::ranges::find_if(
        closedPeriods, [&](const auto& each) { return value.compare(each.word, Qt::CaseInsensitive) == 0; });
    report.period = found == closedPeriods.end() ? nullptr : found;
    return report.period != nullptr;
}

bool takeFormats(const QString& value, NightReport& report)
{
    for (const QString& word : value.split(u',')) {
        const auto all = fileFormats();
        const auto format = std::ranges::find_if(all, [name = word.trimmed()](const FileFormat& each) {
            return name.compare(each.name, Qt::CaseInsensitive) == 0;
        });
        if (format == all.end())
            return false;
        report.formats.push_back(&*format);
    }
    return true;
}

bool takeComparison(const QString& value, NightReport& report)
{
    const auto with = comparisonNamed(value);
    report.comparedWith = with.value_or(reports::ComparedWith::Nothing);
    return with.has_value();
}

/// The name becomes a part of a path.
bool takeReport(const QString& value, NightReport& report)
{
    report.report = value;
    return !value.isEmpty() && !value.contains(u'/') && !value.contains(u'\\');
}

bool takeFolder(const QString& value, NightReport& report)
{
    report.folder = value;
    return !value.isEmpty();
}

constexpr auto reportRules = std::to_array<SettingRule<NightReport>>({
    {"Report"_L1, "the name of a layout, such as plusales"_L1, takeReport},
    {"Period"_L1, "day, week (from Sunday), week-monday, month, quarter or year"_L1, takePeriod},
    {"Format"_L1, "pdf, csv or xlsx, or several of them with commas between"_L1, takeFormats},
    {"Folder"_L1, "a folder"_L1, takeFolder},
    {"Compare"_L1, "before or year"_L1, takeComparison},
});

bool takeDayBegins(const QString& value, NightSettings& settings)
{
    settings.dayBegins = QTime::fromString(value, u"H:mm"_s);
    return settings.dayBegins.isValid() && settings.dayBegins < QTime(12, 0);
}

bool takeCopies(const QString& value, NightSettings& settings)
{
    settings.copies = value;
    return true;
}

constexpr auto nightRules = std::to_array<SettingRule<NightSettings>>({
    {"DayBegins"_L1, "a time before noon, such as 4:00"_L1, takeDayBegins},
    {"Copies"_L1, "a folder, or nothing for no copies"_L1, takeCopies},
});

/// Names of files on other systems have none of these, and notes no "=".
bool canNameFiles(const QString& section)
{
    return !section.isEmpty() &&
           std::ranges::none_of(section, [](QChar c) { return c < u' ' || u"/\\:*?\"<>|="_s.contains(c); });
}

QString missingKey(const NightReport& report)
{
    if (report.report.isEmpty())
        return u"Report"_s;
    if (report.period == nullptr)
        return u"Period"_s;
    if (report.formats.empty())
        return u"Format"_s;
    return report.folder.isEmpty() ? u"Folder"_s : QString();
}

/// The number of the first line with this section; the file has one.
int firstLineOf(const SettingsFile& file, const QString& section)
{
    const auto isSame = [&section](const SettingLine& line) {
        return line.section.compare(section, Qt::CaseInsensitive) == 0;
    };
    return std::ranges::find_if(file.lines, isSame)->number;
}

/// A section of the file, from its own line on.
class ReportSection
{
public:
    ReportSection(SettingsFile& file, const SettingLine& heading)
        : m_file(file), m_heading(heading), m_mistakes(file.mistakes.size())
    {
        m_report.section = heading.section;
        if (!canNameFiles(heading.section)) {
            file.addMistake(heading.number,
                            u"[%1] cannot be a part of a file's name."_s.arg(heading.section));
        }
        // It would take the place of the first one.
        if (const int first = firstLineOf(file, heading.section); first != heading.number)
            file.addMistake(heading.number, u"[%1] is already in line %2."_s.arg(heading.section).arg(first));
    }
    void take(const SettingLine& line) { takeSetting<NightReport>(m_file, line, reportRules, m_report); }
    /// @return false when there was a mistake.
    [[nodiscard]] bool isSound()
    {
        if (m_file.mistakes.size() > m_mistakes)
            return false;
        const QString missing = missingKey(m_report);
        if (!missing.isEmpty())
            m_file.addMistake(m_heading.number, u"[%1] has no key %2."_s.arg(m_heading.section, missing));
        return missing.isEmpty();
    }
    [[nodiscard]] const NightReport& report() const { return m_report; }

private:
    SettingsFile& m_file;
    SettingLine m_heading;
    qsizetype m_mistakes;
    NightReport m_report;
};

/// A later report of the same section takes the place of an earlier one.
void keep(const NightReport& report, std::vector<NightReport>& reports)
{
    std::erase_if(reports, [&](const NightReport& each) {
        return each.section.compare(report.section, Qt::CaseInsensitive) == 0;
    });
    reports.push_back(report);
}

void readReports(const QString& folder, NightSettings& settings)
{
    SettingsFile file = readSettingsFile(joinPath(folder, u"reports.ini"_s));
    std::optional<ReportSection> section;
    const auto finish = [&] {
        if (section && section->isSound())
            keep(section->report(), settings.reports);
    };
    const QList<SettingLine> lines = file.lines;
    for (const SettingLine& line : lines) {
        if (line.key.isEmpty()) {
            finish();
            section.emplace(file, line);
        } else if (section) {
            section->take(line);
        }
    }
    finish();
    settings.mistakes << file.mistakes;
}

void readNight(const QString& folder, NightSettings& settings)
{
    SettingsFile file = readSettingsFile(joinPath(folder, u"night.ini"_s));
    const QList<SettingLine> lines = file.lines;
    for (const SettingLine& line : lines) {
        if (line.section.compare("Night"_L1, Qt::CaseInsensitive) != 0) {
            file.addMistake(line.number, u"There is no section [%1], only [Night]."_s.arg(line.section));
        } else if (!line.key.isEmpty()) {
            takeSetting<NightSettings>(file, line, nightRules, settings);
        }
    }
    settings.isDayKnown = settings.isDayKnown && file.mistakes.isEmpty();
    settings.mistakes << file.mistakes;
}

} // namespace

std::span<const NightPeriod> nightPeriods()
{
    return closedPeriods;
}

NightSettings readNightSettings(const QString& appPath, const QString& customerPath)
{
    NightSettings settings;
    for (const QString& folder : {appPath, customerPath}) {
        readNight(folder, settings);
        readReports(folder, settings);
    }
    return settings;
}

} // namespace norvane::command
