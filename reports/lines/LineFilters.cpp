// See LineFilters.h.
#include "reports/lines/LineFilters.h"

#include "platform/FilePaths.h"
#include "reports/data/PrintableText.h"
#include "reports/formula/FormulaTokens.h"
#include "reports/lines/LayoutFields.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

FieldName fieldOf(const LineFilter& filter)
{
    return parseFields(filter.field, nullptr).front();
}

/// A text of digits is compared by value, as lines are added up.
store::Value valueOf(const FieldName& field, const QString& text)
{
    if (field.definition().type == store::FieldType::Date)
        return store::Value::date(QDate::fromString(text, Qt::ISODate));
    bool isWhole = false;
    const qlonglong whole = text.toLongLong(&isWhole);
    if (isWhole)
        return store::Value::whole(whole);
    return field.isText() ? store::Value::text(text) : store::Value::number(text.toDouble());
}

Condition conditionOf(const LineFilter& filter)
{
    Condition condition;
    condition.field = fieldOf(filter);
    condition.kind = filter.value.isEmpty() ? Condition::Kind::Nothing : Condition::Kind::Test;
    condition.comparison = "=";
    if (!filter.value.isEmpty())
        condition.value = valueOf(condition.field, filter.value);
    return condition;
}

void restrict(std::optional<Condition>& where, const Condition& filter)
{
    Condition all;
    if (where)
        all.parts.push_back(std::move(*where));
    all.parts.push_back(filter);
    where = std::move(all);
}

/// The texts that identify a line: those before its first number.
QString nameOf(const ReportData& data, qsizetype line)
{
    QStringList texts;
    for (int column = 0; column < data.namingColumns(); ++column)
        texts << printable(data.text(line, column));
    return texts.join(u' ').simplified();
}

QString besideOrIn(const QString& reportFile, const QString& programFolder, const QString& linked)
{
    const QString beside = QDir(QFileInfo(reportFile).path()).filePath(linked);
    return programFolder.isEmpty() || QFileInfo(existingPath(beside)).isFile()
               ? beside
               : QDir(programFolder).filePath(linked);
}

} // namespace

void addFilters(ReportLayout& layout, const std::vector<LineFilter>& filters, QStringList& others)
{
    for (const LineFilter& filter : filters) {
        const Condition condition = conditionOf(filter);
        if (!layout.reads(*condition.field.table)) {
            others.append(condition.field.table->name);
            continue;
        }
        restrict(layout.source.where, condition);
        for (ChartLayout& chart : layout.charts) {
            if (chart.query)
                restrict(chart.query->where, condition);
        }
    }
}

ReportLink linkOf(const ReportLayout& layout, const std::vector<LineFilter>& filters)
{
    ReportLink link{layout.link->report, layout.link->field.text(), {}};
    const auto isNews = [&layout](const LineFilter& filter) {
        return rootOf(layout, fieldOf(filter)) != layout.link->field;
    };
    std::ranges::copy_if(filters, std::back_inserter(link.filters), isNews);
    return link;
}

QString filterValue(const store::Value& value)
{
    if (namesNothing(value))
        return u""_s;
    return value.isDate() ? value.toDate().toString(Qt::ISODate) : value.toText();
}

std::optional<ReportRequest> linkedRequest(const ReportRequest& request, const ReportData& data,
                                           qsizetype line)
{
    const auto value = data.linkValue(line);
    if (!data.link || !value)
        return std::nullopt;
    ReportRequest linked = request;
    linked.reportFile = besideOrIn(request.reportFile, request.programFolder, data.link->report);
    linked.reportTitle.clear();
    linked.windowTitle.clear();
    linked.filters = data.link->filters;
    linked.filters.push_back({data.link->field, *value, nameOf(data, line)});
    return linked;
}

} // namespace norvane::reports
