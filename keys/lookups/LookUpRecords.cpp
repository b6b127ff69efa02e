// Table wlu and the tables of its lines; see LookUpRecords.h.
#include "keys/lookups/LookUpRecords.h"

#include "platform/FailurePlace.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "register/PluNumber.h"
#include "store/engine/ShortWait.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

const QString wordOfPlu = u"PLU"_s;
const QString wordOfFunction = u"Function"_s;

/// Texts of a look-up and their fields, in the order in which they are stored.
struct TextField {
    QLatin1StringView field;
    QString LookUp::*text;
};
struct FlagField {
    QLatin1StringView field;
    bool LookUp::*flag;
};
constexpr TextField firstTexts[] = {{"wluno"_L1, &LookUp::number}, {"description"_L1, &LookUp::description}};
constexpr FlagField allowedItems[] = {{"allowcondiment"_L1, &LookUp::allowsCondiments},
                                      {"allowplu"_L1, &LookUp::allowsPlus},
                                      {"allowfunction"_L1, &LookUp::allowsFunctions}};
constexpr TextField choices[] = {{"#ofcondiments"_L1, &LookUp::choices}};
constexpr FlagField manners[] = {{"condimentMulti"_L1, &LookUp::multiplies},
                                 {"AllowExit"_L1, &LookUp::allowsExit}};
constexpr TextField link[] = {{"link"_L1, &LookUp::link}};

template <std::size_t count>
void readFields(const store::Recordset& from, const FlagField (&fields)[count], LookUp& to)
{
    for (const auto& [field, flag] : fields)
        to.*flag = from.value(field).toNumber() != 0;
}

/// A field that is empty and remains empty is not written.
template <std::size_t count>
void storeFields(const LookUp& from, const TextField (&fields)[count], store::Recordset& to)
{
    for (const auto& [field, text] : fields) {
        if (to.value(field).toText() != from.*text)
            to.setValue(field, store::Value::text(from.*text));
    }
}

template <std::size_t count>
void storeFields(const LookUp& from, const FlagField (&fields)[count], store::Recordset& to)
{
    for (const auto& [field, flag] : fields)
        to.setValue(field, store::Value::yesNo(from.*flag));
}

store::Recordset openByKey(store::Database& database, const QString& table)
{
    store::Recordset records = database.openTable(table);
    records.setIndex(u"primarykey"_s);
    return records;
}

/// "wlutype" 3 is "wlutype3".
QString numbered(QLatin1StringView field, int line)
{
    return field + QString::number(line);
}

/// All look-ups; only number and description are read.
store::Recordset openItems(store::Database& database)
{
    store::Recordset items = openByKey(database, u"wlu"_s);
    items.readOnly({items.fieldOrdinal(u"wluno"_s), items.fieldOrdinal(u"description"_s)});
    return items;
}

ListedItem itemOf(const store::Recordset& lookUp)
{
    return {lookUp.value(u"wluno"_s).toText(), lookUp.value(u"description"_s).toText()};
}

int readLineCount(store::Database& database)
{
    const store::Recordset memory = database.openTable(u"memoryallocation"_s);
    if (!memory.hasCurrent()) {
        throw RuntimeFailure(Failure::NoCurrentRecord, u"Table memoryallocation is empty, so it is not known "
                                                       "how many lines a look-up has. Upload from the ECR "
                                                       "first."_s);
    }
    const auto explain = [](const QString& text) {
        return u"Field lines/plu of table memoryallocation: %1"_s.arg(text);
    };
    return atPlace(explain, [&] {
        const int lines = toWholeNumber(memory.value(u"lines/plu"_s).toText());
        if (lines < 0 || lines > mostLookUpLines) {
            throw RuntimeFailure(
                Failure::SubscriptOutOfRange,
                u"Subscript out of range. A look-up has 0 to %1 lines, not %2."_s.arg(mostLookUpLines)
                    .arg(lines));
        }
        return lines;
    });
}

store::Recordset openLookUps(store::Database& database)
{
    store::Recordset lookUps = openByKey(database, u"wlu"_s);
    if (!lookUps.hasCurrent()) {
        throw RuntimeFailure(Failure::NoCurrentRecord,
                             u"No current record. Table wlu is empty. Upload Window "
                             "Look Up's from the ECR first."_s);
    }
    return lookUps;
}

} // namespace

LookUpRecords::LookUpRecords(std::shared_ptr<store::Database> database)
    : m_database(std::move(database)), m_lineCount(readLineCount(*m_database)),
      m_lookUps(openLookUps(*m_database)), m_plus(openByKey(*m_database, u"pludata"_s)), m_items(*m_database)
{
}

