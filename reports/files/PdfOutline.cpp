// See PdfOutline.h.
#include "reports/files/PdfOutline.h"

#include "reports/data/PrintableText.h"
#include "reports/data/ReportError.h"

// The library's own older pointers are not used.
#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr double pointsPerMillimetre = 72 / 25.4;
/// Of a sheet's height, where a page names none: that of A4 upright.
constexpr double usualHeight = 842;

bool hasGroups(const ReportData& report)
{
    for (qsizetype line = 0; line < report.lineCount(); ++line) {
        if (report.lineKind(line) == LineKind::GroupHeading)
            return true;
    }
    return false;
}

double heightOf(QPDFObjectHandle page)
{
    QPDFObjectHandle box = page.getKey("/MediaBox");
    return box.isArray() && box.getArrayNItems() == 4 ? box.getArrayItem(3).getNumericValue() : usualHeight;
}

QPDFObjectHandle placeOf(const OutlineEntry& entry, const std::vector<QPDFObjectHandle>& pages)
{
    const QPDFObjectHandle& page = pages.at(static_cast<std::size_t>(entry.page));
    QPDFObjectHandle place = QPDFObjectHandle::newArray();
    place.appendItem(page);
    place.appendItem(QPDFObjectHandle::newName("/XYZ"));
    place.appendItem(QPDFObjectHandle::newNull());
    place.appendItem(QPDFObjectHandle::newReal(heightOf(page) - entry.top * pointsPerMillimetre, 1));
    place.appendItem(QPDFObjectHandle::newNull());
    return place;
}

/// Items of an outline form a chain in both directions.
void addOutline(QPDF& pdf, const std::vector<OutlineEntry>& entries)
{
    const auto pages = pdf.getAllPages();
    QPDFObjectHandle outline = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    QPDFObjectHandle last;
    for (const OutlineEntry& entry : entries) {
        QPDFObjectHandle item = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
        item.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(entry.title.toStdString()));
        item.replaceKey("/Parent", outline);
        item.replaceKey("/Dest", placeOf(entry, pages));
        if (last.isInitialized()) {
            last.replaceKey("/Next", item);
            item.replaceKey("/Prev", last);
        } else {
            outline.replaceKey("/First", item);
        }
        last = item;
    }
    outline.replaceKey("/Type", QPDFObjectHandle::newName("/Outlines"));
    outline.replaceKey("/Last", last);
    outline.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(entries.size())));
    pdf.getRoot().replaceKey("/Outlines", outline);
}

} // namespace

std::vector<OutlineEntry> outlineOf(const ReportData& report, const ReportPages& pages)
{
    const bool isGrouped = hasGroups(report);
    const auto isEntry = [&](const PlacedLine& line) {
        return isGrouped ? report.lineKind(line.line) == LineKind::GroupHeading && !line.isContinued
                         : report.linkValue(line.line).has_value();
    };
    std::vector<OutlineEntry> entries;
    for (int page = 0; page < pages.pageCount(); ++page) {
        for (const PlacedLine& line : pages.placedLines(page)) {
            if (isEntry(line))
                entries.push_back({printable(report.text(line.line, 0)), page, line.place.top()});
        }
        for (const PlacedChart& chart : pages.page(page).charts)
            entries.push_back({report.charts[chart.chart].title, page, chart.place.top()});
    }
    return entries;
}

QByteArray withOutline(const QByteArray& pdf, const std::vector<OutlineEntry>& entries)
{
    if (entries.empty())
        return pdf;
    try {
        QPDF document;
        document.processMemoryFile("report", pdf.constData(), static_cast<std::size_t>(pdf.size()));
        addOutline(document, entries);
        QPDFWriter writer(document);
        writer.setOutputMemory();
        writer.write();
        const auto written = writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(written->getBuffer()),
                static_cast<qsizetype>(written->getSize())};
    } catch (const std::exception& error) {
        throw ReportError(
            u"The outline of the PDF cannot be written: %1"_s.arg(QString::fromUtf8(error.what())));
    }
}

} // namespace norvane::reports
