// See CellEdit.h.
#include "overlay/CellEdit.h"

#include "ui/Appearance.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHash>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <array>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr QColor cutMark{0xd0, 0x20, 0x20};
constexpr int markSize = 6;

/// Undo, redo, and copy and paste of whole keys, which some desktops take for those of a text.
bool isForTheForm(const QKeyEvent& event)
{
    const bool isKeyCopy = event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) &&
                           (event.key() == Qt::Key_C || event.key() == Qt::Key_V);
    return isKeyCopy || event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

void paintCutMark(QPainter& painter, const QRect& cell)
{
    const QPoint corner = cell.topRight() + QPoint(1, 0);
    const std::array mark{corner, corner - QPoint(markSize, 0), corner + QPoint(0, markSize)};
    painter.setPen(Qt::NoPen);
    painter.setBrush(cutMark);
    painter.drawPolygon(mark.data(), static_cast<int>(mark.size()));
}

/// Visible on every colour that a key may have: a veil, and stripes at both sides.
void paintSelected(QPainter& painter, const QRect& cell)
{
    constexpr int veilAlpha = 0x38;
    constexpr int stripe = 4;
    QColor veil = ui::colours::accent;
    veil.setAlpha(veilAlpha);
    painter.fillRect(cell, veil);
    for (const int left : {cell.left(), cell.right() - stripe + 1}) {
        painter.fillRect(QRect(left, cell.top(), stripe, cell.height()), Qt::white);
        painter.fillRect(QRect(left, cell.top(), stripe - 1, cell.height()), ui::colours::accent);
    }
}

/// How far beyond its key a drag of text may stray, in shares of the key.
constexpr double strayShare = 0.2;

} // namespace

CellEdit::CellEdit(QWidget* parent) : TextBox(parent)
{
    setFrame(false);
    setTextMargins(0, 0, 0, 0);
    setAlignment(Qt::AlignHCenter);
    setToolTip(u"Double Click changes text & background colours"_s);
    setMaxLength(cellTextLimit);
}

void CellEdit::showContents(const TextCell& contents, const PrintedText& printed)
{
    m_contents = contents;
    m_printed = printed;
    if (text() != contents.text)
        setText(contents.text);
    takeLook();
}

void CellEdit::setSelected(bool isSelected)
{
    m_isSelected = isSelected;
    update();
}

void CellEdit::setOnPaper(bool isOnPaper)
{
    m_isOnPaper = isOnPaper;
    update();
}

void CellEdit::setPixelsPerMillimetre(double pixels)
{
    m_pixelsPerMillimetre = pixels;
    takeLook();
}

/// Fonts and palettes of hundreds of boxes cost time, and only the box in use needs its own.
void CellEdit::takeLook()
{
    update();
    if (!hasFocus())
        return;
    setFont(shownFont());
    QPalette colours = palette();
    colours.setColor(QPalette::Base, drawnBackground(m_contents.background));
    colours.setColor(QPalette::Text, drawnText(m_contents.textColour));
    setPalette(colours);
}

/// A size that prints nothing is shown like the default, so that the text can be corrected.
QFont CellEdit::shownFont() const
{
    const float points = m_contents.font.size > 0 ? m_contents.font.size : CellFont().size;
    QFont shown(m_contents.font.name);
    shown.setBold(m_contents.font.isBold);
    shown.setItalic(m_contents.font.isItalic);
    shown.setPixelSize(qMax(1, qRound(paper::points(points).inMillimetres() * m_pixelsPerMillimetre)));
    return shown;
}

