// The find box above a grid.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace norvane::screens
{

class GridControl;

/// Goes to the first row with what is typed in its number or text, and to the next such row at each Enter.
/// The arrow down leads into that row.
class GridFindBar : public QWidget
{
    Q_OBJECT

public:
    GridFindBar(GridControl& grid, QWidget* parent);

private:
    void goOn(int fromRow);

    GridControl& m_grid;
    QLineEdit* m_part;
    QLabel* m_outcome;
};

} // namespace norvane::screens
