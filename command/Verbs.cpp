// The table of commands.
#include "command/Verbs.h"

#include "command/CsvOption.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr auto common = std::to_array<OptionDefinition>({
    {"folder"_L1, "DIR"_L1,
     "work in this folder of the program instead of NORVANE_FOLDER or the one that holds norvane-shop"_L1},
    {"json"_L1, {}, "listings as JSON"_L1},
    {"help"_L1, {}, "what a command does, as \"help COMMAND\" and \"-h\" do"_L1},
    {"version"_L1, {}, "the version of the program"_L1},
});
constexpr auto newOptions = std::to_array<OptionDefinition>({
    {"like"_L1, "OTHER"_L1,
     "take settings, programme and overlay documents of this customer; never its sales, points or log"_L1},
    {"without"_L1, "PART,..."_L1,
     "of what --like takes leave out: settings, overlays, plu, status, groups, mixes, functions, keyboards, lookups, cards, options, messages, staff, times, taxes, or tables by name"_L1},
    {"model"_L1, "MODEL"_L1,
     "as Setup lists it, or a part that only one model has: Dorvik, V3, Card, -V2"_L1},
    {"registers"_L1, "N"_L1, "how many registers, 1 to 32"_L1},
    {"port"_L1, "N"_L1, "the serial port, 1 to 4"_L1},
});
constexpr OptionDefinition unfinishedOption{
    "unfinished"_L1, {}, "what is left of the last exchange, if it went this way and did not finish"_L1};
constexpr auto fetchOptions = std::to_array<OptionDefinition>({
    {"accept-fewer"_L1,
     {},
     "replace a table also with a file that has fewer than half of its records, or is cut off"_L1},
    unfinishedOption,
});
constexpr auto sendOptions = std::to_array<OptionDefinition>({
    {"overwrite-points"_L1,
     {},
     "send PLUs also when their points were not uploaded; the registers lose the points that they hold"_L1},
    unfinishedOption,
});
constexpr auto applyPlannedOptions = std::to_array<OptionDefinition>({sendOptions[0]});
constexpr auto collectOptions = std::to_array<OptionDefinition>({
    {"clear-first"_L1, {}, "first clear sales that are stored and were not cleared at all registers"_L1},
    {"day"_L1, "DAY"_L1,
     "book the sales for this day, 2026-11-25, as a shop that closes after midnight needs it"_L1},
});
constexpr auto nightOptions = std::to_array<OptionDefinition>({
    {"to"_L1, "CONNECTION"_L1, "publish to this PostgreSQL, as \"publish\" does"_L1},
    {"reports"_L1, "DIR"_L1,
     "write the PLU sales of each day into this folder, beside what reports.ini lists"_L1},
    {"wait"_L1, "TIME"_L1, "how long to wait for a shop that another program is using: 90s, 10m, 2h"_L1},
    {"retry"_L1, "N"_L1, "how often shops that did not answer are tried again, after the others"_L1},
    {"every"_L1, "TIME"_L1, "how long to wait before that; 10m without this option"_L1},
    {"day"_L1, "DAY"_L1, "book the sales for this day instead of that of the collection"_L1},
    {"copies"_L1, "DIR"_L1, "copy each shop into this folder, as \"copy\" does"_L1},
    {"again"_L1, {}, "collect and copy all shops, also those that were done in the last eight hours"_L1},
    {"html"_L1, "FILE"_L1, "write the summary as a page"_L1},
});
constexpr auto reportOptions = std::to_array<OptionDefinition>({
    {"period"_L1, "PERIOD"_L1,
     "day, week, month or year: the period that ends today; yesterday, lastweek (from Sunday), lastweek-monday, lastmonth, lastquarter or lastyear"_L1},
    {"day"_L1, "DAY"_L1, "the sales of one day: 2026-11-25"_L1},
    {"from"_L1, "DAY"_L1, "the sales of all days from this one"_L1},
    {"to"_L1, "DAY"_L1, "to this one"_L1},
    {"compare"_L1, "before|year"_L1,
     "beside the period before, or the same days a year earlier, with difference and per cent"_L1},
    {"pdf"_L1, "FILE"_L1, "write the pages; \"-\" for standard output, here and below"_L1},
    {"csv"_L1, "FILE"_L1, "write the lines as CSV"_L1},
    {"xlsx"_L1, "FILE"_L1, "write the lines as a spreadsheet"_L1},
    separatorOption,
});
constexpr auto plusOptions = std::to_array<OptionDefinition>({
    {"dry-run"_L1, {}, "of an import: list what would change, and change nothing"_L1},
    {"on"_L1, "DAY"_L1, "of an import: store it on this day, 2027-01-01, when apply-planned runs"_L1},
    separatorOption,
});
constexpr auto plannedOptions = std::to_array<OptionDefinition>({
    {"show"_L1, "LIST"_L1, "the changes of one list of one customer, by its number"_L1},
    {"cancel"_L1, "LIST"_L1, "cancel a list; its file is kept"_L1},
    {"plan-again"_L1, "LIST"_L1, "plan a cancelled list again"_L1},
});
constexpr auto copyOptions = std::to_array<OptionDefinition>({
    {"to"_L1, "DIR"_L1, "an existing folder, as on another disk; each customer has a folder there"_L1},
});
constexpr auto copyProgrammeOptions = std::to_array<OptionDefinition>({
    {"tables"_L1, "NAME,..."_L1,
     "what to copy: plu, groups, messages and other parts, or the names of tables"_L1},
    {"dry-run"_L1, {}, "list what would change, and change nothing"_L1},
});
constexpr auto tableOptions = std::to_array<OptionDefinition>({
    plusOptions[0],
    plusOptions[1],
    separatorOption,
    mapOption,
});
constexpr auto convertOptions = std::to_array<OptionDefinition>({
    {"all"_L1, {}, "every customer whose database was made by the former program"_L1},
    {"dry-run"_L1, {}, "report what would happen, and change nothing"_L1},
    {"accept-losses"_L1,
     {},
     "convert also where records cannot be read or values do not fit; each folder has a list of them"_L1},
});
constexpr auto adoptOptions = std::to_array<OptionDefinition>({
    {"accept-losses"_L1, {}, "as \"convert\" does"_L1},
});
constexpr auto publishOptions = std::to_array<OptionDefinition>({
    {"to"_L1, "CONNECTION"_L1, "\"host=db.example dbname=chain\" or \"postgresql://db.example/chain\""_L1},
    {"vanished"_L1, "keep|remove"_L1,
     "of days that are published and that the shop no longer has: keep them and no longer report them, or delete them"_L1},
    {"adopt"_L1, {}, "continue a shop that was published from another folder or under another name"_L1},
    {"dry-run"_L1, {}, "list what would be published, and change nothing"_L1},
});
constexpr auto chainOptions = std::to_array<OptionDefinition>({
    publishOptions[0],
    publishOptions[1],
    publishOptions[2],
    publishOptions[3],
    {"out"_L1, "DIR"_L1, "an existing folder for the pages"_L1},
});

