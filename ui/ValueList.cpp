// Rows, columns and value of the value list; see ValueList.h.
#include "ui/ValueList.h"

#include "platform/Decimal.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include <algorithm>
#include <numeric>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

constexpr int columnGap = 10;
constexpr int rowPadding = 6;
constexpr int columnsRole = Qt::UserRole;

/// Whether a text means a value: "007" and "7.0" mean 7; other texts are compared as they are.
class SameValue
{
public:
    explicit SameValue(const QString& value)
        : m_text(value.trimmed()), m_number(Decimal::tryParse(value.toStdString()))
    {
    }
    [[nodiscard]] bool operator()(const QString& other) const
    {
        const auto number = m_number ? Decimal::tryParse(other.toStdString()) : std::nullopt;
        return number ? *number == *m_number : other.trimmed() == m_text;
    }

private:
    QString m_text;
    std::optional<Decimal> m_number;
};

} // namespace

/// Draws the columns of the rows below each other.
class ValueList::ColumnsDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setWidths(const QVector<int>& widths) { m_widths = widths; }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, rowPadding);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        row.text.clear();
        QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
        paintColumns(*painter, row, index.data(columnsRole).toStringList());
    }

private:
    void paintColumns(QPainter& painter, const QStyleOptionViewItem& row, const QStringList& columns) const
    {
        const auto role =
            row.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
        QRect place = row.rect.adjusted(columnGap / 2, 0, 0, 0);
        for (qsizetype column = 0; column < columns.size(); ++column) {
            const int width = m_widths.value(column);
            if (width == 0)
                continue;
            place.setRight(column < columns.size() - 1 ? place.left() + width - 1 : row.rect.right());
            QApplication::style()->drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter,
                                                row.palette, true, columns[column], role);
            place.setLeft(place.left() + width + columnGap);
        }
    }

    QVector<int> m_widths;
};

ValueList::ValueList(QWidget* parent) : QComboBox(parent)
{
    setMaxVisibleItems(16);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(this, &QComboBox::activated, this, &ValueList::takePick);
}

void ValueList::setRows(const QVector<QStringList>& rows)
{
    m_rows = rows;
    fillTexts();
}

void ValueList::setValueColumn(int column)
{
    m_valueColumn = column;
    setValue(m_value);
}

void ValueList::setColumnWidths(const QVector<int>& widths)
{
    m_widths = widths;
    fillTexts();
}

void ValueList::fillTexts()
{
    clear();
    for (const QStringList& row : std::as_const(m_rows)) {
        QStringList shown;
        for (qsizetype column = 0; column < row.size(); ++column) {
            if (m_widths.value(column, 1) != 0)
                shown += row[column];
        }
        addItem(shown.join(u"  "_s), row);
    }
    setValue(m_value);
}

void ValueList::setValue(const QString& value)
{
    m_value = value;
    const auto hasValue = [this, isSame = SameValue(value)](const QStringList& row) {
        return isSame(row.value(m_valueColumn));
    };
    const auto row = value.isNull() ? m_rows.cend() : std::find_if(m_rows.cbegin(), m_rows.cend(), hasValue);
    const bool found = row != m_rows.cend();
    setCurrentIndex(found ? static_cast<int>(row - m_rows.cbegin()) : -1);
    setPlaceholderText(found ? QString() : value);
}

void ValueList::takePick(int row)
{
    m_value = m_rows.value(row).value(m_valueColumn);
    setPlaceholderText({});
    Q_EMIT valueEdited();
}

int ValueList::columnWidth(qsizetype column) const
{
    if (column < m_widths.size())
        return m_widths[column];
    int widest = 0;
    for (const QStringList& row : m_rows)
        widest = qMax(widest, fontMetrics().horizontalAdvance(row.value(column)));
    return widest;
}

QVector<int> ValueList::columnsInPixels() const
{
    qsizetype columns = 0;
    for (const QStringList& row : m_rows)
        columns = qMax(columns, row.size());
    QVector<int> widths;
    for (qsizetype column = 0; column < columns; ++column)
        widths += columnWidth(column);
    return widths;
}

void ValueList::showPopup()
{
    const QVector<int> widths = columnsInPixels();
    const int gaps = columnGap * static_cast<int>(widths.size() + 1);
    view()->setMinimumWidth(std::accumulate(widths.cbegin(), widths.cend(), gaps) +
                            view()->verticalScrollBar()->sizeHint().width());
    if (!m_delegate) {
        m_delegate = new ColumnsDelegate(this);
        view()->setItemDelegate(m_delegate);
    }
    m_delegate->setWidths(widths);
    QComboBox::showPopup();
}

int ValueList::widthFor(int textWidth) const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize text(textWidth, fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this).width();
}

int ValueList::fullWidth() const
{
    int widest = 0;
    for (int row = 0; row < count(); ++row)
        widest = qMax(widest, fontMetrics().horizontalAdvance(itemText(row)));
    return widthFor(widest);
}

bool ValueList::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const int needed = widthFor(fontMetrics().horizontalAdvance(currentText()));
        setToolTip(width() < needed ? currentText() : QString());
    }
    return QComboBox::event(event);
}

void ValueList::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace norvane::ui
