// Report files. Input: the file. What the reader takes is run on a customer with a few records.
#include "fuzz/CustomerFile.h"
#include "fuzz/Target.h"
#include "reports/lines/LayoutReader.h"
#include "reports/lines/ReportRun.h"
#include "store/engine/Recordset.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::string_literals;

namespace norvane::fuzz
{
namespace
{

using store::Value;

struct Given {
    const char* field;
    Value value;
};

void addRecord(const char* table, const std::vector<Given>& fields)
{
    auto records = customerDatabase().openTable(QLatin1StringView(table));
    records.addNew();
    for (const auto& [field, value] : fields)
        records.setValue(QLatin1StringView(field), value);
    records.update();
}

/// Two PLUs, one of which was sold on two days, and one that the shop does not know any more.
const ApplicationValues& shop()
{
    static const ApplicationValues& values = []() -> const ApplicationValues& {
        const ApplicationValues& made = customer();
        addRecord("GROUPS", {{"GROUPNO", Value::whole(1)}, {"DESCRIPTION", Value::text("Hot"s)}});
        for (const char* number : {"17", "018"}) {
            addRecord("PLUDATA", {{"PLUNUMBER", Value::text(std::string(number))},
                                  {"DESCRIPTION", Value::text("Tea"s)},
                                  {"GROUPNO", Value::whole(1)},
                                  {"PRICE1", Value::text("2.50"s)}});
        }
        for (const auto& [number, day] : {std::pair("17", 1), {"17", 2}, {"4711", 2}}) {
            addRecord("PLUSALES", {{"ID", Value::text(std::string(number))},
                                   {"SALESDATE", Value::date({2026, 3, day})},
                                   {"PROMO", Value::number(0)},
                                   {"WASTE", Value::number(1)},
                                   {"COUNT1", Value::number(2)},
                                   {"VALUE1", Value::number(-5.05)}});
        }
        return made;
    }();
    return values;
}

template <typename Work>
bool reportsWell(Work work)
{
    try {
        work();
        return true;
    } catch (const reports::ReportError& error) {
        require(error.text().contains("a.rpt"_L1) || error.text().contains("velmar.mdb"_L1),
                "a mistake names the file, and a number that is too large the database");
        return false;
    }
}

} // namespace

void tryInput(std::string_view input)
{
    const ApplicationValues& values = shop();
    const QString path = scratchFile(u"a.rpt"_s, input);
    static_cast<void>(reportsWell([&] { static_cast<void>(reports::layoutMistakes(path)); }));
    if (!reportsWell([&] { static_cast<void>(reports::readLayout(path)); }))
        return;
    reports::ReportRequest request;
    request.reportFile = path;
    request.dataFile = values.databasePath;
    request.now = QDateTime(QDate(2026, 3, 31), QTime(12, 0));
    reportsWell([&] {
        const auto data = reports::runReport(request);
        for (qsizetype line = 0; line < data.lineCount(); ++line) {
            for (int column = 0; column < data.columnCount(); ++column)
                static_cast<void>(data.text(line, column));
        }
    });
}

} // namespace norvane::fuzz
