// See OtherReports.h.
#include "sales/OtherReports.h"

#include "reports/data/ReportError.h"
#include "reports/lines/LayoutReader.h"
#include "sales/ReportEntries.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// The lines with a semicolon before the first section.
QString commentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QStringList lines;
    for (QString line = QString::fromUtf8(file.readLine()).trimmed(); line.startsWith(u';');
         line = QString::fromUtf8(file.readLine()).trimmed())
        lines << line.sliced(1).trimmed();
    return lines.join(u' ');
}

bool isOfMenu(const QString& file)
{
    return std::ranges::any_of(reportEntries(), [&file](const ReportEntry& entry) {
        return QString(entry.file).sliced(1).compare(file, Qt::CaseInsensitive) == 0;
    });
}

OtherReport reportIn(const QString& path, bool isOfShop)
{
    try {
        const auto layout = reports::readLayout(path);
        const auto day = layout.source.day();
        return {path, layout.title, commentOf(path), day ? day->text() : QString(), isOfShop};
    } catch (const reports::ReportError& error) {
        QString mistake = error.text();
        mistake.remove(path + u", "_s);
        return {path, QFileInfo(path).fileName(), mistake, {}, isOfShop, true};
    }
}

void addReports(std::vector<OtherReport>& all, const QString& folder, bool isOfShop)
{
    const auto first = static_cast<std::ptrdiff_t>(all.size());
    for (const QString& file : QDir(folder).entryList({u"*.rpt"_s}, QDir::Files)) {
        if (isOfShop || !isOfMenu(file))
            all.push_back(reportIn(QDir(folder).filePath(file), isOfShop));
    }
    std::ranges::sort(all.begin() + first, all.end(), [](const auto& one, const auto& other) {
        return one.title.compare(other.title, Qt::CaseInsensitive) < 0;
    });
}

} // namespace

std::vector<OtherReport> otherReports(const ApplicationValues& values)
{
    std::vector<OtherReport> all;
    addReports(all, values.customerPath, true);
    addReports(all, values.appPath, false);
    return all;
}

} // namespace norvane::sales
