// The records of messages and descriptors: head and foot of the papers, texts of errors and reports.
#include "records/RecordLayouts.h"

namespace norvane::records
{
namespace
{

constexpr std::size_t descriptorWidth = 30;

/// A numbered descriptor. A text that begins with zeros comes back without them.
RecordLayout descriptorLayout(const char* field)
{
    return {"ID", {text(descriptorWidth, field).strippedOfZeros()}};
}

/// How the lines are justified, and the lines.
RecordLayout messageLayout(const std::vector<ColumnGroup>& lines)
{
    std::vector<ColumnGroup> columns{options({threeWay("Justify")})};
    columns.insert(columns.end(), lines.begin(), lines.end());
    return {"ID", columns};
}

RecordLayout receiptMessageLayout()
{
    return messageLayout({numbered(5, {messageLine("PREAMBLE*")}), numbered(5, {messageLine("POSTAMBLE*")})});
}

} // namespace

/// File 19. The register's own words; they are never sent to it.
const RecordLayout& systemDescriptorLayout()
{
    static const RecordLayout layout{"ID", {text(descriptorWidth, "SYSTEMDESCRIPTORS")}};
    return layout;
}

/// File 20.
const RecordLayout& errorMessageLayout()
{
    static const RecordLayout layout = descriptorLayout("ERRORMESSAGE");
    return layout;
}

/// File 21.
const RecordLayout& financialReportLayout()
{
    static const RecordLayout layout = descriptorLayout("financialreport");
    return layout;
}

/// File 22.
const RecordLayout& employeeReportLayout()
{
    static const RecordLayout layout = descriptorLayout("Employeereport");
    return layout;
}

/// File 23.
const RecordLayout& logoMessageLayout()
{
    static const RecordLayout layout = receiptMessageLayout();
    return layout;
}

/// File 24.
const RecordLayout& validationMessageLayout()
{
    static const RecordLayout layout = messageLayout({numbered(3, {messageLine("LINE*")})});
    return layout;
}

/// File 25.
const RecordLayout& checkEndorseMessageLayout()
{
    static const RecordLayout layout = messageLayout({numbered(10, {messageLine("LINE*")})});
    return layout;
}

/// File 26.
const RecordLayout& guestCheckMessageLayout()
{
    static const RecordLayout layout = receiptMessageLayout();
    return layout;
}

} // namespace norvane::records
