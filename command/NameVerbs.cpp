// What other commands take by name: the boxes of the exchange dialog and the reports.
#include "command/ReportPeriods.h"
#include "command/Verbs.h"
#include "exchange/ExchangeBoxes.h"
#include "reports/data/ReportError.h"
#include "reports/lines/LayoutReader.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// The title of a layout, or what is wrong with its file.
QString titleOf(const QString& path)
{
    try {
        return reports::readLayout(path).title;
    } catch (const reports::ReportError& error) {
        return error.text();
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
        const QString name = QFileInfo(file).completeBaseName();
        listing.add({name, titleOf(folder.filePath(file)), periodsOf(name).join(u", "_s)});
    }
    workplace.show(listing);
}

} // namespace norvane::command
