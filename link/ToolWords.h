// What a tool says on its standard output and standard error.
#pragma once

#include <QByteArray>
#include <QString>

namespace norvane::link
{

/// The words of one run of a tool, of which the end is kept: that is where a tool says why it gave up.
class ToolWords
{
public:
    /// Bytes that are kept.
    static constexpr qsizetype most = 4096;

    void clear();
    void add(const QByteArray& bytes);

    /// What a terminal would show, without colours: lines that are not empty, "..." above them when the
    /// beginning is missing. A line that is not UTF-8 counts as Windows-1252. Control characters are shown as
    /// "\x07". Empty if the tool said nothing.
    [[nodiscard]] QString text() const;
    /// The last line, short enough for a log.
    [[nodiscard]] QString lastLine() const;

private:
    [[nodiscard]] QStringList lines() const;

    QByteArray m_end;
    bool m_isCut = false; ///< more came before
};

} // namespace norvane::link
