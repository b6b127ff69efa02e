// See KeyboardView.h.
#include "overlay/KeyboardView.h"

#include "overlay/CellEdit.h"
#include "overlay/DocumentEditor.h"
#include "overlay/KeyboardGround.h"
#include "overlay/SheetPainter.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QKeyEvent>
#include <QMenu>
#include <QResizeEvent>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

/// Of the surroundings of the current cell that come into view with it, in pixels.
constexpr int reachPixels = 20;
constexpr double trueScale = paper::screenPixelsPerMillimetre;
constexpr double smallestScale = 0.45 * trueScale;

} // namespace

/// Cells are made in the order of reading, which is the order of Tab then.
KeyboardView::KeyboardView(DocumentEditor& editor, QWidget* parent)
    : QScrollArea(parent), m_editor(editor), m_layout(editor.document().layout()),
      m_ground(new KeyboardGround(m_layout, this)), m_cells(static_cast<std::size_t>(m_layout.cellCount())),
      m_order(readingOrder(m_layout)), m_selection(m_layout)
{
    ui::nameControl(*this, u"Keyboard"_s);
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::NoFrame);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, ui::colours::desktop());
    setPalette(colours);
    for (const int cell : m_order)
        makeCell(cell);
    setWidget(m_ground);
    connect(m_ground, &KeyboardGround::draggedTo, this, &KeyboardView::selectBetween);
    placeCells();
    connect(&m_editor, &DocumentEditor::cellChanged, this, &KeyboardView::showCell);
}

void KeyboardView::makeCell(int cell)
{
    auto* const edit = new CellEdit(m_ground);
    m_cells[static_cast<std::size_t>(cell)] = edit;
    ui::nameControl(*edit, u"RichTextBox1_%1"_s.arg(cell));
    showCell(cell);
    connectCell(cell);
    connectSelection(cell);
}

void KeyboardView::connectCell(int cell)
{
    const auto* const edit = m_cells[static_cast<std::size_t>(cell)];
    connect(edit, &CellEdit::textEdited, this,
            [this, cell](const QString& text) { m_editor.setText(cell, text); });
    connect(edit, &CellEdit::clicked, this, [this, cell] { m_editor.click(cell); });
    connect(edit, &CellEdit::doubleClicked, this, [this, cell] { m_editor.doubleClick(cell); });
    connect(edit, &CellEdit::entered, this, [this, cell] { enter(cell); });
    connect(edit, &CellEdit::menuOpens, this, [this](QMenu* menu) { menu->addActions(actions()); });
    connect(edit, &CellEdit::left, &m_editor, &DocumentEditor::endTyping);
    connect(edit, &CellEdit::nextWanted, this, [this, cell] { step(cell, 1); });
    connect(edit, &CellEdit::previousWanted, this, [this, cell] { step(cell, -1); });
    connect(edit, &CellEdit::wayChosen, this,
            [this, cell](ArrowDirection direction) { goTo(neighbour(m_layout, cell, direction)); });
}

void KeyboardView::connectSelection(int cell)
{
    const auto* const edit = m_cells[static_cast<std::size_t>(cell)];
    const auto clear = [this] {
        select(&KeySelection::clear);
    };
    const auto current = [this] {
        return m_layout.keyIndex(m_current);
    };
    connect(edit, &CellEdit::pressed, this, clear);
    connect(edit, &CellEdit::walked, this, clear);
    connect(edit, &CellEdit::draggedTo, this, &KeyboardView::selectBetween);
    connect(edit, &CellEdit::extended, this, [this, current](ArrowDirection direction) {
        select([&](KeySelection& keys) { keys.extend(current(), direction); });
        ensureWidgetVisible(m_cells[static_cast<std::size_t>(m_layout.key(m_selection.end()).firstCell)]);
    });
    // The press has made its cell the current one already.
    connect(edit, &CellEdit::keyPicked, this, [this, current](bool reaches) {
        select([&](KeySelection& keys) {
            if (reaches) {
                keys.extendTo(m_layout.keyIndex(m_cameFrom), current());
            } else {
                keys.toggle(current());
            }
        });
    });
}

/// Only cells whose state changes are painted again.
void KeyboardView::select(const std::function<void(KeySelection&)>& work)
{
    const KeySelection before = m_selection;
    work(m_selection);
    if (m_selection == before)
        return;
    for (int cell = 0; cell < m_layout.cellCount(); ++cell) {
        const int key = m_layout.keyIndex(cell);
        if (m_selection.has(key) == before.has(key))
            continue;
        m_cells[static_cast<std::size_t>(cell)]->setSelected(m_selection.has(key));
        nameCell(cell);
    }
    Q_EMIT selectionChanged();
}

