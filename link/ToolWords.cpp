// See ToolWords.h.
#include "link/ToolWords.h"

#include "platform/Excerpt.h"
#include "platform/Windows1252.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

/// Colours, cursor moves, the title of the terminal's window.
const QRegularExpression& escapeSequence()
{
    static const QRegularExpression sequence(
        u"\\x1b\\[[0-?]*[ -/]*[@-~]|\\x1b\\][^\\x07\\x1b]*(\\x07|\\x1b\\\\)?"_s);
    return sequence;
}

/// A progress display returns to the beginning of its line, or goes back by single characters.
QString afterOverwriting(QStringView line)
{
    while (line.endsWith(u'\r'))
        line.chop(1);
    QString seen;
    for (const QChar c : line.mid(line.lastIndexOf(u'\r') + 1)) {
        if (c == u'\b') {
            seen.chop(1);
        } else {
            seen += c;
        }
    }
    return seen;
}

QString shownLine(const QByteArray& bytes)
{
    QString line = QByteArrayView(bytes).isValidUtf8() ? QString::fromUtf8(bytes) : fromWindows1252(bytes);
    return visibleControls(afterOverwriting(line.remove(escapeSequence()))).trimmed();
}

/// Without the rest of a character whose beginning was cut off.
QByteArrayView fromWholeCharacter(QByteArrayView bytes)
{
    constexpr qsizetype longestRest = 3;
    constexpr unsigned char kindBits = 0xC0;
    constexpr unsigned char rest = 0x80;
    qsizetype first = 0;
    while (first < longestRest && first < bytes.size() &&
           (static_cast<unsigned char>(bytes[first]) & kindBits) == rest) {
        ++first;
    }
    return bytes.sliced(first);
}

} // namespace

void ToolWords::clear()
{
    m_end.clear();
    m_isCut = false;
}

void ToolWords::add(const QByteArray& bytes)
{
    m_end += bytes;
    if (m_end.size() > most) {
        m_end = m_end.last(most);
        m_isCut = true;
    }
}

QStringList ToolWords::lines() const
{
    QStringList shown;
    const QByteArrayView kept = m_isCut ? fromWholeCharacter(m_end) : QByteArrayView(m_end);
    for (const QByteArray& line : kept.toByteArray().split('\n'))
        shown << shownLine(line);
    shown.removeAll(QString());
    return shown;
}

QString ToolWords::text() const
{
    QStringList shown = lines();
    if (m_isCut)
        shown.prepend(u"..."_s);
    return shown.join(u'\n');
}

QString ToolWords::lastLine() const
{
    const QStringList shown = lines();
    return shown.isEmpty() ? QString() : excerpt(shown.back());
}

} // namespace norvane::link
