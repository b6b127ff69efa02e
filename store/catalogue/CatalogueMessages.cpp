// The catalogue of the messages and descriptors that the register prints and shows.
#include "store/catalogue/CatalogueRows.h"

namespace norvane::store::rows
{
namespace
{

// register file 19, never exchanged
constexpr FieldRow systemDescriptors[] = {
    whole("ID"),
    text("SYSTEMDESCRIPTORS", 30),
};

// register file 20
constexpr FieldRow errorMessage[] = {
    whole("ID"),
    text("ERRORMESSAGE", 30),
};

// register file 21
constexpr FieldRow financialReportDescriptors[] = {
    whole("ID"),
    text("financialreport", 30),
};

// register file 22
constexpr FieldRow employeeReportDescriptors[] = {
    whole("ID"),
    text("Employeereport", 30),
};

// register file 23
constexpr FieldRow logoMessage[] = {
    whole("ID"),
    whole("Justify"),
    numbered(5, text("PREAMBLE*", messageLine)),
    numbered(5, text("POSTAMBLE*", messageLine)),
};

// register file 24
constexpr FieldRow validationMessage[] = {
    whole("ID"),
    whole("Justify"),
    numbered(3, text("LINE*", messageLine)),
};

// register file 25
constexpr FieldRow checkEndorseMessage[] = {
    whole("ID"),
    whole("Justify"),
    numbered(10, text("LINE*", messageLine)),
};

// register file 26
constexpr FieldRow guestCheckMessage[] = {
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
