// Reader and writer of initialisation files; see ProfileFile.h.
#include "platform/ProfileFile.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/Windows1252.h"

#include <QByteArrayList>

#include <optional>

namespace norvane
{
namespace
{

constexpr char utf8Mark[] = "\xEF\xBB\xBF";

/// The lines of a profile file with their line ends. A file with the mark of UTF-8 is read as such, any other
/// as Windows-1252.
class ProfileLines
{
public:
    ProfileLines() = default;
    explicit ProfileLines(QByteArray bytes)
    {
        m_isUtf8 = bytes.startsWith(utf8Mark);
        if (m_isUtf8)
            bytes.remove(0, static_cast<qsizetype>(sizeof utf8Mark - 1));
        for (qsizetype start = 0; start < bytes.size();) {
            const auto lineFeed = bytes.indexOf('\n', start);
            const auto end = lineFeed < 0 ? bytes.size() : lineFeed + 1;
            m_lines.append(bytes.sliced(start, end - start));
            start = end;
        }
    }

    [[nodiscard]] qsizetype count() const { return m_lines.size(); }

    [[nodiscard]] QString text(qsizetype i) const
    {
        return (m_isUtf8 ? QString::fromUtf8(m_lines[i]) : fromWindows1252(m_lines[i])).trimmed();
    }

    /// Puts a line at @p i. A last line without a line end gets one first.
    void insert(qsizetype i, const QString& text)
    {
        const QByteArray end = lineEnd();
        if (i > 0 && !m_lines[i - 1].endsWith('\n'))
            m_lines[i - 1] += end;
        m_lines.insert(i, encoded(text) + end);
    }

    void replace(qsizetype i, const QString& text)
    {
        const QByteArray& old = m_lines[i];
        const QByteArray end = old.endsWith("\r\n") ? "\r\n" : old.endsWith('\n') ? "\n" : "";
        m_lines[i] = encoded(text) + end;
    }

    [[nodiscard]] QByteArray bytes() const { return (m_isUtf8 ? utf8Mark : "") + m_lines.join(); }

private:
    [[nodiscard]] QByteArray encoded(const QString& text) const
    {
        return m_isUtf8 ? text.toUtf8() : toWindows1252(text);
    }

    [[nodiscard]] QByteArray lineEnd() const
    {
        const bool lineFeedOnly =
            !m_lines.isEmpty() && m_lines[0].endsWith('\n') && !m_lines[0].endsWith("\r\n");
        return lineFeedOnly ? "\n" : "\r\n";
    }

    QByteArrayList m_lines;
    bool m_isUtf8 = false;
};

std::optional<QString> sectionName(const QString& line)
{
    const auto close = line.indexOf(u']');
    if (!line.startsWith(u'[') || close < 0)
        return std::nullopt;
    return line.mid(1, close - 1).trimmed();
}

/// The key of a "key=value" line. @return nothing for comments and all other lines.
std::optional<QString> keyName(const QString& line)
{
    const auto equals = line.indexOf(u'=');
    if (line.startsWith(u';') || equals < 0)
        return std::nullopt;
    return line.left(equals).trimmed();
}

QString unquoted(const QString& value)
{
    const bool quoted = value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') &&
                        value.front() == value.back();
    return quoted ? value.mid(1, value.size() - 2) : value;
}

QString valueOf(const QString& line)
{
    return unquoted(line.mid(line.indexOf(u'=') + 1).trimmed());
}

QString withoutTrailingBlanks(QString text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

bool sameName(const QString& left, const QString& right)
{
    return left.compare(right.trimmed(), Qt::CaseInsensitive) == 0;
}

qsizetype lineOfSection(const ProfileLines& lines, const QString& section)
{
    for (qsizetype i = 0; i < lines.count(); ++i) {
        if (const auto name = sectionName(lines.text(i)); name && sameName(*name, section))
            return i;
    }
    return -1;
}

void setKey(ProfileLines& lines, const QString& section, const QString& key, const QString& line)
{
    auto heading = lineOfSection(lines, section);
    if (heading < 0) {
        heading = lines.count();
        lines.insert(heading, u'[' + section + u']');
    }
    auto lastUsed = heading;
    for (auto i = heading + 1; i < lines.count() && !sectionName(lines.text(i)); ++i) {
        const auto text = lines.text(i);
        if (const auto name = keyName(text); name && sameName(*name, key))
            return lines.replace(i, line);
        if (!text.isEmpty())
            lastUsed = i;
    }
    lines.insert(lastUsed + 1, line);
}

/// A file that cannot be read has no lines.
ProfileLines readLines(const QString& path)
{
    try {
        return ProfileLines(readWholeFile(path));
    } catch (const RuntimeFailure&) {
        return {};
    }
}

} // namespace

std::size_t ProfileFile::CaseBlind::operator()(QStringView name) const
{
    std::size_t hash = 0;
    for (const QChar character : name)
        hash = hash * 31 + character.toCaseFolded().unicode();
    return hash;
}

bool ProfileFile::CaseBlind::operator()(QStringView left, QStringView right) const
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

ProfileFile::ProfileFile(const QString& path)
{
    const ProfileLines lines = readLines(path);
    Section* section = nullptr;
    for (qsizetype i = 0; i < lines.count(); ++i) {
        const auto text = lines.text(i);
        if (const auto name = sectionName(text)) {
            section = &m_sections[*name];
        } else if (const auto key = keyName(text); key && section) {
            section->try_emplace(*key, valueOf(text));
        }
    }
}

QString ProfileFile::value(QStringView section, QStringView key, const QString& defaultText, int limit) const
{
    const auto named = m_sections.find(section);
    if (named != m_sections.end()) {
        if (const auto found = named->second.find(key); found != named->second.end())
            return found->second.left(limit);
    }
    return withoutTrailingBlanks(defaultText).left(limit);
}

QStringList ProfileFile::sections() const
{
    QStringList names;
    for (const auto& section : m_sections)
        names.append(section.first);
    return names;
}

QStringList ProfileFile::keys(QStringView section) const
{
    QStringList names;
    if (const auto named = m_sections.find(section); named != m_sections.end()) {
        for (const auto& key : named->second)
            names.append(key.first);
    }
    return names;
}

bool ProfileFile::write(const QString& path, const QString& section, const QString& key, const QString& value)
{
    try {
        ProfileLines lines(pathExists(path) ? readWholeFile(path) : QByteArray());
        setKey(lines, section, key, key + u'=' + value);
        writeWholeFile(path, lines.bytes());
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

} // namespace norvane
