// The row in which many items are put on many keys at once.
#pragma once

#include "keys/layout/KeyFill.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace norvane::keys
{

class KeyGrid;
class KeyGridModel;
class KeyListPanel;

/// While it is open, the grid shows on which keys the marked rows of the list would go; the chosen keys and
/// the marked rows can be changed meanwhile. Nothing is put on a key by the bar itself.
class KeyFillBar : public QWidget
{
    Q_OBJECT

public:
    /// @p level, @p grid and @p lists must outlive this. The bar is closed at first.
    KeyFillBar(KeyLevel& level, KeyGrid& grid, KeyListPanel& lists, QWidget* parent);

    void setOpen(bool isOpen);
    /// Shows the preview again: the level has changed.
    void showPreview();
    /// As its button: asks to put the items on the keys, if there are any.
    void put();

Q_SIGNALS:
    void putWanted(const FillPlan& plan);
    void cancelled();

private:
    void layOut();
    void followChoices();
    [[nodiscard]] FillWish wish() const;

    KeyLevel& m_level;
    KeyGrid& m_grid;
    KeyListPanel& m_lists;
    QLabel* m_text;
    QCheckBox* m_skipsUsed;
    QCheckBox* m_skipsPlaced;
    QPushButton* m_put;
    FillPlan m_plan;
};

} // namespace norvane::keys
