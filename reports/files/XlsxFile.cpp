// See XlsxFile.h.
#include "reports/files/XlsxFile.h"

#include "platform/ShownTime.h"
#include "platform/WholeFile.h"
#include "reports/data/PrintableText.h"
#include "reports/files/SpreadsheetCheck.h"
#include "reports/files/TargetFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <memory>
#include <xlsxwriter.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr lxw_row_t headingRow = 4;
constexpr paper::Length letterWidth = paper::millimetres(1.9); ///< in which a spreadsheet counts widths
constexpr qsizetype mostRows = 1048576;                        ///< of a sheet
constexpr std::size_t longestNumber = 15;                      ///< digits that a spreadsheet keeps

/// "0", "#,##0.00", with the currency in quotes before it; a number of varying places shows those that it
/// has.
QByteArray numberFormat(const ReportColumn& column)
{
    if (column.leastDecimals != column.mostDecimals)
        return "General"_ba;
    QByteArray format = column.dress.isGrouped ? "#,##0"_ba : "0"_ba;
    if (column.leastDecimals > 0)
        format += '.' + QByteArray(column.leastDecimals, '0');
    const QString currency = QString(column.dress.currency).remove(u'"');
    return currency.isEmpty() ? format : '"' + currency.toUtf8() + '"' + format;
}

std::uint8_t sideOf(Alignment alignment)
{
    static constexpr std::array<std::uint8_t, 3> sides = {LXW_ALIGN_LEFT, LXW_ALIGN_CENTER, LXW_ALIGN_RIGHT};
    return sides.at(static_cast<std::size_t>(alignment));
}

struct BookFreer {
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
};

/// Fills the one sheet of a workbook, row by row.
class SpreadsheetWriter
{
public:
    SpreadsheetWriter(const ReportData& report, const QByteArray& path) : m_report(report)
    {
        // Each row is written to disk immediately: a list of 100,000 lines would take too much memory.
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        m_book.reset(workbook_new_opt(path.constData(), &options));
        m_sheet = workbook_add_worksheet(m_book.get(), nullptr);
        if (!m_sheet)
            failWriting(QFile::decodeName(path), u"there is no room for temporary files."_s);
        for (const bool isBold : {false, true}) {
            for (const ReportColumn& column : report.columns())
                m_formats.push_back(cellFormat(column, isBold));
        }
    }
    /// @throws ReportCancelled
    void fill(const KeepGoing& keepGoing)
    {
        setUpColumns();
        writeHeading();
        for (qsizetype line = 0; line < m_report.lineCount(); ++line) {
            writeLine(line);
            needGoOn(keepGoing);
        }
        if (m_report.lineCount() == 0)
            writeText(headingRow + 1, 0, m_report.heading.notice, boldText());
    }
    /// @return what went wrong, or nothing.
    [[nodiscard]] QString close()
    {
        const lxw_error error = workbook_close(m_book.release());
        return error == LXW_NO_ERROR ? QString() : QString::fromUtf8(lxw_strerror(error));
    }

private:
    lxw_format* cellFormat(const ReportColumn& column, bool isBold)
    {
        lxw_format* const format = boldIf(isBold);
        format_set_align(format, sideOf(column.alignment));
        if (column.kind == ColumnKind::Number)
            format_set_num_format(format, numberFormat(column).constData());
        if (column.kind == ColumnKind::Date)
            format_set_num_format_index(format, 14); // the day as the reader's system writes it
        return format;
    }
    lxw_format* boldIf(bool isBold)
    {
        lxw_format* const format = workbook_add_format(m_book.get());
        if (isBold)
            format_set_bold(format);
        return format;
    }
    lxw_format* boldText()
    {
        if (!m_bold)
            m_bold = boldIf(true);
        return m_bold;
    }
    [[nodiscard]] lxw_format* format(qsizetype line, int column) const
    {
        const bool isBold = reports::isBold(m_report.lineKind(line));
        const int place = isBold ? m_report.columnCount() + column : column;
        return m_formats[static_cast<std::size_t>(place)];
    }

    void setUpColumns()
    {
        for (int column = 0; column < m_report.columnCount(); ++column) {
            const ReportColumn& shown = m_report.columns()[static_cast<std::size_t>(column)];
            const double letters =
                std::max(shown.width / letterWidth, static_cast<double>(shown.heading.size()) + 2);
            const auto place = static_cast<lxw_col_t>(column);
            worksheet_set_column(m_sheet, place, place, letters, nullptr);
        }
        worksheet_freeze_panes(m_sheet, headingRow + 1, 0);
        // PLU numbers are texts on purpose; the spreadsheet must not mark them with a warning.
        worksheet_ignore_errors(m_sheet, LXW_IGNORE_NUMBER_STORED_AS_TEXT, "A1:XFD1048576");
    }

