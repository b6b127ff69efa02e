// Two times 100,000 PLUs compared, a thousand of them changed: what the program does beside the tools, which
// is to load the register's text and to list the differences.
#include "bench/Ratio.h"
#include "bench/Shop.h"
#include "exchange/RegisterComparison.h"
#include "platform/FilePaths.h"
#include "platform/SilentBoxes.h"
#include "records/FileProcedures.h"

#include <benchmark/benchmark.h>

namespace
{

using namespace norvane;
using bench::require;

constexpr int pluCount = 100000;
constexpr int changedOnes = 1000;
constexpr int pluFile = 67;

/// A customer with PLUs as an upload leaves them, of which some were then changed.
class Shop : public bench::Shop
{
public:
    Shop()
        : bench::Shop("insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PRICELEVEL1, "
                      "PRICELEVEL2, PRICELEVEL3, PRICELEVEL4, PRICELEVEL5) " +
                      bench::numbersTo(pluCount) +
                      "select printf('%018d', i * 37), 'Article ' || (i % 977), i % 20, printf('%.2f', i % "
                      "5000 / 100.0), 1, 2, 3, 4, 5 from n")
    {
        (void)records::exportRegisterFile(pluFile, context(values));
        store::Database database(values.databasePath);
        database.execute(QStringLiteral("update PLUDATA set PRICE1='999.00' where PLUNUMBER <= '%1'")
                             .arg(changedOnes * 37, 18, 10, QLatin1Char('0')));
    }
    [[nodiscard]] QString text() const { return joinPath(values.appPath, QStringLiteral("67.txt")); }

    [[nodiscard]] records::ProcedureContext context(const ApplicationValues& shop)
    {
        return {.values = shop,
                .boxes = m_boxes,
                .convert = [](const records::Conversion&) { return true; },
                .folder = shop.appPath};
    }

private:
    SilentBoxes m_boxes;
};

void compare(benchmark::State& state)
{
    Shop shop;
    const QByteArray text = readWholeFile(shop.text());
    for (auto _ : state) {
        auto scratch = std::make_unique<exchange::ScratchShop>(shop.values);
        writeWholeFile(joinPath(scratch->folder(), QStringLiteral("67.txt")), text);
        (void)records::importRegisterFile(pluFile, shop.context(scratch->values()));
        exchange::FetchedFiles fetched;
        fetched.files = {pluFile};
        int lines = 0;
        exchange::RegisterComparison(shop.values, std::move(scratch), fetched)
            .forEach([&](const exchange::ComparedLine& line) {
                lines += line.field == QLatin1String("PRICE1") ? 1 : 0;
                return true;
            });
        require(lines == changedOnes, "the changed prices");
    }
}
BENCHMARK(compare)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

BENCHMARK_MAIN();
