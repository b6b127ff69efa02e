// Lines as rows, and dragging them; see LookUpGridModel.h.
#include "keys/lookups/LookUpGridModel.h"

#include <QBrush>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

const QString lineType = u"application/x-norvane-look-up-line"_s;

/// Registers separate lines by a carriage return.
QString onScreen(QString text)
{
    return text.replace(u'\r', u'\n');
}

QString textOf(const LookUpLine& line, int number, int column)
{
    switch (column) {
    case LookUpGridModel::LineColumn:
        return QString::number(number);
    case LookUpGridModel::WordColumn:
        return line.word;
    default:
        return onScreen(line.item);
    }
}

/// The first two columns look like headings. Empty lines are pale, so that the used ones stand out.
QVariant lookOf(const LookUpLine& line, int column, int role)
{
    const QPalette palette = QGuiApplication::palette();
    if (role == Qt::BackgroundRole && column != LookUpGridModel::ItemColumn)
        return palette.brush(QPalette::Window);
    if (role == Qt::ForegroundRole && column != LookUpGridModel::LineColumn && line.isEmpty())
        return palette.brush(QPalette::PlaceholderText);
    return {};
}

} // namespace

void LookUpGridModel::setLines(const LookUpLines& lines)
{
    if (lines.size() != m_lines.size()) {
        beginResetModel();
        m_lines = lines;
        endResetModel();
        return;
    }
    m_lines = lines;
    if (!m_lines.empty())
        reportChange(0, rowCount() - 1);
}

void LookUpGridModel::setLine(int line, const LookUpLine& content)
{
    m_lines.at(static_cast<std::size_t>(line)) = content;
    reportChange(line, line);
}

void LookUpGridModel::move(int from, int to)
{
    if (!moveLine(m_lines, from, to))
        return;
    reportChange(std::min(from, to), std::max(from, to));
    Q_EMIT moved(to);
}

void LookUpGridModel::reportChange(int first, int last)
{
    Q_EMIT dataChanged(index(first, 0), index(last, ColumnCount - 1));
}

int LookUpGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int LookUpGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int{ColumnCount};
}

QVariant LookUpGridModel::data(const QModelIndex& index, int role) const
{
    const LookUpLine& line = m_lines.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return textOf(line, index.row() + 1, index.column());
    case Qt::TextAlignmentRole:
        return static_cast<int>((index.column() == LineColumn ? Qt::AlignRight : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    default:
        return lookOf(line, index.column(), role);
    }
}

/// Lines are dropped between or on others; a line has no children.
Qt::ItemFlags LookUpGridModel::flags(const QModelIndex& index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsDropEnabled |
           (index.isValid() ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

QStringList LookUpGridModel::mimeTypes() const
{
    return {lineType};
}

QMimeData* LookUpGridModel::mimeData(const QModelIndexList& indexes) const
{
    auto* const data = new QMimeData;
    data->setData(lineType, QByteArray::number(indexes.first().row()));
    return data;
}

/// Between two lines @p row is the lower one, on a line it is that of @p parent, below all there is none. A
/// view that is notified of a move would clear the old line, so no move is reported.
bool LookUpGridModel::dropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int row, int /*column*/,
                                   const QModelIndex& parent)
{
    const int from = data->data(lineType).toInt();
    if (parent.isValid()) {
        move(from, parent.row());
    } else {
        const int before = row < 0 ? rowCount() : row;
        move(from, before > from ? before - 1 : before);
    }
    return false;
}

} // namespace norvane::keys