    void writeHeading()
    {
        const ReportHeading& heading = m_report.heading;
        const QString printed = shownTime(heading.printed);
        writeText(0, 0, heading.title, boldText());
        writeText(1, 0, heading.subtitle, nullptr);
        writeText(2, 0, heading.customer + u"  "_s + printed, nullptr);
        for (int column = 0; column < m_report.columnCount(); ++column) {
            lxw_format* const bold = boldIf(true);
            const ReportColumn& shown = m_report.columns()[static_cast<std::size_t>(column)];
            format_set_align(bold, sideOf(shown.alignment));
            format_set_bottom(bold, LXW_BORDER_THIN);
            writeText(headingRow, column, shown.heading, bold);
        }
    }

    void writeLine(qsizetype line)
    {
        const auto row = static_cast<lxw_row_t>(line) + headingRow + 1;
        for (int column = 0; column < m_report.columnCount(); ++column)
            writeCell(row, line, column);
    }

    void writeCell(lxw_row_t row, qsizetype line, int column)
    {
        const ReportCell cell = m_report.cell(line, column);
        lxw_format* const shown = format(line, column);
        if (const auto* const text = std::get_if<QString>(&cell)) {
            writeText(row, column, *text, shown);
        } else if (const auto* const number = std::get_if<Decimal>(&cell)) {
            writeNumber(row, column, *number, shown);
        } else if (const auto* const day = std::get_if<QDate>(&cell)) {
            writeDay(row, column, *day, shown);
        }
    }

    void writeText(lxw_row_t row, int column, const QString& text, lxw_format* shown)
    {
        worksheet_write_string(m_sheet, row, static_cast<lxw_col_t>(column),
                               printable(text).toUtf8().constData(), shown);
    }

    /// Rounded as in the preview.
    void writeNumber(lxw_row_t row, int column, const Decimal& number, lxw_format* shown)
    {
        const ReportColumn& kept = m_report.columns()[static_cast<std::size_t>(column)];
        const Decimal rounded = number.rounded(kept.mostDecimals);
        if (rounded.text().size() > longestNumber) {
            writeText(row, column, shownNumber(number, kept.leastDecimals, kept.mostDecimals), shown);
        } else {
            worksheet_write_number(m_sheet, row, static_cast<lxw_col_t>(column), rounded.toDouble(), shown);
        }
    }

    void writeDay(lxw_row_t row, int column, const QDate& day, lxw_format* shown)
    {
        lxw_datetime date{day.year(), day.month(), day.day(), 0, 0, 0};
        worksheet_write_datetime(m_sheet, row, static_cast<lxw_col_t>(column), &date, shown);
    }

    const ReportData& m_report;
    std::unique_ptr<lxw_workbook, BookFreer> m_book;
    lxw_worksheet* m_sheet = nullptr;
    lxw_format* m_bold = nullptr;
    std::vector<lxw_format*> m_formats; ///< of the columns, those of detail lines first
};

/// @return the file's content.
QByteArray spreadsheet(const ReportData& report, const QString& path, const KeepGoing& keepGoing)
{
    // On the disk of the target, where there is room for it if anywhere; but nothing is made beside a device.
    QTemporaryFile beside((isReplaceable(path) ? path : QDir::temp().filePath(u"report"_s)) + u".XXXXXX"_s);
    if (!beside.open())
        failWriting(path, beside.errorString());
    const QByteArray name = QFile::encodeName(beside.fileName());
    SpreadsheetWriter writer(report, name);
    writer.fill(keepGoing);
    const QString error = writer.close();
    if (!error.isEmpty())
        failWriting(path, error);
    if (!isWholeSpreadsheet(name))
        failWriting(path, u"the disk is full."_s);
    QFile written(beside.fileName());
    if (!written.open(QIODevice::ReadOnly))
        failWriting(path, written.errorString());
    return written.readAll();
}

} // namespace

void writeXlsx(const ReportData& report, const QString& path, const KeepGoing& keepGoing)
{
    if (report.lineCount() >= mostRows - headingRow)
        failWriting(path, u"a spreadsheet has at most %1 rows; write CSV."_s.arg(mostRows));
    replaceFile(path, spreadsheet(report, path, keepGoing));
}

} // namespace norvane::reports
