// Layout files with mistakes, and the messages about them.
#include "tests/reports/ReportShop.h"
#include "tests/support/RowName.h"

namespace norvane::reports::test
{
namespace
{

constexpr const char* good = "[Report]\r\nTitle=PLU\r\nTable=PLUSALES\r\nLines={ID}\r\n"
                             "[Join1]\r\nFind={PLUDATA.PLUNUMBER}\r\nBy={ID}\r\n"
                             "[Column1]\r\nHeading=PLU\r\nFormat=Digits\r\nValue={ID}\r\nWidth=20\r\n"
                             "[Column2]\r\nFormat=Money\r\nValue={VALUE1}\r\nWidth=20\r\nTotal=YES\r\n"
                             "[Group]\r\nBy={PLUDATA.GROUPNO}\r\nHeading=Group {PLUDATA.GROUPNO}\r\n"
                             "[Sort]\r\nKey1={ID} by value\r\n"
                             "[Link]\r\nReport=days.rpt\r\nField={ID}\r\n"
                             "[Chart1]\r\nKind=Shares\r\nTitle=Shares\r\nFrom=Groups\r\nValue={VALUE1}\r\n";

struct Mistake {
    const char* name;
    const char* right;
    const char* wrong;
    const char* message;
};

const Mistake mistakes[] = {
    {"unknown_table", "Table=PLUSALES", "Table=SALES", "section [Report], key Table: expected a table"},
    {"missing_table", "Table=PLUSALES\r\n", "", "section [Report], key Table: it is missing"},
    {"unknown_key", "Table=PLUSALES", "Tabel=PLUSALES", "section [Report], key Tabel: there is no such key"},
    {"field_of_another_table_in_lines", "Lines={ID}", "Lines={PLUDATA.PLUNUMBER}",
     "section [Report], key Lines: expected "},
    {"period_in_a_condition", "Lines={ID}", "Lines={ID}\r\nWhere={SALESDATE} in monthtodate",
     "section [Report], key Where: column 16: a range"},
    {"unknown_section", "[Join1]", "[Joint1]", "section [Joint1]: Report, Join1"},
    {"unknown_field", "By={ID}", "By={PROMOS}",
     "section [Join1], key By: column 1: there is no field {PROMOS}"},
    {"section_left_out", "[Column2]", "[Column3]",
     "section [Column3]: there is no section [Column2] before it"},
    {"unknown_format", "Format=Money", "Format=0.0.0", "section [Column2], key Format: expected "},
    {"formula_that_breaks_off", "Value={VALUE1}\r\nW", "Value={VALUE1} +\r\nW",
     "section [Column2], key Value: column 11: a field"},
    {"day_in_a_sum", "Value={VALUE1}\r\nW", "Value={SALESDATE}\r\nW",
     "key Value: column 1: {PLUSALES.SALESDATE} is not the same"},
    {"table_that_is_not_read", "Value={VALUE1}\r\nW", "Value={GROUPS.GROUPNO}\r\nW",
     "column 1: the report does not read table GROUPS"},
    {"range_to_another_field", "Value={VALUE1}\r\nW", "Value=sum({COUNT2} to {VALUE5})\r\nW",
     "column 17: a field numbered higher"},
    {"value_too_long", "Value={VALUE1}\r\nW",
     "Value={COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + "
     "{COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1}\r\nW",
     "more than 144 characters"},
    {"width_in_words", "Width=20\r\nTotal=YES", "Width=wide\r\nTotal=YES",
     "section [Column2], key Width: expected millimetres"},
    {"total_of_digits", "Digits\r\nValue={ID}\r\nWidth=20", "Digits\r\nValue={ID}\r\nWidth=20\r\nTotal=YES",
     "section [Column1], key Total"},
    {"open_brace", "Heading=Group {PLUDATA.GROUPNO}", "Heading=Group {PLUDATA.GROUPNO",
     "section [Group], key Heading: column 7"},
    {"order_by_a_table_that_is_not_read", "Key1={ID} by value", "Key1={GROUPS.GROUPNO}",
     "key Key1: column 1: the report does not read table GROUPS"},
    {"too_many_parts_of_a_value", "Value={VALUE1}\r\nW", "Value={VALUE1}\r\nValue41=x\r\nW",
     "key Value41: there is no such key; expected Heading, Format, Words, Value, Class, Missing, Width, "
     "Align, "
     "Total, Compare, Show, Value2 to Value40"},
    {"unknown_order", "Key1={ID} by value", "Key1={ID} upwards",
     "section [Sort], key Key1: expected a field"},
    {"link_by_a_sum", "Field={ID}", "Field={VALUE1}", "section [Link], key Field: expected a field that"},
    {"link_of_groups_alone_by_a_line", "Heading=Group {PLUDATA.GROUPNO}",
     "Heading=Group {PLUDATA.GROUPNO}\r\nLines=NO", "section [Link], key Field: expected a field that"},
    {"link_out_of_the_folder", "Report=days.rpt", "Report=../days.rpt",
     "section [Link], key Report: expected the name of a report file"},
    {"unknown_kind_of_chart", "Kind=Shares", "Kind=Pie",
     "section [Chart1], key Kind: expected Ranking, Course or Shares"},
    {"chart_without_labels", "Shares\r\nFrom=Groups", "Shares\r\nFrom=Lines",
     "section [Chart1], key Label: it is missing"},
};

class LayoutMistake : public testing::TestWithParam<Mistake>
{
};

TEST_P(LayoutMistake, IsReportedWithFileSectionAndKey)
{
    const auto& [name, right, wrong, message] = GetParam();
    const ReportShop shop;
    const QString path = shop.folder().path("own.rpt");
    shop.folder().write("own.rpt", good);
    EXPECT_EQ(errorOf(shop.request(path)), "");
    ASSERT_TRUE(QByteArray(good).contains(right));
    shop.folder().write("own.rpt", QByteArray(good).replace(right, wrong));
    const std::string error = errorOf(shop.request(path));
    EXPECT_NE(error.find(message), std::string::npos) << error;
    EXPECT_NE(error.find("own.rpt"), std::string::npos) << error;
}

INSTANTIATE_TEST_SUITE_P(Layouts, LayoutMistake, testing::ValuesIn(mistakes),
                         norvane::test::rowName<Mistake>);

TEST(Layout, AFileWithoutALayoutIsReported)
{
    const ReportShop shop;
    shop.folder().write("empty.rpt", "");
    shop.folder().write("binary.rpt", QByteArray("\0\x01[\xFF]\r\n=\0", 9).repeated(500));
    for (const char* const name : {"missing.rpt", "empty.rpt", "binary.rpt"}) {
        const std::string error = errorOf(shop.request(shop.folder().path(name)));
        EXPECT_NE(error.find(name), std::string::npos) << error;
    }
    shop.folder().write("Own.rpt", good);
    EXPECT_EQ(errorOf(shop.request(shop.folder().path("OWN.RPT"))), "");
}

} // namespace
} // namespace norvane::reports::test
