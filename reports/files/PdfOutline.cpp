// See PdfOutline.h.
#include "reports/files/PdfOutline.h"

#include "reports/data/PrintableText.h"
#include "reports/data/ReportError.h"

// The library's C++ headers are not for C++20 with every compiler.
#include <qpdf/qpdf-c.h>

#include <memory>
#include <optional>

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

/// The heading of a group, or the texts that name a line: "100 TEA".
QString nameOf(const ReportData& report, qsizetype line)
{
    QStringList texts{report.text(line, 0)};
    for (int column = 1; column < report.namingColumns(); ++column)
        texts << report.text(line, column);
    texts.removeAll(QString());
    return texts.join(u' ');
}

struct Cleaner {
    void operator()(_qpdf_data* pdf) const { qpdf_cleanup(&pdf); }
};

/// A PDF with its objects, which are numbers of the library and live as long as the PDF.
class Outlined
{
public:
    explicit Outlined(const QByteArray& pdf)
    {
        qpdf_silence_errors(m_pdf.get());
        check(qpdf_read_memory(m_pdf.get(), "report", pdf.constData(),
                               static_cast<unsigned long long>(pdf.size()), nullptr));
    }

    /// Items of an outline form a chain in both directions.
    void add(const std::vector<OutlineEntry>& entries)
    {
        const qpdf_oh outline = newDictionary();
        std::optional<qpdf_oh> last;
        for (const OutlineEntry& entry : entries) {
            const qpdf_oh item = newDictionary();
            set(item, "/Title", qpdf_oh_new_unicode_string(m_pdf.get(), entry.title.toUtf8().constData()));
            set(item, "/Parent", outline);
            set(item, "/Dest", placeOf(entry));
            if (last) {
                set(*last, "/Next", item);
                set(item, "/Prev", *last);
            } else {
                set(outline, "/First", item);
            }
            last = item;
        }
        set(outline, "/Type", qpdf_oh_new_name(m_pdf.get(), "/Outlines"));
        set(outline, "/Last", last.value());
        set(outline, "/Count", qpdf_oh_new_integer(m_pdf.get(), static_cast<long long>(entries.size())));
        set(qpdf_get_root(m_pdf.get()), "/Outlines", outline);
        // Of a single page all entries are on the screen already.
        if (qpdf_get_num_pages(m_pdf.get()) > 1)
            set(qpdf_get_root(m_pdf.get()), "/PageMode", qpdf_oh_new_name(m_pdf.get(), "/UseOutlines"));
    }

    [[nodiscard]] QByteArray written()
    {
        check(qpdf_init_write_memory(m_pdf.get()));
        check(qpdf_write(m_pdf.get()));
        const auto size = static_cast<qsizetype>(qpdf_get_buffer_length(m_pdf.get()));
        return {reinterpret_cast<const char*>(qpdf_get_buffer(m_pdf.get())), size};
    }

private:
    void check(QPDF_ERROR_CODE code)
    {
        if ((code & QPDF_ERRORS) == 0)
            return;
        const qpdf_error error = qpdf_get_error(m_pdf.get());
        throw ReportError(u"The outline of the PDF cannot be written: %1"_s.arg(
            QString::fromUtf8(qpdf_get_error_full_text(m_pdf.get(), error))));
    }

    [[nodiscard]] qpdf_oh newDictionary()
    {
        return qpdf_make_indirect_object(m_pdf.get(), qpdf_oh_new_dictionary(m_pdf.get()));
    }

    void set(qpdf_oh dictionary, const char* key, qpdf_oh value)
    {
        qpdf_oh_replace_key(m_pdf.get(), dictionary, key, value);
    }

    [[nodiscard]] double heightOf(qpdf_oh page)
    {
        const qpdf_oh box = qpdf_oh_get_key(m_pdf.get(), page, "/MediaBox");
        const bool isBox = qpdf_oh_is_array(m_pdf.get(), box) != QPDF_FALSE &&
                           qpdf_oh_get_array_n_items(m_pdf.get(), box) == 4;
        return isBox ? qpdf_oh_get_numeric_value(m_pdf.get(), qpdf_oh_get_array_item(m_pdf.get(), box, 3))
                     : usualHeight;
    }

    [[nodiscard]] qpdf_oh placeOf(const OutlineEntry& entry)
    {
        const qpdf_oh page = qpdf_get_page_n(m_pdf.get(), static_cast<std::size_t>(entry.page));
        const double top = heightOf(page) - entry.top * pointsPerMillimetre;
        const qpdf_oh place = qpdf_oh_new_array(m_pdf.get());
        for (const qpdf_oh item :
             {page, qpdf_oh_new_name(m_pdf.get(), "/XYZ"), qpdf_oh_new_null(m_pdf.get()),
              qpdf_oh_new_real_from_double(m_pdf.get(), top, 1), qpdf_oh_new_null(m_pdf.get())})
            qpdf_oh_append_item(m_pdf.get(), place, item);
        return place;
    }

    std::unique_ptr<_qpdf_data, Cleaner> m_pdf{qpdf_init()};
};

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
                entries.push_back({printable(nameOf(report, line.line)), page, line.place.top()});
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
    Outlined outlined(pdf);
    outlined.add(entries);
    return outlined.written();
}

} // namespace norvane::reports
