// Layout files with mistakes, and the messages about them.
#include "tests/reports/ReportShop.h"

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
                             "[Chart1]\r\nKind=Shares\r\nTitle=Shares\r\nFrom=Groups\r\nValue={VALUE1}\r\n";

struct Mistake {
    const char* right;
    const char* wrong;
    const char* told;
};

const Mistake mistakes[] = {
    {"Table=PLUSALES", "Table=SALES", "section [Report], key Table: expected is a table"},
    {"Table=PLUSALES\r\n", "", "section [Report], key Table: it is missing"},
    {"Table=PLUSALES", "Tabel=PLUSALES", "section [Report], key Tabel: there is no such key"},
    {"Lines={ID}", "Lines={PLUDATA.PLUNUMBER}", "section [Report], key Lines: expected is"},
    {"Lines={ID}", "Lines={ID}\r\nWhere={SALESDATE} in monthtodate",
     "section [Report], key Where: column 16: a range"},
    {"[Join1]", "[Joint1]", "section [Joint1]: Report, Join1"},
    {"By={ID}", "By={PROMOS}", "section [Join1], key By: column 1: there is no field {PROMOS}"},
    {"[Column2]", "[Column3]", "section [Column3]: there is no section [Column2] before it"},
    {"Format=Money", "Format=0.0.0", "section [Column2], key Format: expected is"},
    {"Value={VALUE1}\r\nW", "Value={VALUE1} +\r\nW", "section [Column2], key Value: column 11: a field"},
    {"Value={VALUE1}\r\nW", "Value={SALESDATE}\r\nW",
     "key Value: column 1: {PLUSALES.SALESDATE} is not the same"},
    {"Value={VALUE1}\r\nW", "Value={GROUPS.GROUPNO}\r\nW", "column 1: the report does not read table GROUPS"},
    {"Value={VALUE1}\r\nW", "Value=sum({COUNT2} to {VALUE5})\r\nW", "column 17: a field numbered higher"},
    {"Value={VALUE1}\r\nW",
     "Value={COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + "
     "{COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1} + {COUNT1}\r\nW",
     "more than 144 characters"},
    {"Width=20\r\nTotal=YES", "Width=wide\r\nTotal=YES",
     "section [Column2], key Width: expected is millimetres"},
    {"Digits\r\nValue={ID}\r\nWidth=20", "Digits\r\nValue={ID}\r\nWidth=20\r\nTotal=YES",
     "section [Column1], key Total"},
    {"Heading=Group {PLUDATA.GROUPNO}", "Heading=Group {PLUDATA.GROUPNO",
     "section [Group], key Heading: column 7"},
    {"Key1={ID} by value", "Key1={GROUPS.GROUPNO}",
     "key Key1: column 1: the report does not read table GROUPS"},
    {"Value={VALUE1}\r\nW", "Value={VALUE1}\r\nValue41=x\r\nW", "key Value41: there is no such key"},
    {"Key1={ID} by value", "Key1={ID} upwards", "section [Sort], key Key1: expected is a field"},
    {"Kind=Shares", "Kind=Pie", "section [Chart1], key Kind: expected is Ranking, Course or Shares"},
    {"Shares\r\nFrom=Groups", "Shares\r\nFrom=Lines", "section [Chart1], key Label: it is missing"},
};

TEST(Layout, AMistakeIsToldWithItsFileSectionAndKey)
{
    const ReportShop shop;
    const QString path = shop.folder().path("own.rpt");
    shop.folder().write("own.rpt", good);
    EXPECT_EQ(errorOf(shop.request(path)), "");
    for (const auto& [right, wrong, told] : mistakes) {
        ASSERT_TRUE(QByteArray(good).contains(right)) << right;
        shop.folder().write("own.rpt", QByteArray(good).replace(right, wrong));
        const std::string error = errorOf(shop.request(path));
        EXPECT_NE(error.find(told), std::string::npos) << wrong << ": " << error;
        EXPECT_NE(error.find("own.rpt"), std::string::npos) << error;
    }
}

TEST(Layout, AFileThatIsNoneIsTold)
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
