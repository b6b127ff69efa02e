// Spreadsheets of PLUs: whatever somebody saved as CSV.
#include "articles/SheetFile.h"
#include "fuzz/Target.h"

#include <algorithm>
#include <unordered_set>

namespace norvane::fuzz
{
namespace
{

void requireWhole(const articles::SheetFile& file, qint64 lines)
{
    std::unordered_set<std::uint64_t> numbers;
    for (std::uint32_t index = 0; index < file.lines().size(); ++index) {
        const articles::SheetLine& line = file.lines()[index];
        require(line.line >= 1 && line.line <= lines, "a line that was read is within the file");
        require(file.cells(index).size() == file.columns().size(), "a line has a cell for each column");
        require(numbers.insert(line.number.value()).second != line.isTaken, "a number is taken once");
    }
    for (const auto& mistake : file.mistakes().first()) {
        require(mistake.line >= 1 && mistake.line <= lines, "a mistake names a line within the file");
        require(!mistake.reason.isEmpty(), "a mistake has a reason");
    }
}

} // namespace

void tryInput(std::string_view input)
{
    const QByteArray content(input.data(), static_cast<qsizetype>(input.size()));
    const auto ends =
        std::count(input.begin(), input.end(), '\n') + std::count(input.begin(), input.end(), '\r');
    static const articles::TableSheet sheet = articles::pluSheet();
    requireWhole(articles::SheetFile(sheet, content), ends + 1);
}

} // namespace norvane::fuzz
