// The side on which texts and numbers are lined up.
#pragma once

namespace norvane::reports
{

/// Of a cell within its column, or of a text within its place.
enum class Alignment { Left, Centre, Right };

} // namespace norvane::reports
