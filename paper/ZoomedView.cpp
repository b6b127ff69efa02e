// See ZoomedView.h.
#include "paper/ZoomedView.h"

#include "paper/Length.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

namespace norvane::paper
{
namespace
{

/// Pixels to the millimetre.
constexpr double largestScale = 40;

QString caption(Zoom zoom)
{
    switch (zoom) {
    case Zoom::FitPage:
        return u"Fit page"_s;
    case Zoom::FitWidth:
        return u"Fit width"_s;
    case Zoom::TrueSize:
        return u"100 %"_s;
    case Zoom::Free:
        break;
    }
    return {};
}

} // namespace

ZoomedView::ZoomedView(Zoom zoom, double smallest, QWidget* parent)
    : QAbstractScrollArea(parent), m_zoom(zoom), m_smallest(smallest)
{
    setFocusPolicy(Qt::StrongFocus);
    for (QScrollBar* const bar : {horizontalScrollBar(), verticalScrollBar()})
        bar->setSingleStep(arrowStep);
}

void ZoomedView::setZoom(Zoom zoom)
{
    m_zoom = zoom;
    updateScale();
}

void ZoomedView::zoomTo(double pixels)
{
    m_zoom = Zoom::Free; // before bars appear, which resizes the viewport
    m_scale = pixels;
    setZoom(Zoom::Free);
}

double ZoomedView::wantedScale() const
{
    const QSizeF room = QSizeF(viewport()->size()) - surroundings();
    const double wide = room.width() / sheetSize().width();
    switch (m_zoom) {
    case Zoom::FitPage:
        return qMin(wide, room.height() / sheetSize().height());
    case Zoom::FitWidth:
        return wide;
    case Zoom::TrueSize:
        return screenPixelsPerMillimetre;
    case Zoom::Free:
        break;
    }
    return m_scale;
}

void ZoomedView::updateScale()
{
    m_scale = qBound(m_smallest, wantedScale(), largestScale);
    updateBars();
    viewport()->update();
}

void ZoomedView::updateBars()
{
    const QSizeF contents = contentsSize();
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, qMax(0, static_cast<int>(contents.width()) - viewport()->width()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, qMax(0, static_cast<int>(contents.height()) - viewport()->height()));
}

void ZoomedView::resizeEvent(QResizeEvent* /*event*/)
{
    updateScale();
}

void ZoomedView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    viewport()->update();
}

QComboBox* addZoomBox(QBoxLayout& row, ZoomedView& view, std::initializer_list<Zoom> choices, QWidget* form)
{
    auto* const label = new QLabel(u"&Zoom:"_s, form);
    auto* const box = new QComboBox(form);
    box->setObjectName(u"Zoom"_s);
    label->setBuddy(box);
    for (const Zoom zoom : choices)
        box->addItem(caption(zoom), static_cast<int>(zoom));
    QObject::connect(box, &QComboBox::currentIndexChanged, &view, [box, &view](int index) {
        if (index >= 0)
            view.setZoom(static_cast<Zoom>(box->currentData().toInt()));
    });
    row.addWidget(label);
    row.addWidget(box);
    return box;
}

} // namespace norvane::paper
