// The find box above a grid.
#pragma once

#include "ui/FindBar.h"

namespace norvane::screens
{

class GridControl;

/// Goes to the first row with what is typed in its number or text, and to the next such row at each Enter.
/// The arrow down leads into that row.
class GridFindBar : public ui::FindBar
{
    Q_OBJECT

public:
    GridFindBar(GridControl& grid, QWidget* parent);

private:
    void find(int step);

    GridControl& m_grid;
};

} // namespace norvane::screens
