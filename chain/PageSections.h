// What the pages of a chain show, section by section.
#pragma once

#include <span>

namespace norvane::chain
{

/// How a column of a section is shown.
enum class PageColumn {
    Text,
    Name,   ///< a text that may take several lines
    Number, ///< as the server has rounded it, to the right
    Share,  ///< the same in per cent, with a bar beside it
    Shop    ///< the number of a shop, which makes the next column a link to its page
};

struct PageHeading {
    const char* text;
    PageColumn kind;
};

/// A table, with a chart above it if it has bars.
struct PageSection {
    const char* title;
    /// Columns: the shop whose page it is for, null for the page of all; then what the headings name. The
    /// first day of the last 30 and today are $1 and $2.
    const char* query;
    std::span<const PageHeading> headings;
    bool hasBars;     ///< of the second column, and of the third beside it as that of a year earlier
    const char* note; ///< how to read it, may be empty
};

[[nodiscard]] std::span<const PageSection> pageSections();

} // namespace norvane::chain
