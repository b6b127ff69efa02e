// See SheetFit.h.
#include "overlay/SheetFit.h"

#include "overlay/SheetPages.h"

#include <algorithm>

namespace norvane::overlay
{
namespace
{

using paper::millimetres;

QRectF printable(const TargetPrinter& target)
{
    return target.sheet.printableRect().adjusted(-marginTolerance, -marginTolerance, marginTolerance,
                                                 marginTolerance);
}

QRectF allKeys(const OverlayLayout& layout, const TargetPrinter& target)
{
    QRectF all;
    for (const OverlayKey& key : layout.keys())
        all = all.united(key.outline());
    return placeOnPaper(target).mapRect(all);
}

/// The distance by which the range @p first to @p last must be moved to be between @p least and @p most.
double moveInto(double first, double last, double least, double most)
{
    return first < least ? least - first : std::min(0.0, most - last);
}

paper::AxisCorrection moved(paper::AxisCorrection axis, double move)
{
    axis.offset = axis.offset + millimetres(move / axis.stretch);
    return axis;
}

} // namespace

std::vector<std::size_t> keysOutside(const OverlayLayout& layout, const TargetPrinter& target)
{
    const QTransform place = placeOnPaper(target);
    const QRectF area = printable(target);
    const std::vector<SheetPage> pages = pagesOf(layout, target);
    std::vector<std::size_t> outside;
    for (std::size_t key = 0; key < layout.keys().size(); ++key) {
        const bool isWhole = std::ranges::any_of(pages, [&](const SheetPage& page) {
            const QRectF outline = layout.keys()[key].outline().translated(page.moved, 0);
            return page.has(layout.keys()[key]) && area.contains(place.mapRect(outline));
        });
        if (!isWhole)
            outside.push_back(key);
    }
    return outside;
}

bool isWiderThanPage(const OverlayLayout& layout, const TargetPrinter& target)
{
    return allKeys(layout, target).width() > printable(target).width();
}

std::optional<paper::PrinterCorrection> correctionToFit(const OverlayLayout& layout,
                                                        const TargetPrinter& target)
{
    const QRectF keys = allKeys(layout, target);
    const QRectF area = target.sheet.printableRect();
    if (keys.width() > area.width() + marginTolerance || keys.height() > area.height() + marginTolerance)
        return std::nullopt;
    return paper::PrinterCorrection{
        moved(target.correction.across, moveInto(keys.left(), keys.right(), area.left(), area.right())),
        moved(target.correction.down, moveInto(keys.top(), keys.bottom(), area.top(), area.bottom()))};
}

} // namespace norvane::overlay