// clang-format off
constexpr auto all = std::to_array<Verb>({
    {"customers"_L1, {}, 0, 0, {}, "Lists the customers: model, registers, last exchange, last day of sales."_L1, listCustomers},
    {"status"_L1, "[CUSTOMER...]"_L1, 0, -1, {},
     "Lists the state of each shop: last exchange, records not sent to all registers, sales not cleared, days without a collection. Changes nothing and waits for no other run."_L1, showStatus},
    {"check"_L1, "CUSTOMER"_L1, 1, 1, {},
     "Looks for damage in the database, for missing tables and fields, for impossible settings, and for mistakes in the screens and reports of this installation."_L1, checkCustomer},
    {"new"_L1, "CUSTOMER"_L1, 1, 1, newOptions,
     "Makes a customer with the standard settings and no records, or one like another."_L1, newCustomer},
    {"set"_L1, "CUSTOMER KEY=VALUE..."_L1, 2, -1, {},
     "Changes settings: Port, Baud, ConnectionType, NoOfECRs, ModemReset, ModemString, Telephone, ECRModel, ModemDelay. VALUE is an entry of the list in Setup, or a part that only one entry has: Baud=9600, ECRModel=V3."_L1, setSettings},
    {"fetch"_L1, "CUSTOMER [BOX...]"_L1, 1, -1, fetchOptions,
     "Uploads from register 1 what the boxes name, as the exchange dialog does; without a box, all of it."_L1, fetch},
    {"send"_L1, "CUSTOMER [BOX...]"_L1, 1, -1, sendOptions,
     "Downloads to all registers what the boxes name; without a box, all of it."_L1, send},
    {"compare"_L1, "CUSTOMER [BOX|PART...]"_L1, 1, -1, {},
     "Lists what differs between the customer and register 1, and changes nothing in either. PART is a part of the programme as \"copy-programme\" takes it, or a table. Values that travel in one direction only are marked and do not count."_L1, compare},
    {"collect"_L1, "CUSTOMER"_L1, 1, 1, collectOptions, "Collects the sales of all registers, stores them and clears them there."_L1, collect},
    {"night"_L1, "[CUSTOMER...]"_L1, 0, -1, nightOptions,
     "For a timer: stores planned changes, collects the sales, writes the reports of reports.ini, publishes and copies, of all customers or those named, one after another. A second run of the same night does what is left."_L1, night},
    {"report"_L1, "CUSTOMER NAME"_L1, 2, 2, reportOptions,
     "Writes a report: plusales, finsales, clerksales, timesales, mixsales, pluprice or any layout of the program's folder."_L1, report},
    {"plus"_L1, "CUSTOMER export|import FILE"_L1, 3, 3, plusOptions,
     "Exports number, description, group, status and prices of all PLUs as FILE.csv or FILE.xlsx; imports such a file: known PLUs are changed, new ones added, all or nothing."_L1, movePlus},
    {"table"_L1, "CUSTOMER TABLE export|import FILE"_L1, 4, 4, tableOptions,
     "The same with all fields of a table, under the names that reports use. Only PLUs are added; sales are only exported."_L1, moveTable},
    {"planned"_L1, "[CUSTOMER...]"_L1, 0, -1, plannedOptions,
     "Lists the changes that are stored later; without a customer, those of all."_L1, listPlanned},
    {"apply-planned"_L1, "[CUSTOMER...]"_L1, 0, -1, applyPlannedOptions,
     "Stores planned changes whose day has come, of all customers or those named, and sends them to the registers; also what an earlier call could not send."_L1, applyPlanned},
    {"boxes"_L1, {}, 0, 0, {}, "Lists the boxes of the exchange dialog, which fetch and send take by number or name."_L1, listBoxes},
    {"reports"_L1, {}, 0, 0, {}, "Lists the reports with their titles and the periods that --period takes."_L1, listReports},
    {"tables"_L1, {}, 0, 0, {}, "Lists the tables that \"table\" takes, with the number of their fields."_L1, listTables},
    {"copies"_L1, "CUSTOMER"_L1, 1, 1, {}, "Lists the safety copies, the latest first."_L1, listCopies},
    {"restore"_L1, "CUSTOMER COPY"_L1, 2, 2, {},
     "Restores the customer from a safety copy, after copying its current state. COPY is a name or its beginning, or the file of a copy elsewhere, from which a new customer can be made, too."_L1, restore},
    {"copy"_L1, "CUSTOMER..."_L1, 1, -1, copyOptions,
     "Copies customers with programme, sales and documents to a folder elsewhere, one compressed file each, and checks it. Keeps the latest copies of 7 days, 4 weeks and 12 months."_L1, copyElsewhere},
    {"verify"_L1, "FILE|DIR..."_L1, 1, -1, {},
     "Reads copies elsewhere to their end and checks their databases. Changes nothing."_L1, verifyCopies},
    {"copy-programme"_L1, "FROM TO..."_L1, 2, -1, copyProgrammeOptions,
     "Copies parts of the programme of the customer FROM to other customers: each gets all of it or nothing. What would change is listed first. Points, sales and what registers of another model cannot hold are left out."_L1, copyProgramme},
    {"convert"_L1, "CUSTOMER...|--all"_L1, 0, -1, convertOptions,
     "Converts databases of the former program, each as a whole or not at all. The old file is kept as velmar.former.mdb."_L1, convertCustomers},
    {"adopt"_L1, "FOLDER"_L1, 1, 1, adoptOptions,
     "Copies all customers of a former installation and converts them. FOLDER is left as it is."_L1, adoptInstallation},
    {"publish"_L1, "CUSTOMER..."_L1, 1, -1, publishOptions,
     "Copies the sales and names of shops to the PostgreSQL of their chain: days that are new or have changed."_L1, publish},
    {"chain"_L1, "check CUSTOMER... | pages | init | add-shop NAME"_L1, 1, -1, chainOptions,
     "check: compares all sums and names of shops with those in the PostgreSQL of their chain, reports what differs, and publishes it again. pages: writes a site for the browser about all shops, from what they published. init and add-shop, as the owner of the chain: make its schema and roles, and a user for one shop, who may read and write the rows of this shop only."_L1, manageChain},
});
// clang-format on

} // namespace

std::span<const Verb> verbs()
{
    return all;
}

std::span<const OptionDefinition> commonOptions()
{
    return common;
}

} // namespace norvane::command
