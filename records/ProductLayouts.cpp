// The records of what a shop sells: PLUs and points, PLU status groups, groups, product mix, mix and match.
#include "records/RecordLayouts.h"

namespace norvane::records
{

// clang-format off

/// File 1.
const RecordLayout& groupLayout()
{
    static const RecordLayout layout{"GROUPNO", {
        text(12, "DESCRIPTION"),
        options({{4, "addtogrouptotal"}}),
        options({{4, "tax1"}, {2, "tax2"}, {1, "tax3"}}, {{4, "tax4"}, {2, "tax5"}, {1, "tax6"}}),
    }};
    return layout;
}

/// File 58. Reports name a mix group by its text, so each must have one.
const RecordLayout& productMixLayout()
{
    static const RecordLayout layout{"PRODUCTNO", {
        text(12, "DESCRIPTION").namedByDefault("Prod Mix "),
        text(4, "unitDESCRIPTION"),
        number(4, "units"),
    }};
    return layout;
}

/// File 65. The grill number of column 12 is read into the grill flag of column 9; it is only sent.
const RecordLayout& pluStatusLayout()
{
    static const RecordLayout layout{"STATUSNO", {
        text(12, "DESCRIPTION"),
        options({{4, "tax1"}, {2, "tax2"}, {1, "tax3"}}, {{4, "tax4"}, {2, "tax5"}, {1, "tax6"}}),
        options({{4, "AREPLUSACTIVE"}, {2, "SINGLEITEM"}, {1, "CONDIMENT"}}, {{4, "COMPULSORYCONDIMENT"}, {2, "NEGATIVE"}, {1, "HASH"}}),
        options({{4, "GALLONAGE"}, {2, "FOODSTAMP"}, {1, "SCALEABLE"}}, {{4, "AUTOSCALE"}, {2, "MEMO"}, {1, "STOCKPLU"}}),
        options({{4, "NEGATIVEINVENTORY"}, {2, "ALLOWPROMO"}, {1, "ALLOWWASTE"}}, {{4, "ALLOWDISCOUNT"}, {2, "ALLOWSURCHARGE"}, {1, "VALIDATIONCOMPULSORY"}}),
        options({{4, "NONADDCOMPULSORY"}, {2, "PRINTKV"}, {1, "KPGROUP1"}}, {{4, "KPGROUP2"}, {2, "KPGROUP3"}, {1, "KPGROUP4"}}),
        options({{4, "KPGROUP5"}, {2, "KPGROUP6"}, {1, "KPGROUP7"}}, {{4, "KPGROUP8"}, {2, "KPGROUP9"}, {1, "PRINTREDONKP"}}),
        options({{4, "PRINTONRECEIPT"}, {2, "PRINTONJOURNAL"}, {1, "DISPLAYONSCREEN"}}, {{4, "PRINTONGUESTCHECK"}, {2, "PRINTPRICEONCHECK"}, {1, "PRINTONRECEIPT/DETAIL"}}),
        options({{4, "AUTOGRILL"}, {1, "PRINTREDONRECEIPT"}}, {{4, "PRINTONKP"}, {2, "COOKINGITEM"}}),
        number(2, "AUTOTARENUMBER"),
        number(2, "DISPLAYCOLOR"),
        number(2, "AUTOGRILLNo").readInto("AUTOGRILL"),
        number(2, "GROUPLINK2"),
        number(2, "GROUPLINK3"),
        number(18, "LINKEDPLU"),
        number(2, "KITCHENVIDEO"),
        number(2, "LINKEDNVIMAGE"),
    }};
    return layout;
}

/// File 67. A price without a level is never charged, so level n is sent where the table has none.
const RecordLayout& pluLayout()
{
    static const RecordLayout layout{"", {
        number(18, "PLUNUMBER").withLeadingZeros(),
        text(16, "DESCRIPTION"),
        number(2, "GROUPNO"),
        number(4, "PLUSTATUS"),
        number(4, "WLUNUMBER"),
        number(4, "PIECECOUNT"),
        number(4, "RECIPENO"),
        options({{4, "INactive"}, {2, "PRESET"}, {1, "OVERRIDE"}}, {{4, "pricechange"}, {1, "printNV"}}),
        number(4, "MIXNMATCH"),
        number(4, "PRODUCTMIX"),
        number(18, "STOCKLINK"),
        number(4, "MODIFIER"),
        money(8, "PRICE1"),
        number(2, "PRICELEVEL1").writtenInstead("00", "01"),
        money(8, "PRICE2"),
        number(2, "PRICELEVEL2").writtenInstead("00", "02"),
        money(8, "PRICE3"),
        number(2, "PRICELEVEL3").writtenInstead("00", "03"),
        money(8, "PRICE4"),
        number(2, "PRICELEVEL4").writtenInstead("00", "04"),
        money(8, "PRICE5"),
        number(2, "PRICELEVEL5").writtenInstead("00", "05"),
    }};
    return layout;
}

/// File 70.
const RecordLayout& mixAndMatchLayout()
{
    static const RecordLayout layout{"MixNo", {
        text(12, "DESCRIPTION"),
        number(2, "TRIP"),
        money(8, "PRICE"),
    }};
    return layout;
}

/// File 71. The first column is the PLU's number.
const RecordLayout& pluPointsLayout()
{
    static const RecordLayout layout{"", {
        number(18, "PLUNUMBER").withLeadingZeros(),
        numbered(5, {number(4, "POINT*")}),
    }};
    return layout;
}

// clang-format on

} // namespace norvane::records
