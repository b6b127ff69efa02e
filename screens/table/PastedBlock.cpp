// See PastedBlock.h.
#include "screens/table/PastedBlock.h"

#include "platform/Excerpt.h"
#include "screens/table/CellInput.h"
#include "screens/table/TableModel.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Splits a text into rows and cells, character by character.
class CellReader
{
public:
    explicit CellReader(QString text) : m_text(std::move(text))
    {
        m_text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        if (m_text.endsWith(u'\n'))
            m_text.chop(1);
    }

    QVector<QStringList> rows()
    {
        for (m_at = 0; m_at <= m_text.size(); ++m_at) {
            if (m_at == m_text.size() || m_text[m_at] == u'\n' || m_text[m_at] == u'\t') {
                endCell();
            } else if (m_text[m_at] == u'"' && m_cell.isEmpty() && closingQuote() > 0) {
                readQuoted(closingQuote());
            } else {
                m_cell += m_text[m_at];
            }
        }
        return m_rows;
    }

private:
    void endCell()
    {
        m_row += std::exchange(m_cell, {});
        if (m_at == m_text.size() || m_text[m_at] == u'\n')
            m_rows += std::exchange(m_row, {});
    }

    /// Of the cell that begins with a quote here; 0 if the quote is only a character of it.
    [[nodiscard]] qsizetype closingQuote() const
    {
        for (qsizetype end = m_text.indexOf(u'"', m_at + 1); end > 0; end = m_text.indexOf(u'"', end + 1)) {
            const QChar next = end + 1 < m_text.size() ? m_text[end + 1] : QChar(u'\n');
            if (next == u'\n' || next == u'\t')
                return end;
            if (next == u'"')
                ++end;
        }
        return 0;
    }

    void readQuoted(qsizetype end)
    {
        m_cell = m_text.mid(m_at + 1, end - m_at - 1).replace(u"\"\""_s, u"\""_s);
        m_at = end;
    }

    QString m_text;
    qsizetype m_at = 0;
    QString m_cell;
    QStringList m_row;
    QVector<QStringList> m_rows;
};

QString quotedIfNeeded(const QString& cell)
{
    if (!cell.contains(u'\t') && !cell.contains(u'\n') && !cell.startsWith(u'"'))
        return cell;
    return u'"' + QString(cell).replace(u'"', u"\"\""_s) + u'"';
}

/// One paste.
class Paste
{
public:
    Paste(TableModel& table, const PasteTarget& target) : m_table(table), m_target(target) {}

    void take(std::size_t row, std::size_t column, const QString& text)
    {
        if (row >= m_target.rows.size())
            return refuse(row, u"column %1"_s.arg(column + 1), text, u"has no row to go to"_s);
        if (column >= m_target.columns.size())
            return refuse(row, u"column %1"_s.arg(column + 1), text, u"has no column to go to"_s);
        const int at = m_target.columns[column];
        const TableColumn& definition = m_table.column(at);
        const int place = m_target.rows[row];
        if (!definition.isEditable()) {
            if (definition.text(m_table.value(place, at)) != text.trimmed())
                refuse(row, definition.label, text, u"would change a column that is not changed here"_s);
            return;
        }
        CellInput input = cellInput(definition, text);
        if (!input.value)
            return refuse(row, definition.label, text, input.refusal);
        plan.edits.push_back(m_table.editOf(place, at, *input.value));
    }

    PastePlan plan;

private:
    void refuse(std::size_t row, const QString& column, const QString& text, const QString& why)
    {
        plan.refusals += u"Row %1, %2: \"%3\" %4"_s.arg(row + 1).arg(column, excerpt(text.simplified()), why);
    }

    TableModel& m_table;
    const PasteTarget& m_target;
};

} // namespace

QVector<QStringList> cellsOfText(const QString& text)
{
    return CellReader(text).rows();
}

QString textOfCells(const QVector<QStringList>& cells)
{
    QStringList lines;
    for (const QStringList& row : cells) {
        QStringList line;
        for (const QString& cell : row)
            line += quotedIfNeeded(cell);
        lines += line.join(u'\t');
    }
    return lines.join(u'\n');
}

PastePlan planPaste(TableModel& table, const PasteTarget& target, const QVector<QStringList>& cells)
{
    Paste paste(table, target);
    for (qsizetype row = 0; row < cells.size(); ++row) {
        for (qsizetype column = 0; column < cells[row].size(); ++column)
            paste.take(static_cast<std::size_t>(row), static_cast<std::size_t>(column), cells[row][column]);
    }
    return std::move(paste.plan);
}

} // namespace norvane::screens
