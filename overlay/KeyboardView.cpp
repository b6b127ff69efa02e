// See KeyboardView.h.
#include "overlay/KeyboardView.h"

#include "overlay/CellEdit.h"
#include "overlay/DocumentEditor.h"
#include "overlay/SheetPainter.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QMenu>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

/// Around the keys, in millimetres.
constexpr double groundMargin = 3;
/// A key's frame, in pixels.
constexpr int keyFrame = 1;
/// Of the surroundings of the current cell that come into view with it, in pixels.
constexpr int reachPixels = 20;
constexpr double trueScale = paper::screenPixelsPerMillimetre;
constexpr double smallestScale = 0.45 * trueScale;

/// As screen readers say it.
QString placeOf(const OverlayKey& key, int cell)
{
    return u"Column %1, key %2, line %3"_s.arg(key.column + 1).arg(key.row + 1).arg(cell - key.firstCell + 1);
}

QRectF boundsOf(const OverlayLayout& layout)
{
    QRectF bounds;
    for (const OverlayKey& key : layout.keys())
        bounds |= key.outline();
    return bounds.adjusted(-groundMargin, -groundMargin, groundMargin, groundMargin);
}

} // namespace

/// The keyboard below the cells: frames of keys on a plain ground.
class KeyboardView::Ground : public QWidget
{
public:
    Ground(const OverlayLayout& layout, QWidget* parent)
        : QWidget(parent), m_layout(layout), m_bounds(boundsOf(layout))
    {
    }

    [[nodiscard]] QSizeF sizeInMillimetres() const { return m_bounds.size(); }
    [[nodiscard]] double scale() const { return m_scale; }
    void setScale(double scale)
    {
        m_scale = scale;
        const QSizeF whole = m_bounds.size() * scale;
        resize(static_cast<int>(whole.width()), static_cast<int>(whole.height()));
        update();
    }
    /// Edges of cells that touch fall on the same pixel.
    [[nodiscard]] QRect pixels(const QRectF& place) const
    {
        const auto pixel = [this](double length) {
            return static_cast<int>(std::lround(length * m_scale));
        };
        const QPoint corner(pixel(place.left() - m_bounds.left()), pixel(place.top() - m_bounds.top()));
        const QPoint end(pixel(place.right() - m_bounds.left()), pixel(place.bottom() - m_bounds.top()));
        return {corner, end - QPoint(1, 1)};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), ui::colours::desktop());
        painter.setPen(QPen(ui::colours::greyedText, keyFrame));
        painter.setBrush(Qt::white);
        for (const OverlayKey& key : m_layout.keys())
            painter.drawRect(pixels(key.outline()).adjusted(-keyFrame, -keyFrame, 0, 0));
    }

private:
    const OverlayLayout& m_layout;
    QRectF m_bounds; ///< of all keys, in millimetres
    double m_scale = trueScale;
};

/// Cells are made in the order of reading, which is the order of Tab then.
KeyboardView::KeyboardView(DocumentEditor& editor, QWidget* parent)
    : QScrollArea(parent), m_editor(editor), m_layout(editor.document().layout()),
      m_ground(new Ground(m_layout, this)), m_cells(static_cast<std::size_t>(m_layout.cellCount())),
      m_order(readingOrder(m_layout))
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

void KeyboardView::showCell(int cell)
{
    const Document& document = m_editor.document();
    const QString printed = printedText(document, cell);
    CellEdit& edit = *m_cells[static_cast<std::size_t>(cell)];
    edit.showContents(document.cell(cell), {printed, printed.size() < document.cell(cell).text.size()});
    edit.setAccessibleName(placeOf(m_layout.keyOf(cell), cell) +
                           (edit.isCut() ? u", wider than its key"_s : QString()));
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

/// The keyboard in true size.
QSize KeyboardView::sizeHint() const
{
    return (m_ground->sizeInMillimetres() * trueScale).toSize();
}

/// A cell that regains the focus from a dialog is the same cell.
void KeyboardView::enter(int cell)
{
    if (std::exchange(m_current, cell) == cell)
        return;
    ensureWidgetVisible(m_cells[static_cast<std::size_t>(cell)], reachPixels, reachPixels);
    Q_EMIT currentCellChanged(cell);
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
