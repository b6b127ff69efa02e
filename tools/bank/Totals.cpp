// Reading, adding and writing totals; see Totals.h.
#include "tools/bank/Totals.h"

#include "tools/bank/Files.h"
#include "tools/bank/ToolFailure.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace bank
{
namespace
{

constexpr std::array reportsByPlace{financialReport, timeReport, clerkReport, mixReport};
constexpr qint64 thousand = 1000;
constexpr qint64 largestTotal = 1'000'000'000'000; ///< so that sums over all registers stay exact

qint64 thousandthsOf(const QByteArray& text, const QString& path)
{
    const auto parts = text.trimmed().split('.');
    const bool negative = parts.first().startsWith('-');
    const auto fraction = parts.value(1, "0").leftJustified(3, '0');
    bool wholeFits = false;
    bool fractionFits = false;
    const auto whole = parts.first().toLongLong(&wholeFits);
    const auto rest = fraction.toUInt(&fractionFits);
    if (!wholeFits || whole > largestTotal || whole < -largestTotal || !fractionFits ||
        fraction.size() != 3 || parts.size() > 2) {
        throw ToolFailure(FileInformationWrong,
                          QStringLiteral("%1: no number: %2").arg(path, QString::fromLatin1(text)));
    }
    return whole * thousand + (negative ? -static_cast<qint64>(rest) : static_cast<qint64>(rest));
}

QString filePath(const QString& folder, int report)
{
    return QDir(folder).filePath(QStringLiteral("%1.txt").arg(report));
}

QList<QByteArrayList> linesOf(const QString& path)
{
    QList<QByteArrayList> result;
    if (!QFileInfo::exists(path))
        return result;
    const auto lines = readFile(path).split('\n');
    for (const auto& line : lines) {
        if (!line.trimmed().isEmpty())
            result += line.trimmed().split(',');
    }
    return result;
}

Numbers numbersOf(const QByteArrayList& values, const QString& path)
{
    Numbers numbers;
    for (const auto& value : values)
        numbers.push_back(thousandthsOf(value, path));
    return numbers;
}

QByteArray lineOf(QByteArrayList values, const Numbers& numbers)
{
    for (const auto number : numbers)
        values += numberText(number);
    return values.join(',') + "\r\n";
}

} // namespace

QByteArray numberText(qint64 thousandths)
{
    QByteArray text = thousandths < 0 ? "-" : "";
    text += QByteArray::number(std::abs(thousandths / thousand));
    auto fraction = QByteArray::number(std::abs(thousandths % thousand)).rightJustified(3, '0');
    while (fraction.endsWith('0'))
        fraction.chop(1);
    return fraction.isEmpty() ? text : text + '.' + fraction;
}

void addNumbers(Numbers& into, const Numbers& numbers)
{
    into.resize(std::max(into.size(), numbers.size()));
    for (std::size_t i = 0; i < numbers.size(); ++i)
        into[i] += numbers[i];
}

void Totals::add(int report, std::size_t item, const Numbers& numbers)
{
    auto& items = byPlace[report];
    // An item without sales still needs a line, or those behind it would move up.
    items.resize(std::max(items.size(), item), Numbers(numbers.size()));
    addNumbers(items[item - 1], numbers);
}

void Totals::addPlu(const QByteArray& number, const Numbers& numbers)
{
    addNumbers(plus[number], numbers);
}

Totals Totals::read(const QString& folder)
{
    Totals totals;
    for (const int report : reportsByPlace) {
        const auto path = filePath(folder, report);
        const auto lines = linesOf(path);
        for (const auto& line : lines)
            totals.byPlace[report].push_back(numbersOf(line, path));
    }
    const auto path = filePath(folder, pluReport);
    const auto lines = linesOf(path);
    for (const auto& line : lines) {
        totals.addPlu(line.first().trimmed().rightJustified(pluDigits, '0'), numbersOf(line.mid(1), path));
    }
    return totals;
}

void Totals::write(const QString& folder) const
{
    if (!QDir().mkpath(folder))
        throw ToolFailure(FileWriteError, QStringLiteral("%1 cannot be made").arg(folder));
    for (const auto& [report, items] : byPlace) {
        QByteArray text;
        for (const auto& numbers : items)
            text += lineOf({}, numbers);
        writeFile(filePath(folder, report), text);
    }
    QByteArray text;
    for (const auto& [number, numbers] : plus)
        text += lineOf({number}, numbers);
    writeFile(filePath(folder, pluReport), text);
}

QString openTotals(const Register& of)
{
    return QDir(of.folder).filePath(QStringLiteral("totals"));
}

QString consolidatedTotals(const Register& of)
{
    return QDir(of.folder).filePath(QStringLiteral("consolidated"));
}

} // namespace bank
