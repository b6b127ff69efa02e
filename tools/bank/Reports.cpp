// Consolidating, adding up and writing reports; see Reports.h.
//
// A record of a collected file has its numbers as 64-bit big-endian thousandths, in report 194 after the 18
// digits of the PLU and, if the register is set to send them, the 16 characters of its description.
#include "tools/bank/Reports.h"

#include "tools/bank/Layout.h"
#include "tools/bank/TextRecords.h"
#include "tools/bank/ToolFailure.h"

#include <QDir>
#include <QtEndian>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr int reportClearError = 15;
constexpr qsizetype descriptionWidth = 16;
constexpr qsizetype numberLength = sizeof(qint64);

// The stamp's high half is the number of price levels, its low half says what each record holds.
constexpr quint8 byLevelBit = 1;
constexpr quint8 descriptionBit = 2;
constexpr int mostLevels = 4; ///< that a register sends, however many it has

struct Shape {
    int file;
    std::size_t numbers;
};

/// The reports whose records are identified by their position.
constexpr std::array shapes{Shape{financialReport, 2}, Shape{timeReport, 2}, Shape{clerkReport, 2},
                            Shape{mixReport, 1}};

std::size_t numbersOfPlu(quint8 stamp)
{
    const bool byLevel = (stamp & byLevelBit) != 0;
    return 2 + 2 * (byLevel ? std::max<std::size_t>(stamp >> 4, 1) : 1);
}

/// Length in bytes of the fields before a PLU's numbers.
qsizetype headLength(quint8 stamp)
{
    return pluDigits + ((stamp & descriptionBit) != 0 ? descriptionWidth : 0);
}

/// @param head bytes of PLU number and description before the numbers, 0 if there are none
QByteArray reportLine(const QByteArray& record, qsizetype head)
{
    QByteArrayList values;
    if (head > 0)
        values += record.left(pluDigits);
    if (head > pluDigits)
        values += record.mid(pluDigits, descriptionWidth);
    for (auto at = head; at < record.size(); at += numberLength)
        values += numberText(qFromBigEndian<qint64>(record.constData() + at));
    return values.join(',') + "\r\n";
}

int flagDigit(const QByteArray& options, int place)
{
    return options.mid(place, 1).toInt();
}

/// How the register is set to send PLU totals: by its memory file and its service settings.
quint8 stampOf(const Register& source)
{
    if (source.stamp)
        return *source.stamp;
    const auto memory = source.memory();
    const int levels = std::clamp(memory.at(4).toInt(), 1, mostLevels);
    const bool byLevel = (flagDigit(memory.at(24), 0) & 4) != 0;
    const auto options = source.records(15).first().first();
    const bool descriptions = (flagDigit(options, 0) & 1) != 0;
    return static_cast<quint8>(levels << 4 | (byLevel ? byLevelBit : 0) |
                               (descriptions ? descriptionBit : 0));
}

std::size_t itemsOf(int report, const QList<QByteArray>& memory)
{
    switch (report) {
    case timeReport:
        return memory.at(13).toULong();
    case clerkReport:
        return financialItems * memory.at(5).toULong();
    case mixReport:
        return memory.at(34).toULong();
    default:
        return financialItems;
    }
}

std::vector<Numbers> linesOf(const Totals& totals, int report)
{
    const auto sold = totals.byPlace.find(report);
    return sold == totals.byPlace.end() ? std::vector<Numbers>() : sold->second;
}

/// Adds what @p into has room for. Price levels beyond it count with its last one.
void addLevels(Numbers& into, const Numbers& numbers)
{
    for (std::size_t i = 0; i < numbers.size(); ++i)
        into[i < into.size() ? i : into.size() - 2 + i % 2] += numbers[i];
}

void appendNumbers(QByteArray& record, const Numbers& numbers)
{
    for (const auto number : numbers) {
        std::array<char, sizeof number> bytes{};
        qToBigEndian(number, bytes.data());
        record.append(bytes.data(), bytes.size());
    }
}

} // namespace

