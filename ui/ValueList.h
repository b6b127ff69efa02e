// Drop-down list whose rows are the values of a field.
#pragma once

#include <QComboBox>
#include <QStringList>
#include <QVector>

namespace norvane::ui
{

/// Each row has several columns; one of them is the value that is stored, and the user sees all ("3 Drinks").
/// A value without a row is kept until the user picks one: it shows no row, only its own text in grey.
class ValueList : public QComboBox
{
    Q_OBJECT

public:
    explicit ValueList(QWidget* parent = nullptr);

    void setRows(const QVector<QStringList>& rows);
    /// Which column is the value; default 0.
    void setValueColumn(int column);
    /// Widths of the columns in the open list, in device-independent pixels; a column of width 0 is not
    /// shown, columns without a width are as wide as their longest text.
    void setColumnWidths(const QVector<int>& widths);

    /// The value shown or picked; a null text if there is none.
    [[nodiscard]] QString value() const { return m_value; }
    /// Shows the row of @p value; "03" finds 3. A null text clears the list.
    void setValue(const QString& value);

    /// Width at which the box shows its longest row completely, in device-independent pixels.
    [[nodiscard]] int fullWidth() const;

    void showPopup() override;
    /// The tool tip shows the whole row if the box cuts it.
    bool event(QEvent* event) override;

Q_SIGNALS:
    /// The user picked a row.
    void valueEdited();

protected:
    /// The wheel scrolls the screen and changes no value.
    void wheelEvent(QWheelEvent* event) override;

private:
    void takePick(int row);
    [[nodiscard]] int widthFor(int textWidth) const;
    void fillTexts();
    [[nodiscard]] int columnWidth(qsizetype column) const;
    [[nodiscard]] QVector<int> columnsInPixels() const;

    class ColumnsDelegate;
    ColumnsDelegate* m_delegate = nullptr; ///< made for the first look at the open list
    QVector<QStringList> m_rows;
    QVector<int> m_widths;
    int m_valueColumn = 0;
    QString m_value;
};

} // namespace norvane::ui
