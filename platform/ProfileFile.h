// Initialisation files (setup.ini, the .scn screens) by the reading rules of the platform that wrote them.
#pragma once

#include <QString>
#include <QStringList>

#include <unordered_map>

namespace norvane
{

/// Longest value that a reader gets, in characters: the size of the former readers' buffers.
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
    [[nodiscard]] QString value(QStringView section, QStringView key, const QString& defaultText = {},
                                int limit = profileValueLimit) const;

    /// The names as first written, in no particular order: for readers that report misspelled ones.
    [[nodiscard]] QStringList sections() const;
    [[nodiscard]] QStringList keys(QStringView section) const;

    /// Writes one key immediately and keeps every other line, comment and the file's line ends; creates a
    /// missing section or file (CR LF).
    /// @return false when the file cannot be written; the old file is then unchanged.
    static bool write(const QString& path, const QString& section, const QString& key, const QString& value);

private:
    /// Finds names without regard to case and without copying them: a screen asks for a thousand keys.
    struct CaseBlind {
        using is_transparent = void;
        std::size_t operator()(QStringView name) const;
        bool operator()(QStringView left, QStringView right) const;
    };
    using Section = std::unordered_map<QString, QString, CaseBlind, CaseBlind>;

    std::unordered_map<QString, Section, CaseBlind, CaseBlind> m_sections;
};

} // namespace norvane
