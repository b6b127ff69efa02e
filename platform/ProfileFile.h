// Initialisation files (setup.ini, the .scn screens) by the reading rules of the platform that wrote them.
#pragma once

#include <QHash>
#include <QString>

namespace norvane
{

/// Longest value that a reader gets, in characters: the former readers' buffers, less the end mark.
inline constexpr int profileValueLimit = 144;
inline constexpr int profileListLimit = 255;

/// One initialisation file, read once. Sections and keys match without regard to case; the first of two equal
/// keys counts; values are trimmed and lose one pair of surrounding quotes; text is Windows-1252. A file that
/// cannot be read is an empty one, as the platform has it.
class ProfileFile
{
public:
    explicit ProfileFile(const QString& path);

    /// @return the value cut to @p limit characters; for a key that is absent, @p defaultText without its
    /// trailing blanks. A key that is present and empty gives empty text.
    [[nodiscard]] QString value(const QString& section, const QString& key, const QString& defaultText = {},
                                int limit = profileValueLimit) const;

    /// Writes one key at once and keeps every other line, comment and the file's line ends; makes the section
    /// and the file where they are missing (CR LF).
    /// @return false when the file cannot be written; the former file is then whole.
    static bool write(const QString& path, const QString& section, const QString& key, const QString& value);

private:
    QHash<QString, QString> m_values; ///< "section\nkey" in lower case
};

} // namespace norvane
