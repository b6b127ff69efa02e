// A shop's database of a test's own, and reports over it as texts that a test can compare with what it put
// in.
#pragma once

#include "reports/lines/ReportRun.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "tests/platform/TestFolder.h"

#include <QLocale>

#include <initializer_list>
#include <string>

namespace norvane::reports::test
{

class ReportShop
{
public:
    ReportShop()
    {
        QLocale::setDefault(QLocale::c());
        store::Database::create(path(), store::catalogue());
    }

    [[nodiscard]] QString path() const { return m_folder.path("velmar.mdb"); }
    [[nodiscard]] const norvane::test::TestFolder& folder() const { return m_folder; }

    /// Adds rows to a table: names of fields and their values with "|" between them. An empty value is null.
    void add(const char* table, const char* fields, std::initializer_list<const char*> rows) const
    {
        store::Database database(path());
        store::CommitOnExit transaction(database);
        auto records = database.openTable(QLatin1String(table));
        const QStringList names = QString::fromLatin1(fields).split(u'|');
        for (const char* const row : rows) {
            const QStringList values = QString::fromUtf8(row).split(u'|');
            records.addNew();
            for (qsizetype i = 0; i < names.size(); ++i) {
                records.setValue(names[i],
                                 values[i].isEmpty() ? store::Value() : store::Value::text(values[i]));
            }
            records.update();
        }
    }

    /// A report over this shop on the evening of 25/11/2026.
    [[nodiscard]] ReportRequest request(const QString& layout, const QString& formula = {}) const
    {
        ReportRequest request;
        request.reportFile = layout;
        request.dataFile = path();
        request.selectionFormula = formula;
        request.customer = u"Corner Shop"_s;
        request.now = QDateTime(QDate(2026, 11, 25), QTime(18, 30));
        return request;
    }
    /// One of the layouts that are installed.
    [[nodiscard]] static QString installed(const char* name)
    {
        return QStringLiteral(REPORT_FILES "/") + QLatin1String(name);
    }

private:
    norvane::test::TestFolder m_folder;
};

/// The lines with "|" between the cells, each begun by what it is: "> " a group's heading, "= " a subtotal,
/// "# " the total, "; " a remark.
inline std::string linesOf(const ReportData& data)
{
    QStringList lines;
    for (qsizetype line = 0; line < data.lineCount(); ++line) {
        QStringList cells;
        for (int column = 0; column < data.columnCount(); ++column)
            cells.append(data.text(line, column));
        while (cells.size() > 1 && cells.last().isEmpty())
            cells.removeLast();
        static constexpr const char* marks[] = {"> ", "", "= ", "# ", "; "};
        lines.append(QLatin1String(marks[static_cast<int>(data.lineKind(line))]) + cells.join(u'|'));
    }
    return lines.join(u'\n').toStdString();
}

inline std::string headingsOf(const ReportData& data)
{
    QStringList headings;
    for (const auto& column : data.columns())
        headings.append(column.heading);
    return headings.join(u'|').toStdString();
}

/// What a report's box would say; empty when the report ran.
inline std::string errorOf(const ReportRequest& request)
{
    try {
        (void)runReport(request);
    } catch (const ReportError& error) {
        return error.text().toStdString();
    }
    return {};
}

} // namespace norvane::reports::test
