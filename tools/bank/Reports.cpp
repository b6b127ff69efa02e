// Consolidating, adding up and writing reports; see Reports.h.
//
// A record of a collected file holds its numbers as 64-bit big-endian thousandths, in report 194 behind the
// 18 digits of the PLU and, when the register is set to send them, the 16 characters of its description.
#include "tools/bank/Reports.h"

#include "tools/bank/Files.h"
#include "tools/bank/Layout.h"
#include "tools/bank/TextRecords.h"
#include "tools/bank/ToolFailure.h"

#include <QDir>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>

namespace bank
{
namespace
{

constexpr int pluReport = 194;
constexpr int reportClearError = 15;
constexpr qsizetype pluDigits = 18;
constexpr qsizetype descriptionWidth = 16;
constexpr qint64 thousand = 1000;
constexpr qint64 largestTotal = 1'000'000'000'000; ///< so that sums over all registers stay exact

// The stamp's high half is the number of price levels, its low half says what each record holds.
constexpr quint8 byLevelBit = 1;
constexpr quint8 descriptionBit = 2;

struct Shape {
    int file;
    std::size_t numbers;
};

/// The reports whose records are known by their place.
constexpr std::array shapes{Shape{190, 2}, Shape{191, 2}, Shape{192, 2}, Shape{218, 1}};

std::size_t numbersOfPlu(quint8 stamp)
{
    const bool byLevel = (stamp & byLevelBit) != 0;
    return 2 + 2 * (byLevel ? static_cast<std::size_t>(stamp >> 4) : 1);
}

int flagDigit(const QByteArray& options, int place)
{
    return options.mid(place, 1).toInt();
}

/// How the register is set to send PLU totals: by its memory file and its service settings.
quint8 stampOf(const Register& source)
{
    const auto memory = source.memory();
    const int levels = std::clamp(memory.at(4).toInt(), 1, 4);
    const bool byLevel = (flagDigit(memory.at(24), 0) & 4) != 0;
    const auto service = fromBytes(readFile(source.filePath(15)), 15, source.model);
    const auto options = unpackRecord(service.record(0), columnsOf(15, source.model)).first();
    const bool descriptions = (flagDigit(options, 0) & 1) != 0;
    return static_cast<quint8>((byLevel ? levels << 4 | byLevelBit : 1 << 4) |
                               (descriptions ? descriptionBit : 0));
}

std::size_t itemsOf(int report, const QList<QByteArray>& memory)
{
    switch (report) {
    case 191:
        return memory.at(13).toULong();
    case 192:
        return financialItems * memory.at(5).toULong();
    case 218:
        return memory.at(14).toULong();
    default:
        return financialItems;
    }
}

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

QByteArray numberText(qint64 thousandths)
{
    QByteArray text = thousandths < 0 ? "-" : "";
    text += QByteArray::number(std::abs(thousandths / thousand));
    auto fraction = QByteArray::number(std::abs(thousandths % thousand)).rightJustified(3, '0');
    while (fraction.endsWith('0'))
        fraction.chop(1);
    return fraction.isEmpty() ? text : text + '.' + fraction;
}

QString reportPath(const Register& source, const QString& kind, int report)
{
    return QDir(source.folder).filePath(QStringLiteral("%1/%2.txt").arg(kind).arg(report));
}

QList<QByteArrayList> consolidatedLines(const Register& source, int report)
{
    QList<QByteArrayList> result;
    const auto path = reportPath(source, QStringLiteral("consolidated"), report);
    if (!QFileInfo::exists(path))
        return result;
    const auto lines = readFile(path).split('\n');
    for (const auto& line : lines) {
        if (!line.trimmed().isEmpty())
            result += line.trimmed().split(',');
    }
    return result;
}

void addNumbers(Numbers& into, const QByteArrayList& values, qsizetype from, const QString& where)
{
    for (std::size_t i = 0; i < into.size(); ++i) {
        const auto at = from + static_cast<qsizetype>(i);
        if (at < values.size())
            into[i] += thousandthsOf(values.at(at), where);
    }
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
    static const std::vector<int> files{190, 191, 192, pluReport, 218};
    return files;
}

bool consolidateReports(const Register& target)
{
    QDir folder(target.folder);
    if (folder.exists(QStringLiteral("consolidated")))
        return false;
    if (folder.exists(QStringLiteral("totals")) &&
        !folder.rename(QStringLiteral("totals"), QStringLiteral("consolidated"))) {
        throw ToolFailure(FileWriteError, QStringLiteral("%1: totals cannot be moved").arg(target.folder));
    }
    return true;
}

void clearReports(const Register& target)
{
    QDir folder(QDir(target.folder).filePath(QStringLiteral("consolidated")));
    if (folder.exists() && !folder.removeRecursively()) {
        throw ToolFailure(reportClearError,
                          QStringLiteral("%1: reports cannot be cleared").arg(folder.path()));
    }
}

void Collection::add(const Register& source)
{
    if (m_first) {
        m_model = source.model;
        m_stamp = stampOf(source);
        m_first = false;
    }
    const auto memory = source.memory();
    for (const auto& shape : shapes) {
        const auto lines = consolidatedLines(source, shape.file);
        auto& items = m_byPlace[shape.file];
        const auto count = std::max(itemsOf(shape.file, memory), static_cast<std::size_t>(lines.size()));
        items.resize(std::max(items.size(), count), Numbers(shape.numbers));
        for (qsizetype i = 0; i < lines.size(); ++i)
            addNumbers(items[static_cast<std::size_t>(i)], lines.at(i), 0, source.folder);
    }
    addPlus(source);
}

void Collection::addPlus(const Register& source)
{
    const auto columns = columnsOf(67, source.model);
    const auto plus = fromBytes(readFile(source.filePath(67)), 67, source.model);
    for (qsizetype i = 0; i < plus.recordCount(); ++i) {
        const auto values = unpackRecord(plus.record(i), columns, i + 1);
        m_plus.try_emplace(values.at(0), Plu{values.at(1), Numbers(numbersOfPlu(m_stamp))});
    }
    const auto lines = consolidatedLines(source, pluReport);
    for (const auto& line : lines) {
        const auto number = line.first().trimmed().rightJustified(pluDigits, '0');
        const Plu empty{QByteArray(descriptionWidth, ' '), Numbers(numbersOfPlu(m_stamp))};
        auto& plu = m_plus.try_emplace(number, empty).first->second;
        addNumbers(plu.numbers, line, 1, source.folder);
    }
}

std::vector<RegisterFile> Collection::files() const
{
    std::vector<RegisterFile> result;
    for (const auto& shape : shapes) {
        RegisterFile file{shape.file, m_model, static_cast<int>(shape.numbers * sizeof(qint64))};
        const auto items = m_byPlace.find(shape.file);
        for (const auto& numbers : items == m_byPlace.end() ? std::vector<Numbers>() : items->second)
            appendNumbers(file.records, numbers);
        result.push_back(file);
    }

    const bool descriptions = (m_stamp & descriptionBit) != 0;
    const auto head = pluDigits + (descriptions ? descriptionWidth : 0);
    RegisterFile file{pluReport, m_model,
                      static_cast<int>(head) + static_cast<int>(numbersOfPlu(m_stamp) * sizeof(qint64))};
    file.stamp = m_stamp;
    for (const auto& [number, plu] : m_plus) {
        file.records += number + (descriptions ? plu.description : QByteArray());
        appendNumbers(file.records, plu.numbers);
    }
    result.push_back(file);
    return result;
}

QByteArray reportText(const RegisterFile& file)
{
    const bool byPlu = file.file == pluReport;
    const bool descriptions = byPlu && (file.stamp & descriptionBit) != 0;
    const qsizetype head = byPlu ? pluDigits + (descriptions ? descriptionWidth : 0) : 0;
    if (file.recordLength < head || (file.recordLength - head) % static_cast<qsizetype>(sizeof(qint64)) != 0)
        throw ToolFailure(FileSizeMismatch, QStringLiteral("a report record of a wrong length"));

    QByteArray text;
    for (qsizetype i = 0; i < file.recordCount(); ++i) {
        const auto record = file.record(i);
        QByteArrayList values;
        if (byPlu)
            values += record.left(pluDigits);
        if (descriptions)
            values += record.mid(pluDigits, descriptionWidth);
        for (auto at = head; at < record.size(); at += static_cast<qsizetype>(sizeof(qint64)))
            values += numberText(qFromBigEndian<qint64>(record.constData() + at));
        text += values.join(',') + "\r\n";
    }
    return text;
}

} // namespace bank
