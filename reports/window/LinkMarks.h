// The marks of links on the pages of a preview.
#pragma once

#include "reports/pages/ReportDocument.h"

class QPainter;

namespace norvane::reports
{

/// Paints a small angle after the text of each link on @p page, and a line below the text of the line
/// @p hovered. On paper there is neither.
/// @param painter in millimetres from the sheet's upper left corner.
void paintLinkMarks(QPainter& painter, const ReportDocument& document, int page, qsizetype hovered);

} // namespace norvane::reports
