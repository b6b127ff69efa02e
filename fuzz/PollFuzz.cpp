// The five reports of a collection. Input: which report, the stamp byte of the PLU report, then the text.
#include "fuzz/CustomerFile.h"
#include "fuzz/Target.h"
#include "sales/PollImport.h"
#include "store/engine/Recordset.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

void setStamp(unsigned char stamp)
{
    static int set = -1;
    const std::array<char, 5> file{0, 0, 0, 0, static_cast<char>(stamp)};
    if (set != stamp)
        scratchFile(u"poll194.dll"_s, {file.data(), file.size()});
    set = stamp;
}

/// Every record is a row, unless it holds nothing but zeros and the report leaves such records out.
void requireRows(const sales::PollFile& file, const sales::ImportedReport& report)
{
    const auto rows = customerDatabase().openTable(QLatin1StringView(file.table)).recordCount();
    require(file.keepsZeros ? rows == report.records : rows <= report.records, "records become rows");
    require(file.keepsZeros || (rows > 0) == report.hasSales, "a report with sales has rows");
}

} // namespace

void tryInput(std::string_view input)
{
    const auto files = sales::pollFiles();
    const sales::PollFile& file = files[takeByte(input) % files.size()];
    setStamp(takeByte(input));
    const ApplicationValues& values = customer();
    scratchFile(QLatin1StringView(file.name), input);
    undone([&] {
        sales::ImportedReport report;
        if (succeeds({Failure::InputPastEnd, Failure::TypeMismatch, Failure::Overflow, Failure::TextTooLong,
                      Failure::RequiredFieldIsNull},
                     [&] {
                         report = sales::importPollFile(file, customerDatabase(), values, QDate(2026, 3, 31));
                     }))
            requireRows(file, report);
    });
}

} // namespace norvane::fuzz
