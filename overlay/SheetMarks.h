// What is printed beside the keys of a sheet, to cut along and to know it by.
#pragma once

#include "overlay/SheetPages.h"

class QPainter;

namespace norvane::overlay
{

/// Paints the target's marks of @p page. They are fine lines in the gaps between keys and outside of them.
/// @param painter in mm from the corner of the printable area, moved as the page says.
void paintMarks(QPainter& painter, const OverlayLayout& layout, const TargetPrinter& target,
                const SheetPage& page);

} // namespace norvane::overlay
