// Reading, adding and writing totals; see Totals.h.
#include "tools/bank/Totals.h"

#include "tools/bank/Files.h"
#include "tools/bank/ToolFailure.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr std::array reportsByPlace{financialReport, timeReport, clerkReport, mixReport};
constexpr qint64 thousand = 1000;
constexpr qint64 largestTotal = 1'000'000'000'000; ///< so that sums over all registers remain exact

std::optional<qint64> parseThousandths(const QByteArray& text)
{
    const auto parts = text.trimmed().split('.');
    const auto fraction = parts.value(1, "0").leftJustified(3, '0');
    bool wholeFits = false;
    bool fractionFits = false;
    const auto whole = parts.first().toLongLong(&wholeFits);
    const auto rest = static_cast<qint64>(fraction.toUInt(&fractionFits));
    wholeFits = wholeFits && whole <= largestTotal && whole >= -largestTotal;
    if (!wholeFits || !fractionFits || fraction.size() != 3 || parts.size() > 2)
        return std::nullopt;
    return whole * thousand + (parts.first().startsWith('-') ? -rest : rest);
}

qint64 thousandthsOf(const QByteArray& text, const QString& path)
{
    const auto number = parseThousandths(text);
    if (!number)
        throw ToolFailure(FileInformationWrong, u"%1: no number: %2"_s.arg(path, QString::fromLatin1(text)));
    return *number;
}

QString filePath(const QString& folder, int report)
{
    return QDir(folder).filePath(u"%1.txt"_s.arg(report));
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
    // An item without sales still needs a line, or those after it would move up.
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
        for (const QByteArrayList& line : linesOf(path))
            totals.byPlace[report].push_back(numbersOf(line, path));
    }
    const auto path = filePath(folder, pluReport);
    for (const QByteArrayList& line : linesOf(path))
        totals.addPlu(line.first().trimmed().rightJustified(pluDigits, '0'), numbersOf(line.mid(1), path));
    return totals;
}

void Totals::write(const QString& folder) const
{
    if (!QDir().mkpath(folder))
        throw ToolFailure(FileWriteError, u"%1 cannot be made"_s.arg(folder));
    for (const auto& [report, items] : byPlace) {
        QByteArray text;
        for (const auto& numbers : items)
            text += lineOf({}, numbers);
        writeFile(filePath(folder, report), text);
    }
    QByteArray plusText;
    for (const auto& [number, numbers] : plus)
        plusText += lineOf({number}, numbers);
    writeFile(filePath(folder, pluReport), plusText);
}

QString openTotals(const Register& of)
{
    return QDir(of.folder).filePath(u"totals"_s);
}

QString consolidatedTotals(const Register& of)
{
    return QDir(of.folder).filePath(u"consolidated"_s);
}

} // namespace bank
