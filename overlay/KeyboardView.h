// The cells of an overlay at the places of the keyboard's keys.
#pragma once

#include "overlay/KeySelection.h"

#include <QScrollArea>

#include <functional>
#include <vector>

namespace norvane::overlay
{

class CellEdit;
class DocumentEditor;
class KeyboardGround;

/// Shows a document in the shape of its keyboard, as large as fits or in a fixed size, and passes typed text
/// and clicks to the editor. Tab, Enter and the arrow keys move through the cells, whose menus offer the
/// actions of this widget. A drag over several keys, Shift with the arrow keys or a click, and Ctrl with a
/// click select keys; Escape, a click and walking on end the selection.
class KeyboardView : public QScrollArea
{
    Q_OBJECT

public:
    /// @p editor must outlive this.
    KeyboardView(DocumentEditor& editor, QWidget* parent);

    /// @param percent of true size; 0 for what fits into the window.
    void setZoom(int percent);
    /// Whether the keys look as they will on paper, with what covers what, or as cells to type in.
    void setAsPrinted(bool isAsPrinted);
    /// The cell that has or had the focus last.
    [[nodiscard]] int currentCell() const { return m_current; }
    /// Scrolls to @p cell and gives it the focus.
    void goTo(int cell);
    [[nodiscard]] QSize sizeHint() const override;
    /// Scrolls to @p cell and makes it the current one, without the focus.
    void makeCurrent(int cell);
    /// Where @p cell is on the screen.
    [[nodiscard]] QRect placeOnScreen(int cell) const;
    /// Selects what @p work selects and shows it.
    void select(const std::function<void(KeySelection&)>& work);
    [[nodiscard]] const KeySelection& selection() const { return m_selection; }
    /// The cells of the selected keys, or those of the current key if none is selected.
    [[nodiscard]] std::vector<int> chosenCells() const;
    /// Pixels to the millimetre, in shares of true size.
    [[nodiscard]] double shownScale() const;
    /// Whether a part of the cell's text will not print.
    [[nodiscard]] bool isCut(int cell) const;

Q_SIGNALS:
    void currentCellChanged(int cell);
    void selectionChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeCell(int cell);
    void connectCell(int cell);
    void connectSelection(int cell);
    void showCell(int cell);
    void nameCell(int cell);
    void selectBetween(QPoint from, QPoint to);
    void placeCells();
    void enter(int cell);
    void step(int cell, int by);
    [[nodiscard]] double fittingScale() const;

    DocumentEditor& m_editor;
    const OverlayLayout& m_layout;
    KeyboardGround* m_ground;
    std::vector<CellEdit*> m_cells; ///< by index
    std::vector<int> m_order;       ///< of reading
    KeySelection m_selection;
    int m_zoom = 0;
    int m_current = 0;
    int m_cameFrom = 0; ///< current before
};

} // namespace norvane::overlay
