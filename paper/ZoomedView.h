// Sheets of paper on the screen, in a size that the user chooses.
#pragma once

#include <QAbstractScrollArea>

#include <initializer_list>

class QBoxLayout;
class QComboBox;

namespace norvane::paper
{

/// How large a view shows its sheets.
enum class Zoom {
    FitPage,
    FitWidth,
    TrueSize,
    Free, ///< the user's own size
};

/// Keeps the scale and sets the scroll bars. Derived views paint the sheets and say how large they are.
class ZoomedView : public QAbstractScrollArea
{
public:
    virtual void setZoom(Zoom zoom);
    [[nodiscard]] double pixelsPerMillimetre() const { return m_scale; }

protected:
    /// @param smallest scale, in pixels to the millimetre.
    ZoomedView(Zoom zoom, double smallest, QWidget* parent);

    /// Size of one sheet, in mm.
    [[nodiscard]] virtual QSizeF sheetSize() const = 0;
    /// What must be beside a sheet in the viewport, in pixels.
    [[nodiscard]] virtual QSizeF surroundings() const = 0;
    /// Size of all that can be scrolled to, in pixels at the current scale.
    [[nodiscard]] virtual QSizeF contentsSize() const = 0;

    /// Fits the scale to zoom, sheet and viewport. To be called when the sheet is another.
    virtual void updateScale();
    /// To be called when there are more or fewer sheets.
    void updateBars();
    /// Zooms to @p pixels to the millimetre, within limits.
    void zoomTo(double pixels);

    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

    /// Pixels that an arrow key scrolls.
    static constexpr int arrowStep = 40;

private:
    [[nodiscard]] double wantedScale() const;

    Zoom m_zoom;
    double m_smallest;
    double m_scale = 1; ///< pixels to the millimetre
};

/// Adds a box for the zoom of @p view, with a label, to @p row of @p form. The first choice is the view's
/// own.
QComboBox* addZoomBox(QBoxLayout& row, ZoomedView& view, std::initializer_list<Zoom> choices, QWidget* form);

} // namespace norvane::paper
