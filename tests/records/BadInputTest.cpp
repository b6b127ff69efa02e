// Lines that no register should send, for every file and every column of the catalogue: what they store, and
// where a line is refused.
#include "records/RegisterFiles.h"
#include "store/Catalogue.h"
#include "tests/records/Shop.h"

#include <map>
#include <set>

namespace norvane::records
{
namespace
{

using store::FieldDefinition;
using store::FieldType;
using test::Shop;

constexpr int pluFile = 67;

const FieldDefinition& fieldOf(const RegisterFile& file, const std::string& name)
{
    const auto& fields = store::catalogueTable(QLatin1String(file.table))->fields;
    return *std::find_if(fields.begin(), fields.end(), [&](const FieldDefinition& field) {
        return field.name.compare(QString::fromStdString(name), Qt::CaseInsensitive) == 0;
    });
}

/// The columns of a line, in the order in which they are read.
std::vector<Column> columnsRead(const ColumnSet& set)
{
    std::vector<Column> columns;
    std::copy_if(set.columns.begin(), set.columns.end(), std::back_inserter(columns),
                 [](const Column& column) {
                     const auto* number = std::get_if<NumberColumn>(&column);
                     return number == nullptr || !number->rereads;
                 });
    return columns;
}

/// A line with @p options in all option digits and something small in all other columns; @p number makes the
/// keys of PLUs differ.
QByteArrayList usualLine(const ColumnSet& set, const QByteArray& options, int number = 1)
{
    QByteArrayList line;
    for (const Column& column : columnsRead(set)) {
        const auto* asNumber = std::get_if<NumberColumn>(&column);
        const bool isKey = asNumber != nullptr && asNumber->field == "PLUNUMBER";
        const bool isOptions = std::holds_alternative<OptionsColumn>(column);
        line << (isOptions ? options : isKey ? test::plu(number) : "1");
    }
    return line;
}

/// Lines that are to store the same, one by one.
struct LinePairs {
    QByteArray odd;
    QByteArray plain;
    int count = 0;

