// See ReportData.h.
#include "reports/ReportData.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

struct ShownCell {
    const ReportColumn& column;

    QString operator()(std::monostate) const { return {}; }
    QString operator()(const QString& text) const { return text; }
    QString operator()(const QDate& day) const { return QLocale().toString(day, QLocale::ShortFormat); }
    QString operator()(const Decimal& number) const
    {
        return shownNumber(number, column.leastDecimals, column.mostDecimals);
    }
};

} // namespace

void ReportData::addLine(LineKind kind, std::vector<Cell> cells)
{
    Q_ASSERT(cells.size() <= m_columns.size());
    cells.resize(m_columns.size());
    m_kinds.push_back(kind);
    std::move(cells.begin(), cells.end(), std::back_inserter(m_cells));
}

LineKind ReportData::lineKind(qsizetype line) const
{
    return m_kinds.at(static_cast<std::size_t>(line));
}

Cell ReportData::cell(qsizetype line, int column) const
{
    return m_cells.at(static_cast<std::size_t>(line) * m_columns.size() + static_cast<std::size_t>(column));
}

QString ReportData::text(qsizetype line, int column) const
{
    return std::visit(ShownCell{m_columns.at(static_cast<std::size_t>(column))}, cell(line, column));
}

QString shownNumber(const Decimal& number, int leastDecimals, int mostDecimals)
{
    QString text = QString::fromStdString(number.rounded(mostDecimals).text());
    const qsizetype point = text.indexOf(u'.');
    const qsizetype places = point < 0 ? 0 : text.size() - point - 1;
    if (places < leastDecimals) {
        if (point < 0)
            text += u'.';
        text += QString(leastDecimals - places, u'0');
    }
    return text.replace(u"."_s, QLocale().decimalPoint());
}

} // namespace norvane::reports
