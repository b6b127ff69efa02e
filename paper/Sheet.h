// A sheet as a printer takes it.
#pragma once

#include "paper/Length.h"

#include <QPageLayout>
#include <QRectF>

namespace norvane::paper
{

/// What remains white at the edges of a sheet.
struct Margins {
    Length left;
    Length top;
    Length right;
    Length bottom;

    bool operator==(const Margins&) const = default;
};

/// Of a PDF, and of printers that do not report theirs.
inline constexpr Margins usualMargins{millimetres(5), millimetres(5), millimetres(5), millimetres(5)};

enum class SheetFormat { A4, Letter };

/// A sheet of paper with its margins.
struct Sheet {
    QPageLayout::Orientation orientation = QPageLayout::Landscape;
    Margins margins = usualMargins;
    SheetFormat format = SheetFormat::A4;

    [[nodiscard]] constexpr Length width() const { return isLandscape() ? longEdge() : shortEdge(); }
    [[nodiscard]] constexpr Length height() const { return isLandscape() ? shortEdge() : longEdge(); }
    /// In mm from the sheet's upper left corner.
    [[nodiscard]] QRectF rect() const { return {0, 0, width().inMillimetres(), height().inMillimetres()}; }
    [[nodiscard]] QRectF printableRect() const
    {
        return rect().adjusted(margins.left.inMillimetres(), margins.top.inMillimetres(),
                               -margins.right.inMillimetres(), -margins.bottom.inMillimetres());
    }

    bool operator==(const Sheet&) const = default;

private:
    [[nodiscard]] constexpr bool isA4() const { return format == SheetFormat::A4; }
    [[nodiscard]] constexpr Length longEdge() const { return millimetres(isA4() ? 297 : 279.4); }
    [[nodiscard]] constexpr Length shortEdge() const { return millimetres(isA4() ? 210 : 215.9); }
    [[nodiscard]] constexpr bool isLandscape() const { return orientation == QPageLayout::Landscape; }
};

} // namespace norvane::paper
