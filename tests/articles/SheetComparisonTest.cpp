// What keeps a file of PLUs from being imported, and what cancelling leaves.
#include "articles/SheetUpdate.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Recordset.h"
#include "tests/platform/TestFolder.h"

namespace norvane::articles
{
namespace
{

using test::TestFolder;

/// The PLU 900000000000000000 and the group 7.
void fill(store::Database& database)
{
    auto groups = database.openTable(u"groups"_s);
    groups.addNew();
    groups.setValue(u"groupno"_s, store::Value::whole(7));
    groups.update();
    auto plus = database.openTable(u"pludata"_s);
    plus.addNew();
    plus.setValue(u"plunumber"_s, store::Value::text(u"900000000000000000"_s));
    plus.setValue(u"price1"_s, store::Value::text(u"1.5"_s));
    plus.update();
}

class PluShop
{
public:
    PluShop()
    {
        store::Database::create(m_folder.path("velmar.mdb"), store::catalogue());
        m_database.emplace(m_folder.path("velmar.mdb"));
        fill(*m_database);
    }
    [[nodiscard]] store::Database& database() { return *m_database; }
    [[nodiscard]] qint64 pluCount() { return m_database->openTable(u"pludata"_s).recordCount(); }

private:
    TestFolder m_folder;
    std::optional<store::Database> m_database;
};

struct Misfit {
    const char* name;
    QByteArray content;
    const char* mistakes; ///< a line for each
};
void PrintTo(const Misfit& misfit, std::ostream* out)
{
    *out << misfit.name;
}

class MistakenFile : public testing::TestWithParam<Misfit>
{
};

TEST_P(MistakenFile, NamesLineColumnAndReason)
{
    PluShop shop;
    const TableSheet sheet = pluSheet();
    const SheetComparison comparison(shop.database(), sheet, GetParam().content);
    std::string mistakes;
    for (const auto& [line, column, reason, place] : comparison.mistakes().first())
        mistakes += std::to_string(line) + '|' + column.toStdString() + '|' + reason.toStdString() + '\n';
    EXPECT_EQ(mistakes, std::string(GetParam().mistakes) + '\n');
}

const QByteArray prices = "Number,Price 1\n";
const QByteArray texts = "Number,Description\n";
const Misfit misfits[] = {
    {"empty", "", "1||there is no line of headings with a column \"Number\""},
    {"no_number", "Price 1\n2\n", "1||there is no line of headings with a column \"Number\""},
    {"unknown_column", "Number,Prize\n", "1|Prize|there is no such column"},
    {"column_twice", "Number,Number\n", "1|Number|the column is there twice"},
    {"too_many_cells", prices + "1,2\n2,3,4\n", "3||3 columns, but 2 headings"},
    {"number_twice", prices + "1,2\n\n01,3\n", "4|Number|line 2 already has this number"},
    {"long_number", prices + "1234567890123456789,1\n",
     "2|Number|\"1234567890123456789\" is not a PLU number of up to 18 digits"},
    {"number_in_exponents", prices + "9E+17,1\n,2\n",
     "2|Number|\"9E+17\" is not a PLU number of up to 18 digits\n"
     "3|Number|\"\" is not a PLU number of up to 18 digits"},
    {"letters_in_price", prices + "1,2x\n", "2|Price 1|\"2x\" is not a price"},
    {"two_signs", prices + "1,\"1.234,50\"\n", "2|Price 1|\"1.234,50\" is not a price"},
    {"comma_or_thousands", prices + "1,\"1,000\"\n",
     "2|Price 1|\"1,000\" may mean 1.00 or 1000.00; write 1.00 or 1000.00"},
    {"point_or_thousands", prices + "900000000000000000,1.500\n",
     "2|Price 1|\"1.500\" may mean 1.50 or 1500.00; write 1.50 or 1500.00"},
    {"commas_elsewhere", "Number;Price 1;Price 2\n1;2.500;1,5\n",
     "2|Price 1|\"2.500\" may mean 2.50 or 2500.00; write 2.50 or 2500.00"},
    {"both_elsewhere", prices + "1,2.500\n2,2.5\n3,\"2,5\"\n",
     "2|Price 1|\"2.500\" may mean 2.50 or 2500.00; write 2.50 or 2500.00"},
    {"group_or_thousands", "Number,Group\n1,7.000\n",
     "2|Group|\"7.000\" may mean 7 or 7000; write 7 or 7000"},
    {"four_places", prices + "1,1.0051\n", "2|Price 1|a price has at most two decimal places"},
    {"high_price", prices + "1,1000000\n", "2|Price 1|a price is from 0 to 999999.99"},
    {"negative_price", prices + "1,-1\n", "2|Price 1|a price is from 0 to 999999.99"},
    {"long_text", texts + "1,12345678901234567\n",
     "2|Description|\"12345678901234567\" is longer than 16 characters"},
    {"comma_in_text", "Number;Description\n1;Cola 0,2 l\n",
     "2|Description|\"Cola 0,2 l\" has a comma, which would split it in the file for the registers"},
    {"foreign_letter", texts + "1,\xE2\x84\xA6\n",
     "2|Description|\"\xE2\x84\xA6\" has characters that a register does not know"},
    {"line_end_in_text", texts + "1,\"a\nb\"\n2\n",
     "2|Description|\"a b\" has a line end or another control character\n4||1 columns, but 2 headings"},
    {"open_quote", texts + "1,\"a\n", "2||a quote is not closed"},
    {"not_utf8", texts + "1,a\n2,\xFC\n", "3||the file is not UTF-8; save it as \"CSV UTF-8\""},
    {"unknown_keys", "Number,Group,Status\n1,7,1\n2,8,x\n",
     "2|Status|there is no status 1\n3|Group|there is no group 8\n3|Status|\"x\" is not a number"},
};
INSTANTIATE_TEST_SUITE_P(Files, MistakenFile, testing::ValuesIn(misfits),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SheetUpdate, StoresNothingOnceCancelled)
{
    PluShop shop;
    const QByteArray content = prices + "1,2\n2,3\n900000000000000000,4\n";
    int asked = 0;
    const KeepGoing once = [&asked] {
        return asked++ == 0;
    };
    const TableSheet sheet = pluSheet();
    EXPECT_EQ(test::failureOf([&] { SheetComparison(shop.database(), sheet, content, {}, once); }), 18);

    const SheetComparison comparison(shop.database(), sheet, content);
    EXPECT_EQ(comparison.changeCount(), 3U);
    EXPECT_EQ(comparison.newCount(), 2U);
    asked = 0;
    EXPECT_EQ(test::failureOf([&] { applySheetChanges(shop.database(), comparison, once); }), 18);
    EXPECT_EQ(shop.pluCount(), 1);
    applySheetChanges(shop.database(), comparison);
    EXPECT_EQ(shop.pluCount(), 3);
}

} // namespace
} // namespace norvane::articles
