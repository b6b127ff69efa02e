// See CsvFile.h.
#include "reports/files/CsvFile.h"

#include "reports/data/PrintableText.h"
#include "reports/files/FormulaGuard.h"
#include "reports/files/TargetFile.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

class CsvWriter
{
public:
    explicit CsvWriter(char separator) : m_separator(separator) {}

    void addValue(const QString& value)
    {
        if (!m_isFirst)
            m_content += m_separator;
        m_isFirst = false;
        addQuoted(value.toUtf8());
    }
    void endLine()
    {
        m_content += "\r\n";
        m_isFirst = true;
    }
    [[nodiscard]] const QByteArray& content() const { return m_content; }

private:
    void addQuoted(QByteArray value)
    {
        const auto isSpecial = [this](char letter) {
            return letter == m_separator || letter == '"';
        };
        if (!value.startsWith(' ') && !value.endsWith(' ') &&
            std::none_of(value.cbegin(), value.cend(), isSpecial)) {
            m_content += value;
            return;
        }
        m_content += '"';
        m_content += value.replace('"', "\"\"");
        m_content += '"';
    }

    QByteArray m_content = "\xEF\xBB\xBF"_ba; ///< begins with the byte order mark of UTF-8
    char m_separator;
    bool m_isFirst = true;
};

/// The cell as the preview shows it, but a number without thousands separators and currency, and a day as
/// yyyy-mm-dd, which every spreadsheet knows.
QString csvValue(const ReportData& report, qsizetype line, int column, char decimalSign)
{
    const ReportCell cell = report.cell(line, column);
    if (const auto* const text = std::get_if<QString>(&cell))
        return guarded(printable(*text));
    if (const auto* const day = std::get_if<QDate>(&cell))
        return day->toString(Qt::ISODate);
    return report.plainText(line, column)
        .replace(QLocale().decimalPoint(), QLatin1StringView(&decimalSign, 1));
}

void addLine(CsvWriter& csv, const ReportData& report, qsizetype line, char decimalSign)
{
    for (int column = 0; column < report.columnCount(); ++column)
        csv.addValue(csvValue(report, line, column, decimalSign));
    csv.endLine();
}

} // namespace

CsvSigns csvSignsOfLocale()
{
    return QLocale().decimalPoint() == ","_L1 ? CsvSigns{';', ','} : CsvSigns{};
}

void writeCsv(const ReportData& report, const QString& path, const KeepGoing& keepGoing)
{
    writeCsvWith(csvSignsOfLocale(), report, path, keepGoing);
}

void writeCsvWith(const CsvSigns& signs, const ReportData& report, const QString& path,
                  const KeepGoing& keepGoing)
{
    CsvWriter csv(signs.separator);
    for (const ReportColumn& column : report.columns())
        csv.addValue(guarded(printable(column.heading)));
    csv.endLine();
    for (qsizetype line = 0; line < report.lineCount(); ++line) {
        if (report.lineKind(line) != LineKind::Remark)
            addLine(csv, report, line, signs.decimal);
        needGoOn(keepGoing);
    }
    replaceFile(path, csv.content());
}

} // namespace norvane::reports