void KeyboardView::selectBetween(QPoint from, QPoint to)
{
    const QRectF area = QRectF(m_ground->millimetres(from), m_ground->millimetres(to)).normalized();
    select([&area](KeySelection& keys) { keys.selectArea(area); });
    ensureVisible(to.x(), to.y(), reachPixels, reachPixels);
}

std::vector<int> KeyboardView::chosenCells() const
{
    KeySelection chosen = m_selection;
    if (chosen.isEmpty())
        chosen.select({m_layout.keyIndex(m_current)});
    return chosen.cells();
}

void KeyboardView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !m_selection.isEmpty()) {
        select(&KeySelection::clear);
    } else {
        QScrollArea::keyPressEvent(event);
    }
}

void KeyboardView::showCell(int cell)
{
    const Document& document = m_editor.document();
    const QString printed = printedText(document, cell);
    CellEdit& edit = *m_cells[static_cast<std::size_t>(cell)];
    edit.showContents(document.cell(cell), {printed, printed.size() < document.cell(cell).text.size()});
    nameCell(cell);
    m_ground->refreshPaper();
}

void KeyboardView::setAsPrinted(bool isAsPrinted)
{
    m_ground->showPaper(isAsPrinted ? &m_editor.document() : nullptr);
    for (CellEdit* const cell : m_cells)
        cell->setOnPaper(isAsPrinted);
}

void KeyboardView::nameCell(int cell)
{
    CellEdit& edit = *m_cells[static_cast<std::size_t>(cell)];
    edit.setAccessibleName(placeName(m_layout, cell) +
                           (edit.isCut() ? u", wider than its key"_s : QString()) +
                           (m_selection.has(m_layout.keyIndex(cell)) ? u", selected"_s : QString()));
}

bool KeyboardView::isCut(int cell) const
{
    return m_cells[static_cast<std::size_t>(cell)]->isCut();
}

double KeyboardView::fittingScale() const
{
    const QSizeF whole = m_ground->sizeInMillimetres();
    const QSize room = maximumViewportSize();
    return std::max(smallestScale, std::min(room.width() / whole.width(), room.height() / whole.height()));
}

void KeyboardView::setZoom(int percent)
{
    m_zoom = percent;
    placeCells();
    ensureWidgetVisible(m_cells[static_cast<std::size_t>(m_current)], reachPixels, reachPixels);
}

void KeyboardView::placeCells()
{
    m_ground->setScale(m_zoom > 0 ? m_zoom * trueScale / 100 : fittingScale());
    for (const OverlayKey& key : m_layout.keys()) {
        QRectF line = key.outline();
        line.setHeight(line.height() / key.cells);
        for (int cell = key.firstCell; cell <= key.lastCell(); ++cell) {
            CellEdit& edit = *m_cells[static_cast<std::size_t>(cell)];
            edit.setGeometry(m_ground->pixels(line));
            edit.setKeyArea(m_ground->pixels(key.outline()));
            edit.setPixelsPerMillimetre(m_ground->scale());
            line.translate(0, line.height());
        }
    }
}

void KeyboardView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (m_zoom == 0)
        placeCells();
}

double KeyboardView::shownScale() const
{
    return m_ground->scale() / trueScale;
}

/// The keyboard in true size.
QSize KeyboardView::sizeHint() const
{
    return (m_ground->sizeInMillimetres() * trueScale).toSize();
}

/// A cell that regains the focus from a dialog is the same cell.
void KeyboardView::enter(int cell)
{
    m_cameFrom = std::exchange(m_current, cell);
    if (m_cameFrom == cell)
        return;
    ensureWidgetVisible(m_cells[static_cast<std::size_t>(cell)], reachPixels, reachPixels);
    Q_EMIT currentCellChanged(cell);
}

void KeyboardView::makeCurrent(int cell)
{
    enter(cell);
}

QRect KeyboardView::placeOnScreen(int cell) const
{
    const CellEdit& edit = *m_cells[static_cast<std::size_t>(cell)];
    return {edit.mapToGlobal(QPoint()), edit.size()};
}

void KeyboardView::goTo(int cell)
{
    m_cells[static_cast<std::size_t>(cell)]->setFocus(Qt::TabFocusReason);
}

/// The first and the last cell are the ends of the walk.
void KeyboardView::step(int cell, int by)
{
    const auto place = std::ranges::find(m_order, cell) - m_order.begin() + by;
    if (place >= 0 && place < std::ssize(m_order))
        goTo(m_order[static_cast<std::size_t>(place)]);
}

} // namespace norvane::overlay
