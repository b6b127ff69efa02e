// Every column of every register file: as wide as the register reads it, and no option beside another.
#include "records/RegisterFiles.h"
#include "tests/records/Shop.h"
#include "tools/bank/Layout.h"

#include <algorithm>
#include <map>

namespace norvane::records
{
namespace
{

using namespace Qt::Literals::StringLiterals;
using store::Value, test::emptyRecord, test::Shop;

TEST(ColumnsTest, AreAsWideAsTheRegisterReadsThem)
{
    for (const RegisterFile& file : registerFiles()) {
        if (!hasExporter(file.number))
            continue;
        Shop shop;
        shop.folder.write("mem.dat", QByteArray(77, 0));
        shop.add(file.table, emptyRecord(file.number, 1));
        const QByteArrayList sent = shop.exported(file.number).chopped(2).split(',');
        const bank::Columns read = bank::columnsOf(file.number, bank::Model::Velmaro);
        ASSERT_EQ(sent.size(), read.size()) << file.number;
        for (qsizetype i = 0; i < sent.size(); ++i) {
            const auto& [form, width, values] = read[static_cast<std::size_t>(i)];
            if (form == bank::Form::Bare) {
                EXPECT_TRUE(values.contains(sent[i])) << file.number << ' ' << i;
            } else {
                EXPECT_EQ(sent[i].size(), width) << file.number << ' ' << i;
            }
        }
    }
}

/// Numbers that are stored as texts, and the unit, of which a register has four characters only.
bool isText(const store::FieldDefinition& field)
{
    static const QStringList others{u"PRICE"_s, u"EuroPrice"_s, u"dallaskey"_s, u"unitDESCRIPTION"_s};
    return field.type == store::FieldType::Text &&
           std::ranges::none_of(others, [&](const QString& other) { return field.name.startsWith(other); });
}

TEST(ColumnsTest, SendTextsAsLongAsTheirFields)
{
    for (const RegisterFile& file : registerFiles()) {
        if (!hasExporter(file.number) || file.upload != Upload::ReplacesTable)
            continue;
        Shop shop;
        shop.folder.write("mem.dat", QByteArray(77, 0));
        QByteArrayList names;
        QByteArrayList texts;
        auto record = emptyRecord(file.number, 1);
        for (const auto& field : store::catalogueTable(QLatin1String(file.table))->fields) {
            if (!isText(field))
                continue;
            names << field.name.toLatin1();
            texts << QByteArray(field.size, static_cast<char>('a' + texts.size()));
            record.emplace_back(names.back().constData(), Value::text(texts.back().toStdString()));
        }
        shop.add(file.table, record);
        const QByteArrayList columns = shop.exported(file.number).chopped(2).split(',');
        for (const QByteArray& text : texts)
            EXPECT_TRUE(columns.contains(text)) << file.number << ' ' << text.data();
    }
}

/// A file whose records have one option set each, and the last none.
class OptionFile
{
public:
    explicit OptionFile(const RegisterFile& registerFile) : file(registerFile)
    {
        shop.folder.write("mem.dat", QByteArray(77, 0));
        int number = 0;
        for (const auto& field : store::catalogueTable(QLatin1String(file.table))->fields) {
            if (field.type != store::FieldType::YesNo)
                continue;
            options << field.name.toLatin1();
            auto record = emptyRecord(file.number, ++number);
            record.emplace_back(options.back().constData(), Value::yesNo(true));
            shop.add(file.table, record);
        }
        shop.add(file.table, emptyRecord(file.number, ++number));
    }

    /// Sends all and fetches it again. @return for each option the digits that its record has more.
    QByteArrayList travel()
    {
        const QByteArray lines = shop.exported(file.number);
        shop.import(file.number, lines);
        const QByteArrayList records = QByteArray(lines).replace('\r', "").chopped(1).split('\n');
        QByteArrayList digits;
        for (qsizetype i = 0; i < options.size(); ++i)
            digits << difference(records[i].split(','), records.back().split(','));
        return digits;
    }
    /// The options in whose records @p option is set.
    [[nodiscard]] QByteArray setBy(const QByteArray& option) const
    {
        const auto states = QString::fromStdString(shop.column(file.table, option.constData())).split(u'|');
        QByteArrayList set;
        for (qsizetype i = 0; i < options.size(); ++i) {
            if (states[i] == "True"_L1)
                set << options[i];
        }
        return set.join(' ');
    }

    QByteArrayList options;

private:
    static QByteArray difference(const QByteArrayList& columns, const QByteArrayList& without)
    {
        QByteArray digits;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const int more = columns[i].toInt() - without[i].toInt();
            if (columns[i].size() <= 2 && more != 0)
                digits += QByteArray::number(more).replace('0', "");
        }
        return digits;
    }

    const RegisterFile& file;
    Shop shop;
};

struct Travel {
    QByteArrayList digits; ///< one of these is sent
    QByteArray setBy;      ///< by which options it is set afterwards
};

/// Options that are sent and read otherwise than all others.
const std::map<QByteArray, Travel> otherTravels{
    {"STARTCURSOR", {{"2"}, ""}},
    {"TRACK4HOLDS3", {{"1"}, ""}},
    {"DISABLEGCONRECEIPT", {{""}, ""}},
    {"RECEIPTONCLOCKINGIN/OUT", {{"41"}, "RECEIPTONCLOCKINGIN/OUT"}},
    {"CONFIRMBEFOREZRESET", {{"1"}, "OMITTAXTOTALS"}},
    {"NEGATIVESALESTOEJ", {{"4"}, "NEGATIVESALETODETAIL"}},
    {"NEGATIVESALETODETAIL", {{"4"}, ""}},
    {"EJADDPOINT", {{"1"}, "EJREMOVECARD"}},
    {"EJREMOVECARD", {{"1"}, ""}},
    {"AUTOGRILL", {{"4"}, ""}}, // needs the grill's number
};
/// Always set in what is sent.
const QByteArray alwaysSet = "PRINTRECEIPTAFTERINTERRUPT";

TEST(ColumnsTest, HoldEachOptionInADigitOfItsOwn)
{
    for (const RegisterFile& each : registerFiles()) {
        if (!hasExporter(each.number) || each.upload != Upload::ReplacesTable)
            continue;
        OptionFile file(each);
        const QByteArrayList digits = file.travel();
        for (qsizetype i = 0; i < digits.size(); ++i) {
            const QByteArray& option = file.options[i];
            const auto other = otherTravels.find(option);
            const Travel travel =
                other == otherTravels.end() ? Travel{{"1", "2", "4"}, option} : other->second;
            if (option == alwaysSet)
                continue;
            EXPECT_TRUE(travel.digits.contains(digits[i]))
                << option.toStdString() << ' ' << digits[i].toStdString();
            EXPECT_EQ(file.setBy(option).toStdString(), travel.setBy.toStdString()) << option.toStdString();
        }
    }
}

} // namespace
} // namespace norvane::records
