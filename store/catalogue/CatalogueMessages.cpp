// The catalogue of the messages and descriptors that the register prints and shows.
#include "store/catalogue/CatalogueRows.h"

namespace norvane::store::rows
{
namespace
{

// register file 19, never exchanged
constexpr Row systemDescriptors[] = {
    whole("ID"),
    text("SYSTEMDESCRIPTORS", 30),
};

// register file 20
constexpr Row errorMessage[] = {
    whole("ID"),
    text("ERRORMESSAGE", 30),
};

// register file 21
constexpr Row financialReportDescriptors[] = {
    whole("ID"),
    text("financialreport", 30),
};

// register file 22
constexpr Row employeeReportDescriptors[] = {
    whole("ID"),
    text("Employeereport", 30),
};

// register file 23
constexpr Row logoMessage[] = {
    whole("ID"),
    whole("Justify"),
    numbered(5, text("PREAMBLE*", messageLine)),
    numbered(5, text("POSTAMBLE*", messageLine)),
};

// register file 24
constexpr Row validationMessage[] = {
    whole("ID"),
    whole("Justify"),
    numbered(3, text("LINE*", messageLine)),
};

// register file 25
constexpr Row checkEndorseMessage[] = {
    whole("ID"),
    whole("Justify"),
    numbered(10, text("LINE*", messageLine)),
};

// register file 26
constexpr Row guestCheckMessage[] = {
    whole("ID"),
    whole("Justify"),
    numbered(5, text("PREAMBLE*", messageLine)),
    numbered(5, text("POSTAMBLE*", messageLine)),
};

constexpr TableRow messagesRows[] = {
    {"SYSTEMDESCRIPTORS", systemDescriptors, {"primarykey"}, "ID"},
    {"ERRORMESSAGE", errorMessage, {"primarykey"}, "ID"},
    {"FINANCIALREPORTDESCRIPTORS", financialReportDescriptors, {"primarykey"}, "ID"},
    {"EMPLOYEEREPORTDESCRIPTORS", employeeReportDescriptors, {"primarykey"}, "ID"},
    {"LOGOMESSAGE", logoMessage, {"primarykey"}, "ID"},
    {"VALIDATIONMESSAGE", validationMessage, {"primarykey"}, "ID"},
    {"CHECKENDORSEMESSAGE", checkEndorseMessage, {"primarykey"}, "ID"},
    {"GUESTCHECKMESSAGE", guestCheckMessage, {"primarykey"}, "ID"},
};

} // namespace

std::span<const TableRow> messageTables()
{
    return messagesRows;
}

} // namespace norvane::store::rows
