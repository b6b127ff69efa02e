// See PlannedList.h.
#include "articles/PlannedList.h"

#include "articles/CsvReader.h"
#include "articles/SpreadsheetError.h"
#include "register/PluNumber.h"
#include "reports/files/FormulaGuard.h"

#include <QCryptographicHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

const auto titleWord = u"Planned changes"_s;
const auto version = u"1"_s;
const QStringList factNames{u"Store on"_s, u"Table"_s, u"Model"_s, u"Planned"_s, u"From"_s};
const QStringList listHeadings{u"Number"_s, u"Field"_s, u"Old"_s, u"New"_s};
/// In place of a field: the record does not exist yet.
const auto newMark = u"(new record)"_s;
constexpr QByteArrayView endWord = "Check,";
constexpr QByteArrayView utf8Mark = "\xEF\xBB\xBF"; ///< tells spreadsheets that the text is UTF-8

void addPlannedCell(QByteArray& text, const QString& value)
{
    const QString cell = reports::guarded(value);
    const auto isSpecial = [](QChar letter) {
        return letter == u',' || letter == u'"' || letter == u'\r' || letter == u'\n';
    };
    const bool isQuoted =
        cell.startsWith(u' ') || cell.endsWith(u' ') || std::ranges::any_of(cell, isSpecial);
    text += isQuoted ? '"' + cell.toUtf8().replace('"', "\"\"") + '"' : cell.toUtf8();
}

void addPlannedLine(QByteArray& text, const QStringList& values)
{
    for (qsizetype place = 0; place < values.size(); ++place) {
        if (place > 0)
            text += ',';
        addPlannedCell(text, values[place]);
    }
    text += "\r\n";
}

QByteArray checkOf(QByteArrayView lines)
{
    return QCryptographicHash::hash(lines, QCryptographicHash::Sha256).toHex();
}

/// The lines before the last one. @throws SpreadsheetError if the last one does not belong to them.
QByteArrayView checkedLines(const QByteArray& text)
{
    const qsizetype end = text.lastIndexOf("\r\n" + endWord.toByteArray()) + 2;
    const QByteArrayView lines = QByteArrayView(text).first(std::min(end, text.size()));
    const QByteArray check = endWord.toByteArray() + checkOf(lines) + "\r\n";
    if (QByteArrayView(text).sliced(lines.size()) != QByteArrayView(check))
        throw SpreadsheetError(u"is damaged, or was changed after it was planned"_s);
    return lines;
}

/// Reads the lines of a list one by one.
class PlannedReader
{
public:
    explicit PlannedReader(QByteArrayView lines)
        : m_csv({lines.data(), static_cast<std::size_t>(lines.size())}, ',')
    {
        m_csv.goTo(lines.startsWith(utf8Mark) ? utf8Mark.size() : 0);
    }

    [[nodiscard]] PlannedList read()
    {
        (void)next();
        if (m_cells.value(0) != titleWord || m_cells.value(1) != version)
            throw SpreadsheetError(u"was made by another version of the program"_s);
        PlannedList list;
        list.day = QDate::fromString(fact(0), Qt::ISODate);
        list.table = fact(1);
        list.model = fact(2);
        list.made = QDateTime::fromString(fact(3), Qt::ISODate);
        list.source = fact(4);
        require(next() && m_cells == listHeadings && list.day.isValid());
        while (next())
            add(list.records);
        return list;
    }

private:
    static void require(bool holds)
    {
        if (!holds)
            throw SpreadsheetError(u"is not a list of planned changes"_s);
    }
    bool next()
    {
        const bool isThere = m_csv.next();
        m_cells.clear();
        for (const std::string& cell : m_csv.cells())
            m_cells << reports::unguarded(QString::fromStdString(cell));
        return isThere;
    }
    [[nodiscard]] QString fact(qsizetype place)
    {
        require(next() && m_cells.size() == 2 && m_cells[0] == factNames[place]);
        return m_cells[1];
    }
    void add(QList<PlannedRecord>& records)
    {
        require(m_cells.size() == listHeadings.size() && PluNumber::parse(m_cells[0].toStdString()));
        const bool isNew = m_cells[1] == newMark;
        if (records.isEmpty() || records.last().number != m_cells[0])
            records.append({m_cells[0], isNew, {}});
        if (!isNew)
            records.last().fields.append({m_cells[1], m_cells[2], m_cells[3]});
    }

    CsvReader m_csv;
    QStringList m_cells;
};

} // namespace

QByteArray plannedText(const PlannedList& list)
{
    QByteArray text = utf8Mark.toByteArray();
    addPlannedLine(text, {titleWord, version});
    const QStringList facts{list.day.toString(Qt::ISODate), list.table, list.model,
                            list.made.toString(Qt::ISODate), list.source};
    for (qsizetype place = 0; place < facts.size(); ++place)
        addPlannedLine(text, {factNames[place], facts[place]});
    addPlannedLine(text, listHeadings);
    for (const PlannedRecord& record : list.records) {
        if (record.isNew)
            addPlannedLine(text, {record.number, newMark, {}, {}});
        for (const PlannedField& field : record.fields)
            addPlannedLine(text, {record.number, field.heading, field.before, field.after});
    }
    return text + endWord.toByteArray() + checkOf(text) + "\r\n";
}

PlannedList plannedListOf(const QByteArray& text)
{
    return PlannedReader(checkedLines(text)).read();
}

} // namespace norvane::articles
