// The catalogue of the product files: PLUs, product mix, mix and match, PLU status groups and groups.
#include "store/catalogue/CatalogueRows.h"

namespace norvane::store::rows
{
namespace
{

// register files 67 and 71. The number is text, so that leading zeros are kept and the order is that of 18
// characters. Screens and key editors ask for the one index by either name.
constexpr FieldRow pluData[] = {
    text("PLUNUMBER", 18),
    text("DESCRIPTION", 16),
    whole("GROUPNO"),
    whole("PLUSTATUS"),
    whole("WLUNUMBER"),
    whole("PIECECOUNT"),
    whole("RECIPENO"),
    flag("INactive"),
    flag("PRESET"),
    flag("OVERRIDE"),
    flag("pricechange"),
    flag("printNV"),
    whole("MIXNMATCH"),
    whole("PRODUCTMIX"),
    digits("STOCKLINK", 18),
    whole("MODIFIER"),
    numbered(5, price("PRICE*"), whole("PRICELEVEL*")),
    numbered(5, whole("POINT*")),
    numbered(5, price("EuroPrice*")),
};

// register file 58. The unit has 4 characters in the record; screens of newer registers offer 10.
constexpr FieldRow productMix[] = {
    whole("PRODUCTNO"),
    text("DESCRIPTION", 12),
    text("unitDESCRIPTION", 10),
    whole("units"),
};

// register file 70
constexpr FieldRow mixNMatch[] = {
    whole("MixNo"),
    text("DESCRIPTION", 12),
    whole("TRIP"),
    decimal("PRICE"),
};

// register file 65
constexpr FieldRow pluStatus[] = {
    whole("STATUSNO"),
    text("DESCRIPTION", 12),
    numbered(6, flag("tax*")),
    flag("AREPLUSACTIVE"),
    flag("SINGLEITEM"),
    flag("CONDIMENT"),
    flag("COMPULSORYCONDIMENT"),
    flag("NEGATIVE"),
    flag("HASH"),
    flag("GALLONAGE"),
    flag("FOODSTAMP"),
    flag("SCALEABLE"),
    flag("AUTOSCALE"),
    flag("MEMO"),
    flag("STOCKPLU"),
    flag("NEGATIVEINVENTORY"),
    flag("ALLOWPROMO"),
    flag("ALLOWWASTE"),
    flag("ALLOWDISCOUNT"),
    flag("ALLOWSURCHARGE"),
    flag("VALIDATIONCOMPULSORY"),
    flag("NONADDCOMPULSORY"),
    flag("PRINTKV"),
    numbered(9, flag("KPGROUP*")),
    flag("PRINTREDONKP"),
    flag("PRINTONRECEIPT"),
    flag("PRINTONJOURNAL"),
    flag("DISPLAYONSCREEN"),
    flag("PRINTONGUESTCHECK"),
    flag("PRINTPRICEONCHECK"),
    flag("PRINTONRECEIPT/DETAIL"),
    flag("AUTOGRILL"),
    flag("PRINTREDONRECEIPT"),
    flag("PRINTONKP"),
    flag("COOKINGITEM"),
    whole("AUTOTARENUMBER"),
    whole("DISPLAYCOLOR"),
    whole("AUTOGRILLNo"),
    whole("GROUPLINK2"),
    whole("GROUPLINK3"),
    digits("LINKEDPLU", 18),
    whole("KITCHENVIDEO"),
    whole("LINKEDNVIMAGE"),
};

// register file 1
constexpr FieldRow groups[] = {
    whole("GROUPNO"),
    text("DESCRIPTION", 12),
    flag("addtogrouptotal"),
    numbered(6, flag("tax*")),
};

constexpr TableRow productsRows[] = {
    {"PLUDATA", pluData, {"plunumber", "primarykey"}, "PLUNUMBER"},
    {"PRODUCTMIX", productMix, {"primarykeys"}, "PRODUCTNO"},
    {"MIXNMATCH", mixNMatch, {"primarykey"}, "MixNo"},
    {"PLUSTATUS", pluStatus, {"primarykey"}, "STATUSNO"},
    {"GROUPS", groups, {"groupno"}, "GROUPNO"},
};

} // namespace

std::span<const TableRow> productTables()
{
    return productsRows;
}

} // namespace norvane::store::rows
