// See DocumentFile.h.
#include "overlay/DocumentFile.h"

#include "overlay/KeyLines.h"
#include "platform/FilePaths.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "platform/Windows1252.h"

#include <QFile>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace norvane::overlay
{
namespace
{

/// The lines of a file, one after the other: a file of another kind may be of any size.
class LineReader
{
public:
    explicit LineReader(const QString& path) : m_file(openToRead(path)) {}

    /// @throws RuntimeFailure with Failure::InputPastEnd after the last line, which may have no line end.
    QString next()
    {
        constexpr int lineEnd = 3; // and the end mark that readLine() counts
        if (m_file->atEnd())
            throw RuntimeFailure(Failure::InputPastEnd, QStringLiteral("Input past end of file"));
        QByteArray line = m_file->readLine(cellTextLimit + lineEnd);
        if (line.endsWith('\n'))
            line.chop(line.endsWith("\r\n") ? 2 : 1);
        if (line.size() > cellTextLimit)
            throw RuntimeFailure(Failure::TextTooLong, QStringLiteral("A line is too long for a cell"));
        return fromWindows1252(line);
    }

private:
    std::unique_ptr<QFile> m_file;
};

[[noreturn]] void failOverflow(const QString& number)
{
    throw RuntimeFailure(Failure::Overflow, QStringLiteral("Overflow: %1").arg(number));
}

/// The highest bit may be written as a minus or not.
Colour toColour(const QString& text)
{
    const double number = std::nearbyint(toNumber(text));
    if (number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::uint32_t>::max())
        failOverflow(text);
    return {static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::int64_t>(number)))};
}

float toSize(const QString& text)
{
    const double number = toNumber(text);
    if (std::abs(number) > std::numeric_limits<float>::max())
        failOverflow(text);
    return static_cast<float>(number);
}

/// The shortest number that is read as the same size.
QByteArray sizeText(float size)
{
    std::array<char, 400> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), size, std::chars_format::fixed);
    return {buffer.data(), result.ptr - buffer.data()};
}

/// Values read before a failing line remain in the cell.
void readCell(LineReader& lines, TextCell& cell)
{
    cell.text = lines.next();
    cell.background = toColour(lines.next());
    cell.textColour = toColour(lines.next());
    cell.font.name = lines.next();
    cell.font.size = toSize(lines.next());
    cell.font.isBold = toBoolean(lines.next());
    cell.font.isItalic = toBoolean(lines.next());
}

QByteArray yesNo(bool value)
{
    return value ? QByteArrayLiteral("True") : QByteArrayLiteral("False");
}

void appendCell(QByteArray& content, const TextCell& cell)
{
    for (const QByteArray& line :
         {toWindows1252(RemoveCarriage(cell.text)), QByteArray::number(cell.background.number),
          QByteArray::number(cell.textColour.number), toWindows1252(RemoveCarriage(cell.font.name)),
          sizeText(cell.font.size), yesNo(cell.font.isBold), yesNo(cell.font.isItalic)})
        content.append(line).append("\r\n");
}

} // namespace

void readDocument(const QString& path, Document& document)
{
    LineReader lines(path);
    for (int index = 0; index < document.cellCount(); ++index)
        readCell(lines, document.cell(index));
}

void writeDocument(const QString& path, const Document& document)
{
    QByteArray content;
    for (const TextCell& cell : document.cells())
        appendCell(content, cell);
    writeWholeFile(path, content);
}

} // namespace norvane::overlay