    void add(const QByteArrayList& oddLine, const QByteArrayList& plainLine)
    {
        odd += oddLine.join(',') + "\r\n";
        plain += plainLine.join(',') + "\r\n";
        ++count;
    }
};

LinePairs linePairs(const ColumnSet& set)
{
    LinePairs pairs;
    const auto columns = static_cast<qsizetype>(columnsRead(set).size());
    for (qsizetype length = 0; length <= columns; ++length) {
        const QByteArrayList line = usualLine(set, "40", pairs.count + 1);
        pairs.add(line.first(length), line.first(length) + QByteArrayList(columns - length));
    }
    const QByteArrayList line = usualLine(set, "40", pairs.count + 1);
    pairs.add(line + QByteArrayList{"9", "", "zz"}, line);
    // Eight and nine are no sums of flags: neither sets any.
    pairs.add(usualLine(set, "89", pairs.count + 1), usualLine(set, "00", pairs.count + 1));
    return pairs;
}

/// What an import of lines with some numbers stored: record by record, then field by field.
using Rows = std::vector<std::map<std::string, std::string>>;

Rows rowsOf(Shop& shop, const RegisterFile& file, int lines, const QByteArray& text)
{
    if (file.upload == Upload::UpdatesRecords) {
        QByteArray plus;
        for (int number = 1; number <= lines; ++number)
            plus += test::plu(number) + "\r\n";
        shop.import(pluFile, plus);
    }
    shop.import(file.number, text);
    store::Database database(shop.values.databasePath);
    auto records = database.openTable(QLatin1String(file.table));
    Rows rows;
    for (qint64 left = records.recordCount(); left > 0; --left, records.moveNext()) {
        auto& row = rows.emplace_back();
        for (const auto& field : store::catalogueTable(QLatin1String(file.table))->fields) {
            if (field.name != QString::fromStdString(file.layout().lineNumberField))
                row[field.name.toStdString()] = records.value(field.name).toUtf8();
        }
    }
    return rows;
}

TEST(BadInputTest, StoresOddLinesLikePlainOnes)
{
    // What may be stored of an empty line: nothing that a register could take for a setting.
    const std::set<std::string> nothing{"", "0", "False", "00000000000000", "Prod Mix 1", "Recipe 1", "48"};
    // A first character and a plain number are taken as they are, whatever the digits.
    const std::set<std::string> anyDigit{"GLOBALENTRY", "stockisdeducted"};
    Shop shop;
    for (const RegisterFile& file : registerFiles()) {
        SCOPED_TRACE(file.importer);
        const LinePairs pairs = linePairs(file.layout().sets.front());
        Rows odd = rowsOf(shop, file, pairs.count, pairs.odd);
        Rows plain = rowsOf(shop, file, pairs.count, pairs.plain);
        if (file.upload == Upload::ReplacesTable) {
            for (const auto& [field, value] : odd.at(0))
                EXPECT_TRUE(field == "ID" || nothing.count(value) != 0) << field << ' ' << value;
        }
        for (const std::string& field : anyDigit)
            EXPECT_EQ(odd.back().erase(field), plain.back().erase(field));
        EXPECT_EQ(odd.size(), static_cast<std::size_t>(pairs.count));
        for (std::size_t line = 0; line < plain.size(); ++line)
            EXPECT_EQ(odd.at(line), plain[line]) << "line " << line + 1;
    }
}

struct Fault {
    QByteArray text;
    int failure = 0; ///< 0 when the column takes anything
};

constexpr int mismatch = 13;
constexpr int conversion = 3421;
constexpr int tooLong = 3163;

/// A letter where digits belong, or more text than the field has room for.
Fault fieldFault(const RegisterFile& file, const std::string& name)
{
    const FieldDefinition& field = fieldOf(file, name);
    if (field.type != FieldType::Text)
        return {"1x", conversion};
    const bool isOnlySought = file.upload == Upload::UpdatesRecords;
    return {QByteArray(field.size + 1, 'y'), isOnlySought ? 0 : tooLong};
}

Fault faultOf(const RegisterFile& file, const Column& column)
{
    const auto look = [&file]<typename Form>(const Form& form) -> Fault {
        if constexpr (std::is_same_v<Form, NumberColumn>) {
            return form.firstCharacter ? Fault{"1x"} : fieldFault(file, form.readField);
        } else if constexpr (std::is_same_v<Form, ScaledColumn>) {
            return {"1x", form.leading ? 0 : mismatch};
        } else if constexpr (std::is_same_v<Form, OptionsColumn>) {
            return form.numberField.empty() ? Fault{"4x", form.firstCharacter ? 0 : mismatch}
                                            : fieldFault(file, form.numberField);
        } else if constexpr (std::is_same_v<Form, HexByteColumn>) {
            return {"1x", mismatch};
        } else if constexpr (std::is_same_v<Form, SymbolColumn> || std::is_same_v<Form, SpareColumn>) {
            return {"xx"};
        } else {
            return fieldFault(file, form.field);
        }
    };
    return std::visit(look, column);
}

const struct {
    const char* before; ///< the columns in front of it
    QByteArray column;
    int failure;
    QByteArray quoted;
} longColumns[] = {
    {",", QByteArray(100, '\xE9'), tooLong, QByteArrayLiteral("\xC3\xA9").repeated(60)},
    {",,", QByteArray(100, 'x'), conversion, QByteArray(60, 'x')},
    {",,,,,,,", QByteArray(100, 'x'), mismatch, QByteArray(60, 'x')},
    {",,,,,,,,,,,,", QByteArray(100, 'x'), mismatch, QByteArray(60, 'x')},
    {",,", QByteArray(10'000'000, '7'), tooLong, QByteArray(60, '7')},
};

TEST(BadInputTest, QuotesNoMoreOfALongColumnThanABoxCanShow)
{
    Shop shop;
    for (const auto& [before, column, number, quoted] : longColumns) {
        const QByteArray text = before + column;
        const auto told = norvane::test::failureTextOf([&] { shop.import(pluFile, text); }).toUtf8();
        EXPECT_TRUE(told.startsWith(QByteArray::number(number)) && told.contains('"' + quoted + "...\""))
            << told.left(300).toStdString();
    }
}

TEST(BadInputTest, NamesEachColumnThatItRefuses)
{
    Shop shop;
    for (const RegisterFile& file : registerFiles()) {
        shop.import(pluFile, test::plu(1));
        for (const ColumnSet& set : file.layout().sets) {
            const int line = set.records.empty() ? 1 : set.records.front();
            const auto columns = columnsRead(set);
            for (std::size_t column = 0; column < columns.size(); ++column) {
                const Fault fault = faultOf(file, columns[column]);
                QByteArrayList bad = usualLine(set, "40");
                bad[static_cast<qsizetype>(column)] = fault.text;
                const auto told = norvane::test::failureTextOf(
                    [&] { shop.import(file.number, QByteArray("\r\n").repeated(line - 1) + bad.join(',')); });
                const auto refused = QStringLiteral("%1 %2.txt, line %3, column %4")
                                         .arg(fault.failure)
                                         .arg(file.number)
                                         .arg(line)
                                         .arg(column + 1);
                EXPECT_EQ(told.section(u':', 0, 0), fault.failure == 0 ? QString() : refused)
                    << file.importer;
            }
        }
    }
}

} // namespace
} // namespace norvane::records
