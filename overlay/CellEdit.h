// One cell of an overlay on the screen.
#pragma once

#include "overlay/CellOrder.h"
#include "overlay/Document.h"
#include "ui/TextBox.h"

class QMenu;

namespace norvane::overlay
{

/// What of a cell's text will be on paper.
struct PrintedText {
    QString text;
    bool isCut = false;
};

/// Shows the part of its text that will print, in the cell's colours and font, and the whole text while it is
/// typed in. A corner is marked when the text will be cut. Undo and redo are the form's.
class CellEdit : public ui::TextBox
{
    Q_OBJECT

public:
    explicit CellEdit(QWidget* parent);

    void showContents(const TextCell& contents, const PrintedText& printed);
    [[nodiscard]] bool isCut() const { return m_printed.isCut; }
    /// Whether the cell is of a selected key.
    void setSelected(bool isSelected);
    /// On paper, only the cell that is typed in paints its contents; the others are on the ground below.
    void setOnPaper(bool isOnPaper);
    /// The key of this cell, in the parent's pixels: a drag selects text within it and keys beyond.
    void setKeyArea(const QRect& area) { m_keyArea = area; }
    /// Size of the keyboard on the screen.
    void setPixelsPerMillimetre(double pixels);

Q_SIGNALS:
    void clicked();
    void doubleClicked();
    void entered(); ///< got the focus
    void left();
    void wayChosen(ArrowDirection direction);
    void extended(ArrowDirection direction); ///< the arrow was pressed with Shift
    void walked();                           ///< came into the cell by the keyboard
    void pressed();                          ///< by a mouse without Shift or Ctrl, which begins something new
    void keyPicked(bool reaches);            ///< with Shift for all keys up to this, with Ctrl for this one
    void draggedTo(QPoint from, QPoint to);  ///< beyond the key, in the parent's pixels
    void menuOpens(QMenu* menu);             ///< further entries may be added
    void nextWanted();
    void previousWanted();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] QFont shownFont() const;
    [[nodiscard]] bool leadsOut(int key) const;
    bool walk(const QKeyEvent& event);
    bool walkByArrow(const QKeyEvent& event);
    bool pickKey(const QMouseEvent& event);
    [[nodiscard]] bool leavesKey(QPoint position) const;
    void takeLook();
    void paintPrinted(QPainter& painter) const;

    TextCell m_contents;
    PrintedText m_printed;
    double m_pixelsPerMillimetre = 1;
    QPoint m_pressedAt;
    QRect m_keyArea;
    bool m_isSelected = false;
    bool m_isOnPaper = false;
    bool m_isDoubleClick = false;
    bool m_isEnteredByMouse = false; ///< by the press that follows
    bool m_isPick = false;
    bool m_isKeyDrag = false;
};

} // namespace norvane::overlay
