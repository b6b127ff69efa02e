// Former databases of both formats become ours, value by value.
#include "tests/former/FormerShop.h"
#include "tests/support/FormerSample.h"

#include <QDateTime>

namespace norvane::former::test
{
namespace
{

class BothFormats : public testing::TestWithParam<FormerWriter::Format>
{
};
INSTANTIATE_TEST_SUITE_P(Formats, BothFormats,
                         testing::Values(FormerWriter::Format::Of1997, FormerWriter::Format::Of2000));

TEST_P(BothFormats, EveryTypeKeepsItsValue)
{
    FormerWriter writer(GetParam());
    writer.add(norvane::test::plusOfEveryType());
    const FormerShop shop(writer.content());
    const Examination found = shop.examined();
    EXPECT_EQ(found.format, GetParam() == FormerWriter::Format::Of1997 ? u"1997"_s : u"2000"_s);
    EXPECT_EQ(lossesInWords(found), QStringList());
    EXPECT_EQ(shop.convert().records, 2);
    EXPECT_EQ(shop.rows(u"select plunumber, description, groupno, plustatus, wlunumber, inactive, preset, "
                        "stocklink, price1, price2, price3, price4 from pludata"_s),
              "000000000000001001|Café Crème ß|200|-300|70000|True|False|123456789012345|-1234.5678|"
              "-123456789012345.678|0.1| 1.5 "
              "000000000000001002|null|null|null|null|False|True|null|null|null|null|null");
}

TEST_P(BothFormats, RecordsOfManyPagesKeepTheirOrderAndDeletedOnesStayDeleted)
{
    QVector<QVariantList> rows;
    for (int i = 1; i <= 400; ++i)
        rows.append({u"%1"_s.arg(i, 18, 10, QChar(u'0')), u"Article %1"_s.arg(i), QString(20, u'9')});
    FormerRows table = plus(rows);
    // Long records: the offsets of the old format then need more than one byte.
    for (int i = 2; i <= 5; ++i) {
        table.columns.append({u"Europrice%1"_s.arg(i), FormerType::Text, 255});
        for (QVariantList& row : table.rows)
            row.append(i == 3 ? QVariant() : QVariant(QString(qsizetype{i} * 30, u'x')));
    }
    table.deleted = {0, 7, 399};
    FormerWriter writer(GetParam());
    writer.add(table);
    const FormerShop shop(writer.content());
    ASSERT_GT(writer.dataPages(0).size(), 2);
    EXPECT_EQ(shop.examined().shortTables.size(), 0);
    EXPECT_EQ(shop.convert().records, 397);
    EXPECT_EQ(shop.rows(u"select count(*), min(plunumber), max(plunumber) from pludata"_s),
              "397|000000000000000002|000000000000000399");
    EXPECT_EQ(
        shop.rows(u"select europrice2, europrice3 from pludata where plunumber = '000000000000000300'"_s),
        std::string(20, 'x') + "|null");
}

TEST(Conversion, ADefinitionMayRunOverSeveralPages)
{
    FormerRows table{u"WLU"_s, {{u"WLUNUMBER"_s, FormerType::Long}}, {{1}}};
    for (int i = 1; i <= 250; ++i) {
        table.columns.append({u"codenumber%1"_s.arg(i), FormerType::Long});
        table.rows[0].append(i);
    }
    const FormerShop shop(databaseWith(table));
    EXPECT_EQ(shop.examined().unknownFields.size(), 201);
    (void)shop.convert();
    EXPECT_EQ(shop.rows(u"select codenumber1, codenumber50 from wlu"_s), "1|50");
}

TEST(Conversion, SalesComeWithTheirDays)
{
    const auto sale = [](int id, QDate day, QTime time = {}) {
        return QVariantList{id, QDateTime(day, time), 2.0, 5.6};
    };
    const QDate day(2026, 11, 24);
    const FormerShop shop(databaseWith({u"MIXSALES"_s,
                                        {{u"ID"_s, FormerType::Long},
                                         {u"salesdate"_s, FormerType::Date},
                                         {u"COUNT1"_s, FormerType::Double},
                                         {u"AMOUNT1"_s, FormerType::Double}},
                                        {sale(1, QDate(1899, 1, 2)), sale(2, day), sale(3, QDate(2101, 3, 1)),
                                         sale(4, day, QTime(18, 30))}}));
    const Examination found = shop.examined();
    EXPECT_EQ(found.firstSales, QDate(1899, 1, 2));
    EXPECT_EQ(found.lastSales, QDate(2101, 3, 1));
    ASSERT_EQ(found.unfitValues.size(), 1);
    EXPECT_EQ(found.unfitValues[0].value, u"2026-11-24T18:30:00"_s);
    (void)shop.convert();
    EXPECT_EQ(shop.rows(u"select id, salesdate from mixsales"_s),
              "1|02/01/1899 2|24/11/2026 3|01/03/2101 4|24/11/2026");
}

TEST(Conversion, WhatAFieldCannotHoldIsNamedAndCut)
{
    FormerRows table = plus({{u"000000000000001001"_s, u"A name of more than sixteen"_s, u"1"_s, 1.5, 3e9},
                             {u"000000000000001002"_s, u"Sixteen letters!"_s, u"2"_s, 1e17, 5.0}});
    table.columns.append({u"STOCKLINK"_s, FormerType::Double});
    table.columns.append({u"GROUPNO"_s, FormerType::Double});
    FormerWriter writer;
    writer.add(table);
    const FormerShop shop(writer.content());
    QStringList words;
    for (const UnfitValue& value : shop.examined().unfitValues)
        words << u"%1 %2 %3>%4"_s.arg(value.record).arg(value.field, value.value, value.kept);
    EXPECT_EQ(words.join(u", "_s).toStdString(),
              "1 DESCRIPTION A name of more than sixteen>A name of more t, "
              "1 GROUPNO 3e+09>, 1 STOCKLINK 1.5>, 2 STOCKLINK 1e+17>");
    EXPECT_EQ(shop.convert().records, 2);
    EXPECT_EQ(shop.rows(u"select description, stocklink, groupno from pludata"_s),
              "A name of more t|null|null Sixteen letters!|null|5");
}

TEST(Conversion, TheFirstOfTwoRecordsWithOneKeyIsKept)
{
    const FormerShop shop([] {
        FormerWriter writer;
        writer.add(plus(
            {{u"000000000000001001"_s, u"Tea"_s, u"1"_s}, {u"000000000000001001"_s, u"Mate"_s, u"2"_s}}));
        return writer.content();
    }());
    const Converted done = shop.convert();
    EXPECT_EQ(done.leftOut, QStringList{u"PLUDATA, record 2: 000000000000001001"_s});
    EXPECT_EQ(shop.rows(u"select description from pludata"_s), "Tea");
    EXPECT_TRUE(
        shop.folder().read("norvane-conversion.txt").contains("PLUDATA, record 2: 000000000000001001"));
}

TEST(Conversion, TablesAndFieldsOfOthersAreListedAndTheOldFileIsKept)
{
    FormerWriter writer;
    FormerRows table = plus();
    table.columns.append({u"notes [old.one]"_s, FormerType::Memo});
    table.rows[0].append(u"by hand"_s);
    writer.add(table);
    writer.add(plus({{u"2"_s, u"again, in other case"_s, u"1"_s}}));
    writer.add({u"Paste Errors"_s, {{u"Field0"_s, FormerType::Text, 255}}, {{u"x"_s}}});
    const QByteArray content = writer.content();
    const FormerShop shop(content);
    shop.folder().write("velmar.former.mdb", "of an earlier one");
    const Examination found = shop.examined();
    EXPECT_EQ(found.unknownTables, (QStringList{u"PluData"_s, u"Paste Errors"_s}));
    EXPECT_EQ(found.unknownFields, QStringList{u"PLUDATA.notes [old.one]"_s});
    EXPECT_EQ(shop.convert().keptAs, u"velmar.former-2.mdb"_s);
    EXPECT_EQ(shop.folder().read("velmar.former-2.mdb"), content);
    EXPECT_EQ(shop.folder().read("velmar.former.mdb"), "of an earlier one");
    EXPECT_EQ(shop.rows(u"select description from pludata"_s), "Tea");
}

FormerProblem problemOfConversion(const FormerShop& shop, const Examination& found,
                                  const ConversionProgress& progress)
{
    try {
        (void)convertDatabase(shop.folder().path(), QStringLiteral(READER_FOLDER), found, progress);
    } catch (const FormerError& error) {
        return error.problem();
    }
    ADD_FAILURE() << "it was converted";
    return {};
}

TEST(Conversion, CancelledOrWithAChangedFileItLeavesTheFolderAsItWas)
{
    const FormerShop shop(databaseWith(plus()));
    const Examination found = shop.examined();
    EXPECT_EQ(problemOfConversion(shop, found, [](qint64) { return false; }), FormerProblem::Cancelled);
    // The former program stored a price: as many records, at a later time.
    const QByteArray changed = databaseWith(plus({{u"000000000000001001"_s, u"Tea"_s, u"1.3"_s}}));
    shop.folder().write("velmar.mdb", changed);
    QFile file(shop.folder().path("velmar.mdb"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(found.fileTime.addSecs(5), QFileDevice::FileModificationTime);
    file.close();
    EXPECT_EQ(problemOfConversion(shop, found, {}), FormerProblem::Changed);
    EXPECT_EQ(shop.folder().names(), QStringList{u"velmar.mdb"_s});
    EXPECT_EQ(shop.folder().read("velmar.mdb"), changed);
}

} // namespace
} // namespace norvane::former::test