LookUp LookUpRecords::read()
{
    LookUp lookUp;
    for (const auto& fields : {firstTexts[0], firstTexts[1], choices[0], link[0]})
        lookUp.*fields.text = m_lookUps.value(fields.field).toText();
    readFields(m_lookUps, allowedItems, lookUp);
    readFields(m_lookUps, manners, lookUp);
    for (int line = 1; line <= m_lineCount; ++line)
        lookUp.lines.push_back(readLine(line));
    return lookUp;
}

LookUpLine LookUpRecords::readLine(int line)
{
    const store::Value& type = m_lookUps.value(numbered("wlutype"_L1, line));
    const QString code = m_lookUps.value(numbered("codenumber"_L1, line)).toText();
    if (type == store::Value::whole(0))
        return readPlu(LineType::Plu, wordOfPlu, code);
    if (type == store::Value::whole(1))
        return readPlu(LineType::Condiment, u"Condiment"_s, code);
    if (type == store::Value::whole(2))
        return readFunction(code);
    return {.word = u"Not Used"_s};
}

LookUpLine LookUpRecords::readPlu(LineType type, const QString& word, const QString& code)
{
    LookUpLine line{.type = type, .word = word};
    if (!m_plus.seek(store::Seek::Equal, store::Value::text(fittedPluNumber(code))))
        return line;
    line.code = m_plus.value(u"plunumber"_s).toText();
    line.item = line.code + u'\r' + m_plus.value(u"description"_s).toText();
    return line;
}

LookUpLine LookUpRecords::readFunction(const QString& code)
{
    const auto key = m_items.keyFor(ItemKind::Function, code);
    return key ? LookUpLine{LineType::Function, key->function, wordOfFunction, key->text}
               : LookUpLine{.word = wordOfFunction};
}

void LookUpRecords::fill(LookUpLine& line, ItemKind kind, const QString& number)
{
    const auto key = m_items.keyFor(kind, number);
    if (!key) {
        line = {.word = line.word, .item = itemTable(kind).missingEntry};
    } else if (kind == ItemKind::Plu) {
        line = {LineType::Plu, key->lookUp, wordOfPlu, key->text};
    } else {
        line = {LineType::Function, key->function, wordOfFunction, key->text};
    }
}

QString LookUpRecords::storedNumber() const
{
    return m_lookUps.value(u"wluno"_s).toText();
}

void LookUpRecords::save(LookUp& lookUp)
{
    packLines(lookUp.lines);
    const auto explain = [number = storedNumber()](const QString& text) {
        return u"WLU No %1 of table wlu was not saved: %2"_s.arg(number, text);
    };
    const store::ShortWait wait(*m_database);
    atPlace(explain, [&] { store(lookUp); });
}

/// One statement stores the record: completely or not at all.
void LookUpRecords::store(const LookUp& lookUp)
{
    // A record that could not be stored must not remain open: it would show values that were not stored.
    const auto close = qScopeGuard([this] { m_lookUps.cancelUpdate(); });
    m_lookUps.edit();
    storeFields(lookUp, firstTexts, m_lookUps);
    storeFields(lookUp, allowedItems, m_lookUps);
    storeFields(lookUp, choices, m_lookUps);
    storeFields(lookUp, manners, m_lookUps);
    storeFields(lookUp, link, m_lookUps);
    for (int line = 1; line <= m_lineCount; ++line)
        storeLine(line, lookUp.lines.at(static_cast<std::size_t>(line) - 1));
    m_lookUps.setValue(u"#ofwlu"_s, store::Value::whole(usedLines(lookUp.lines)));
    m_lookUps.update();
}

void LookUpRecords::storeLine(int line, const LookUpLine& from)
{
    m_lookUps.setValue(numbered("wlutype"_L1, line), store::Value::whole(static_cast<int>(from.type)));
    m_lookUps.setValue(numbered("codenumber"_L1, line), store::Value::text(from.code));
}

QVector<ListedItem> LookUpRecords::readItems() const
{
    QVector<ListedItem> items;
    for (store::Recordset lookUps = openItems(*m_database); !lookUps.atEnd(); lookUps.moveNext())
        items += itemOf(lookUps);
    return items;
}

std::optional<ListedItem> LookUpRecords::find(const QString& number) const
{
    store::Recordset lookUps = openItems(*m_database);
    const bool isFound = lookUps.seek(store::Seek::Equal, store::Value::text(number));
    return isFound ? std::optional(itemOf(lookUps)) : std::nullopt;
}

bool LookUpRecords::moveTo(const QString& number)
{
    return find(number) && m_lookUps.seek(store::Seek::Equal, store::Value::text(number));
}

bool LookUpRecords::next()
{
    m_lookUps.moveNext();
    if (!m_lookUps.atEnd())
        return true;
    m_lookUps.movePrevious();
    return false;
}

bool LookUpRecords::previous()
{
    m_lookUps.movePrevious();
    if (!m_lookUps.atBeginning())
        return true;
    m_lookUps.moveNext();
    return false;
}

} // namespace norvane::keys