void CellEdit::paintEvent(QPaintEvent* event)
{
    if (hasFocus())
        TextBox::paintEvent(event);
    QPainter painter(this);
    if (!hasFocus() && !m_isOnPaper)
        paintPrinted(painter);
    if (hasFocus()) {
        painter.setPen(QPen(ui::colours::accent, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    if (m_isSelected)
        paintSelected(painter, rect());
    if (m_printed.isCut && !m_isOnPaper)
        paintCutMark(painter, rect());
}

void CellEdit::paintPrinted(QPainter& painter) const
{
    painter.fillRect(rect(), drawnBackground(m_contents.background));
    if (m_printed.text.isEmpty())
        return;
    painter.setFont(shownFont());
    painter.setPen(drawnText(m_contents.textColour));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, m_printed.text);
}

/// The box has its own history, which lacks colours and fonts.
bool CellEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isForTheForm(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return false;
    }
    return TextBox::event(event);
}

void CellEdit::keyPressEvent(QKeyEvent* event)
{
    if (isForTheForm(*event)) {
        event->ignore();
    } else if (!walk(*event)) {
        TextBox::keyPressEvent(event);
    }
}

/// A text that is selected whole has just been entered; arrows lead on from it.
bool CellEdit::leadsOut(int key) const
{
    if (!text().isEmpty() && selectedText() == text())
        return true;
    return !hasSelectedText() && cursorPosition() == (key == Qt::Key_Left ? 0 : text().size());
}

/// Enter leads on in the order of reading, with Shift back.
bool CellEdit::walk(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return walkByArrow(event);
    if (modifiers == Qt::ShiftModifier) {
        Q_EMIT previousWanted();
    } else {
        Q_EMIT nextWanted();
    }
    return true;
}

/// With Shift an arrow selects keys, where it does not select letters.
bool CellEdit::walkByArrow(const QKeyEvent& event)
{
    static const QHash<int, ArrowDirection> ways{{Qt::Key_Left, ArrowDirection::Left},
                                                 {Qt::Key_Right, ArrowDirection::Right},
                                                 {Qt::Key_Up, ArrowDirection::Up},
                                                 {Qt::Key_Down, ArrowDirection::Down}};
    const int key = event.key();
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool isPlain = modifiers == Qt::NoModifier;
    const bool isSideways = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!ways.contains(key) || (!isPlain && modifiers != Qt::ShiftModifier))
        return false;
    if (isSideways && !leadsOut(key) && (isPlain || !m_isSelected))
        return false;
    if (isPlain) {
        Q_EMIT wayChosen(ways.value(key));
    } else {
        Q_EMIT extended(ways.value(key));
    }
    return true;
}

void CellEdit::focusInEvent(QFocusEvent* event)
{
    TextBox::focusInEvent(event);
    takeLook();
    m_isEnteredByMouse = event->reason() == Qt::MouseFocusReason;
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        Q_EMIT walked();
    Q_EMIT entered();
}

void CellEdit::focusOutEvent(QFocusEvent* event)
{
    TextBox::focusOutEvent(event);
    update();
    Q_EMIT left();
}

/// With Shift in the text that is being edited, letters are selected.
bool CellEdit::pickKey(const QMouseEvent& event)
{
    const bool reaches = event.modifiers() == Qt::ShiftModifier && m_isEnteredByMouse;
    if (event.button() != Qt::LeftButton || (!reaches && event.modifiers() != Qt::ControlModifier))
        return false;
    Q_EMIT keyPicked(reaches);
    return true;
}

void CellEdit::mousePressEvent(QMouseEvent* event)
{
    m_pressedAt = event->pos();
    m_isKeyDrag = false;
    m_isPick = pickKey(*event);
    m_isEnteredByMouse = false;
    if (m_isPick)
        return;
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier)
        Q_EMIT pressed();
    TextBox::mousePressEvent(event);
}

bool CellEdit::leavesKey(QPoint position) const
{
    const int across = static_cast<int>(m_keyArea.width() * strayShare);
    const int down = static_cast<int>(m_keyArea.height() * strayShare);
    return !m_keyArea.adjusted(-across, -down, across, down).contains(position);
}

void CellEdit::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = mapToParent(event->pos());
    if (m_isPick)
        return;
    if (!event->buttons().testFlag(Qt::LeftButton) || (!m_isKeyDrag && !leavesKey(position))) {
        TextBox::mouseMoveEvent(event);
        return;
    }
    m_isKeyDrag = true;
    deselect();
    Q_EMIT draggedTo(mapToParent(m_pressedAt), position);
}

/// A drag selects text or keys and is not a click.
void CellEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(m_isPick, false))
        return;
    TextBox::mouseReleaseEvent(event);
    const bool isSecond = std::exchange(m_isDoubleClick, false);
    const bool isDrag = (event->pos() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (event->button() == Qt::LeftButton && !isSecond && !isDrag && !std::exchange(m_isKeyDrag, false))
        Q_EMIT clicked();
}

/// The box itself would select a word, and the new colours could not be seen.
void CellEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_isDoubleClick = true;
    deselect();
    Q_EMIT doubleClicked();
}

/// The box's own menu without its history; what is for the whole key follows.
void CellEdit::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (QAction* const action : menu->actions()) {
        if (action->objectName() == "edit-undo"_L1 || action->objectName() == "edit-redo"_L1)
            menu->removeAction(action);
    }
    menu->addSeparator();
    Q_EMIT menuOpens(menu.get());
    menu->exec(event->globalPos());
}

} // namespace norvane::overlay