const std::vector<int>& reportFiles()
{
    static const std::vector<int> files{financialReport, timeReport, clerkReport, pluReport, mixReport};
    return files;
}

bool consolidateReports(const Register& target)
{
    QDir folder;
    if (folder.exists(consolidatedTotals(target)))
        return false;
    if (folder.exists(openTotals(target)) && !folder.rename(openTotals(target), consolidatedTotals(target)))
        throw ToolFailure(FileWriteError, u"%1: totals cannot be moved"_s.arg(target.folder));
    return true;
}

void clearReports(const Register& target)
{
    QDir folder(consolidatedTotals(target));
    if (folder.exists() && !folder.removeRecursively()) {
        throw ToolFailure(reportClearError, u"%1: reports cannot be cleared"_s.arg(folder.path()));
    }
}

void Collection::add(const Register& source)
{
    if (m_first) {
        m_model = source.model;
        m_stamp = stampOf(source);
        m_first = false;
    }
    const auto totals = Totals::read(consolidatedTotals(source));
    addByPlace(source, totals);
    addPlus(source, totals);
}

void Collection::addByPlace(const Register& source, const Totals& totals)
{
    const auto memory = source.memory();
    for (const auto& shape : shapes) {
        const auto lines = linesOf(totals, shape.file);
        auto& items = m_byPlace[shape.file];
        const auto count = std::max(itemsOf(shape.file, memory), lines.size());
        items.resize(std::max(items.size(), count), Numbers(shape.numbers));
        for (std::size_t i = 0; i < lines.size(); ++i) {
            addNumbers(items[i], lines[i]);
            items[i].resize(shape.numbers);
        }
    }
}

void Collection::addPlus(const Register& source, const Totals& totals)
{
    const Numbers zeros(numbersOfPlu(m_stamp));
    const auto records = source.records(67);
    for (const auto& record : records)
        m_plus.try_emplace(record.at(0), Plu{record.at(1), zeros});
    for (const auto& [number, numbers] : totals.plus) {
        // Sold before it was taken out of the programme.
        const Plu gone{QByteArray(descriptionWidth, ' '), zeros};
        addLevels(m_plus.try_emplace(number, gone).first->second.numbers, numbers);
    }
}

std::vector<RegisterFile> Collection::files() const
{
    std::vector<RegisterFile> result;
    result.reserve(std::size(shapes) + 1);
    for (const auto& shape : shapes)
        result.push_back(fileByPlace(shape.file, shape.numbers));
    result.push_back(fileOfPlus());
    return result;
}

RegisterFile Collection::fileByPlace(int report, std::size_t numbers) const
{
    RegisterFile file{report, m_model, static_cast<int>(numbers * sizeof(qint64))};
    const auto items = m_byPlace.find(report);
    if (items == m_byPlace.end())
        return file;
    for (const auto& each : items->second)
        appendNumbers(file.records, each);
    return file;
}

RegisterFile Collection::fileOfPlus() const
{
    const bool descriptions = (m_stamp & descriptionBit) != 0;
    const auto length = headLength(m_stamp) + static_cast<qsizetype>(numbersOfPlu(m_stamp) * sizeof(qint64));
    RegisterFile file{pluReport, m_model, static_cast<int>(length)};
    file.stamp = m_stamp;
    for (const auto& [number, plu] : m_plus) {
        file.records += number + (descriptions ? plu.description : QByteArray());
        appendNumbers(file.records, plu.numbers);
    }
    return file;
}

QByteArray reportText(const RegisterFile& file)
{
    const auto head = file.file == pluReport ? headLength(file.stamp) : 0;
    if (file.recordLength < head || (file.recordLength - head) % numberLength != 0)
        throw ToolFailure(FileSizeMismatch, u"a report record of a wrong length"_s);
    QByteArray text;
    for (qsizetype i = 0; i < file.recordCount(); ++i)
        text += reportLine(file.record(i), head);
    return text;
}

} // namespace bank
