// Examine, ask, convert; see FormerCustomer.h.
#include "customers/FormerCustomer.h"

#include "customers/CustomerFolders.h"
#include "customers/CustomerLog.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

[[noreturn]] void cancel()
{
    throw former::FormerError(former::FormerProblem::Cancelled, u"The conversion was cancelled."_s);
}

} // namespace

former::Converted convertCustomer(const QString& customerPath, const QString& programFolder,
                                  const ConversionWatch& watch)
{
    const former::Examination found =
        former::examine(customerDatabase(customerPath), programFolder, watch.keepGoing);
    if (!watch.accepts(found))
        cancel();
    LoggedWork work(customerPath, u"conversion"_s);
    try {
        auto done = work.during([&] {
            return former::convertDatabase(customerPath, programFolder, found, [&](qint64 stored) {
                return !watch.progress || watch.progress(stored, found.recordCount);
            });
        });
        work.setResult(u"%1 records"_s.arg(done.records));
        return done;
    } catch (const former::FormerError& error) {
        work.setResult(error.text());
        throw;
    }
}

} // namespace norvane::customers
