// What other commands take by name: the boxes of the exchange dialog and the reports.
#include "command/ReportPeriods.h"
#include "command/Verbs.h"
#include "exchange/ExchangeBoxes.h"
#include "reports/data/ReportError.h"
#include "reports/lines/LayoutReader.h"

#include <QDir>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// Title and periods of a layout, or what is wrong with its file.
std::pair<QString, QString> titleAndPeriods(const QString& path)
{
    try {
        return {reports::readLayout(path).title, periodsOf(path).join(u", "_s)};
    } catch (const reports::ReportError& error) {
        return {error.text(), {}};
    }
}

} // namespace

void listBoxes(const Workplace& workplace, const Invocation& /*words*/)
{
    Listing listing({u"Number"_s, u"Box"_s});
    for (int box = 0; box < exchange::boxCount; ++box)
        listing.add({box + 1, exchange::boxName(box)});
    workplace.show(listing);
}

void listReports(const Workplace& workplace, const Invocation& /*words*/)
{
    Listing listing({u"Name"_s, u"Title"_s, u"Periods"_s});
    const QDir folder(workplace.appPath);
    for (const QString& file : folder.entryList({u"*.rpt"_s}, QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        const auto [title, periods] = titleAndPeriods(folder.filePath(file));
        listing.add({QFileInfo(file).completeBaseName(), title, periods});
    }
    workplace.show(listing);
}

} // namespace norvane::command
