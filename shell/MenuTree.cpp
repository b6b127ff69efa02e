// Table of the menu; see MenuTree.h. Trailing blanks and odd spellings belong to the captions.
#include "shell/MenuTree.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using enum Opens;
constexpr auto never = Choosable::No;

// clang-format off
constexpr auto entries = std::to_array<MenuEntry>({
    {""_L1, "Exit"_L1, "E&xit"_L1, Form, "Exit"_L1},

    {""_L1, "Files"_L1, "&Files"_L1, Menu},
    {"Files"_L1, "SModeMenu"_L1, "&S-Mode Programming"_L1, Menu},
    {"SModeMenu"_L1, "KeyboardLocation"_L1, "&Keyboard Key Relocation"_L1, ModelForm},
    {"SModeMenu"_L1, "ServiceMode"_L1, "S &Mode Options"_L1, Screen, "\\Smode.scn"_L1},
    {"SModeMenu"_L1, "PrinterDriverMenu"_L1, "&Printer Drivers"_L1, Nothing, {}, never},
    {"SModeMenu"_L1, "SerialPortMenu"_L1, "&Serial Port Devices"_L1, Nothing, {}, never},
    {"SModeMenu"_L1, "DefineSerialMenu"_L1, "Define Serial &Port"_L1, Nothing, {}, never},

    {"Files"_L1, "PModeMenu"_L1, "&P-Mode Programming"_L1, Menu},
    {"PModeMenu"_L1, "PLUselect"_L1, "PLU "_L1, Menu},
    {"PLUselect"_L1, "PLUMENU"_L1, "&PLU "_L1, ModelScreen},
    {"PLUselect"_L1, "EuroPrice"_L1, "&Euro Price"_L1, Screen, "\\plutble.scn"_L1},
    {"PModeMenu"_L1, "PLUStatusMenu"_L1, "PLU &Status Group"_L1, ModelScreen},
    {"PModeMenu"_L1, "GroupMenu"_L1, "&Group"_L1, Screen, "\\Group.scn"_L1},
    {"PModeMenu"_L1, "FunctionMenu"_L1, "&Function Keys"_L1, Form, "FrmFunctKey"_L1},
    {"PModeMenu"_L1, "SystemMenu"_L1, "S&ystem Options"_L1, Menu},
    {"SystemMenu"_L1, "GeneralOptions"_L1, "&General Options"_L1, ModelScreen},
    {"SystemMenu"_L1, "TaxOptions"_L1, "Ta&x Options"_L1, Screen, "\\TaxOpts.scn"_L1},
    {"SystemMenu"_L1, "CashDrawer"_L1, "&Cash Drawer Options"_L1, Screen, "\\CaDrwopt.scn"_L1},
    {"SystemMenu"_L1, "TrainingMode"_L1, "&Training Mode Options"_L1, Screen, "\\TrnMoopt.scn"_L1},
    {"SystemMenu"_L1, "LevelModOptions"_L1, "Level/&Modifier Options"_L1, Screen, "\\LvlModop.scn"_L1},
    {"SystemMenu"_L1, "TrackOptions"_L1, "Trac&King File Options"_L1, Screen, "\\TrkFlopt.scn"_L1},
    {"SystemMenu"_L1, "KPOptions"_L1, "Kitchen &Printer Options"_L1, Screen, "\\KPKvopt.scn"_L1},
    {"SystemMenu"_L1, "ValidOptins"_L1, "&Validation/SubTotal Print Options"_L1, Screen, "\\VldPrtop.scn"_L1},
    {"SystemMenu"_L1, "GeneralPrintOption"_L1, "&General Printing Options"_L1, ModelScreen},
    {"SystemMenu"_L1, "ReportPrintOption"_L1, "Report Pr&inting Options"_L1, Screen, "\\GenRptOp.scn"_L1},
    {"SystemMenu"_L1, "ReportOption"_L1, "Report &Option"_L1, Screen, "\\RptOpt.scn"_L1},
    {"SystemMenu"_L1, "TimeKeeping"_L1, "&TimeKeeping Option"_L1, Screen, "\\TimeKeep.scn"_L1},
    {"SystemMenu"_L1, "EJPrint"_L1, "E.&J. && Detail Printing Options"_L1, ModelScreen},
    {"PModeMenu"_L1, "VatMenu"_L1, "&Vat"_L1, Screen, "\\Taxes.scn"_L1},
    {"PModeMenu"_L1, "MessagesMenu"_L1, "&Messages"_L1, Menu},
    {"MessagesMenu"_L1, "LogoMessage"_L1, "&Logo Message"_L1, Screen, "\\logomess.scn"_L1},
    {"MessagesMenu"_L1, "ErrorMessage"_L1, "&Error Message"_L1, Screen, "\\errmess.scn"_L1},
    {"MessagesMenu"_L1, "SystemDescriptors"_L1, "&System Descriptors"_L1, Screen, "\\sysdesc.scn"_L1, never},
    {"MessagesMenu"_L1, "ReportDescriptors"_L1, "&Report Descriptors"_L1, Menu},
    {"ReportDescriptors"_L1, "FinancialRpt"_L1, "&Financial Report"_L1, Screen, "\\FinRpt.scn"_L1},
    {"ReportDescriptors"_L1, "EmpReport"_L1, "&Employee Report"_L1, Screen, "\\Emprpt.scn"_L1},
    {"MessagesMenu"_L1, "ChequeEndorse"_L1, "Che&que Endorsement Message"_L1, Screen, "\\chqenmes.scn"_L1},
    {"MessagesMenu"_L1, "GuestMessage"_L1, "&Guest Check Logo Message"_L1, Screen, "\\gstchk.scn"_L1},
    {"MessagesMenu"_L1, "ValidMessage"_L1, "&Validation Message"_L1, Screen, "\\valdmess.scn"_L1},
    {"PModeMenu"_L1, "WLUMenu"_L1, "&Window Look Up (WLU)"_L1, Form, "frmwlu"_L1},
    {"PModeMenu"_L1, "TimePeriodMenu"_L1, "&Time Period"_L1, Screen, "\\timeperd.scn"_L1},
    {"PModeMenu"_L1, "EmployeeMenu"_L1, "&Employees"_L1, ModelScreen},
    {"PModeMenu"_L1, "Payrate"_L1, "Pa&y Rate"_L1, Screen, "\\Payrate.scn"_L1},
    {"PModeMenu"_L1, "JobCode"_L1, "&Job Code"_L1, Screen, "\\JobCode.scn"_L1},
    {"PModeMenu"_L1, "AuthorityMenu"_L1, "&Authority Levels"_L1, ModelScreen},
    {"PModeMenu"_L1, "PrinterMenu"_L1, "&Printer Tables & KV Routing"_L1, Nothing, {}, never},
    {"PModeMenu"_L1, "IngredientMenu"_L1, "Ingre&dients Inventory"_L1, Menu, {}, never},
    {"IngredientMenu"_L1, "Recipes"_L1, "Recipes"_L1, Screen, "\\recipe.scn"_L1, never},
    {"PModeMenu"_L1, "TimeActivateFunctionMenu"_L1, "Time Activate Function"_L1, Nothing, {}, never},
    {"PModeMenu"_L1, "ProductMixMenu"_L1, "Product Mi&x Group"_L1, Screen, "\\pmix.scn"_L1},
    {"PModeMenu"_L1, "MixNMatchTable"_L1, "M&ix & Match Table"_L1, Screen, "\\mix.scn"_L1},
    {"PModeMenu"_L1, "CustomZMenu"_L1, "Custom Report"_L1, Nothing, {}, never},
    {"PModeMenu"_L1, "StringRepMenu"_L1, "String Report"_L1, Nothing, {}, never},
    {"PModeMenu"_L1, "NonPLUCode"_L1, "&Non-PLU Code"_L1, Screen, "\\nonplu.scn"_L1, never},
    {"PModeMenu"_L1, "CardCat"_L1, "Card Category"_L1, GatedScreen, "\\category.scn"_L1},
    {"PModeMenu"_L1, "Hotlist"_L1, "Card HotList"_L1, GatedScreen, "\\hotlist.scn"_L1},
    {"Files"_L1, "ViewMemorys"_L1, "&View Memory Allocation"_L1, Screen, "\\Memory.scn"_L1},

    {""_L1, "Communications"_L1, "&Communications"_L1, Menu},
    {"Communications"_L1, "CollectSales"_L1, "&Collect Sales"_L1, Form, "FrmsalesComm"_L1},
    {"Communications"_L1, "UploadVelmar"_L1, "&Upload Program Files ECR"_L1, Form, "FrmComm"_L1},
    {"Communications"_L1, "DownloadVelmar"_L1, "&Download Program Files To ECR"_L1, Form, "FrmComm"_L1},

    {""_L1, "Reports"_L1, "&Reports"_L1, Menu},
    {"Reports"_L1, "SalesReport"_L1, "Sales Report"_L1, Menu},
    {"SalesReport"_L1, "PLUReport"_L1, "PLU Report"_L1, Menu},
    {"PLUReport"_L1, "PLUSalesByDate"_L1, "By date"_L1, Form, "Frmreports"_L1},
    {"PLUReport"_L1, "PLUSalesWeekTodate"_L1, "Week to date"_L1, Form, "Frmreports"_L1},
    {"PLUReport"_L1, "PLUSalesMonthTodate"_L1, "Month to date"_L1, Form, "Frmreports"_L1},
    {"PLUReport"_L1, "PLUSalesYearToDate"_L1, "Year to date"_L1, Form, "Frmreports"_L1},
    {"SalesReport"_L1, "FinReport"_L1, "Financial Report"_L1, Menu},
    {"FinReport"_L1, "FinDate"_L1, "By date"_L1, Form, "Frmreports"_L1},
    {"FinReport"_L1, "Finweek"_L1, "Week to date"_L1, Form, "Frmreports"_L1},
    {"FinReport"_L1, "FinMonth"_L1, "Month to date"_L1, Form, "Frmreports"_L1},
    {"FinReport"_L1, "FinYear"_L1, "Year to date"_L1, Form, "Frmreports"_L1},
    {"SalesReport"_L1, "ClerkSales"_L1, "Clerk"_L1, Menu},
    {"ClerkSales"_L1, "ClerkDate"_L1, "By date"_L1, Form, "Frmreports"_L1},
    {"ClerkSales"_L1, "clerkweek"_L1, "Week to date"_L1, Form, "Frmreports"_L1},
    {"ClerkSales"_L1, "Clerkmonth"_L1, "Month to date"_L1, Form, "Frmreports"_L1},
    {"ClerkSales"_L1, "Clerkyear"_L1, "Year to date"_L1, Form, "Frmreports"_L1},
    {"SalesReport"_L1, "TimePeriod"_L1, "Time Periods"_L1, Menu},
    {"TimePeriod"_L1, "TimeByDate"_L1, "By date"_L1, Form, "Frmreports"_L1},
    {"TimePeriod"_L1, "TimeWeek"_L1, "Week to date"_L1, Form, "Frmreports"_L1},
    {"TimePeriod"_L1, "TimeMonth"_L1, "Month to date"_L1, Form, "Frmreports"_L1},
    {"TimePeriod"_L1, "TimeYear"_L1, "Year to date"_L1, Form, "Frmreports"_L1},
    {"SalesReport"_L1, "MixNMatch"_L1, "Mix N Match"_L1, Menu},
    {"MixNMatch"_L1, "MixDate"_L1, "By date"_L1, Form, "Frmreports"_L1},
    {"MixNMatch"_L1, "MixWeek"_L1, "Week to date"_L1, Form, "Frmreports"_L1},
    {"MixNMatch"_L1, "MixMonth"_L1, "Month to date"_L1, Form, "Frmreports"_L1},
    {"MixNMatch"_L1, "Mixyear"_L1, "Year to date"_L1, Form, "Frmreports"_L1},
    {"Reports"_L1, "Programscans"_L1, "Program Scans"_L1, Menu, {}, never},
    {"Programscans"_L1, "Pluprice"_L1, "PLU Price Levels"_L1, Form, "Frmreports"_L1, never},

    {""_L1, "Utils"_L1, "&Utilities"_L1, Menu},
    {"Utils"_L1, "TransferEuro"_L1, "Transfer Current Price to &Euro"_L1, Form, "TransferEuro_Click"_L1},
    {"Utils"_L1, "TransferCurrent"_L1, "Transfer Euro Price to &Current"_L1, Form, "TransferCurrent_Click"_L1},
    {"Utils"_L1, ""_L1, ""_L1, Separator},
    {"Utils"_L1, "Transfer1to2"_L1, "Transfer 1st Price To 2nd Price (Euro)"_L1, Form, "Transfer1to2_Click"_L1},
    {"Utils"_L1, "Transfer2to1"_L1, "Transfer 2nd Price to 1st Price (Euro)"_L1, Form, "Transfer2to1_Click"_L1},
    {"Utils"_L1, ""_L1, ""_L1, Separator},
    {"Utils"_L1, "SalesReset"_L1, "Reset Sales"_L1, Form, "SalesReset_Click"_L1},
    {"Utils"_L1, "ResetPrice"_L1, "&Reset Prices"_L1, Form, "ResetPrice_Click"_L1},

    {""_L1, "KeyboardPrint"_L1, "&Keyboards"_L1, Menu},
    {"KeyboardPrint"_L1, "Velmarkeyboard"_L1, "Velmar Keyboard"_L1, Form, "Velmar"_L1},
    {"KeyboardPrint"_L1, "DorvikKeyboard"_L1, "Dorvik Keyboard"_L1, Form, "Dorvik"_L1},
    {"KeyboardPrint"_L1, "Quelmontkeyboard"_L1, "Quelmont Keyboard"_L1, Form, "Quelmont"_L1},

    {""_L1, "NVIMAGE"_L1, "N&V Image"_L1, Menu, {}, never},
    {"NVIMAGE"_L1, "Convert350"_L1, "Convert Images for SRP350"_L1, Form, "Convert350_Click"_L1, never},
    {"NVIMAGE"_L1, "convert550"_L1, "Convert Images for SRP550"_L1, Form, "convert550_Click"_L1, never},

    {""_L1, "Setup"_L1, "&Setup"_L1, Menu},
    {"Setup"_L1, "DataSetup"_L1, "&Setup"_L1, Form, "FrmSetup"_L1},
    {"Setup"_L1, "ChangeCustomer"_L1, "&Change Customer File"_L1, Form, "FrmCustomer"_L1},

    {""_L1, "About"_L1, "&About"_L1, Form, "frmAbout"_L1},
    // F1 opens the user guide; the entry itself is grey.
    {""_L1, "HelpMenu"_L1, "&Help"_L1, Nothing, {}, never},
});
// clang-format on

} // namespace

std::span<const MenuEntry> menuTree()
{
    return entries;
}

bool opensScreen(const MenuEntry& entry)
{
    return entry.opens == Screen || entry.opens == ModelScreen || entry.opens == GatedScreen;
}

} // namespace norvane::shell
