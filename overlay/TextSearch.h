// Find and replace over the texts of an overlay.
#pragma once

#include "overlay/Document.h"

#include <vector>

namespace norvane::overlay
{

/// What is sought.
struct SoughtText {
    QString text;
    Qt::CaseSensitivity letterCase = Qt::CaseInsensitive;
};

/// Whether @p cell has the text, or its key has it from this line on to the next: an import cuts words.
[[nodiscard]] bool hasText(const Document& document, int cell, const SoughtText& sought);

/// The next cell that has the text after @p cell in the order of reading, @p order, from its end on to its
/// beginning. @return -1 if no cell has it; @p cell itself if it is the only one.
[[nodiscard]] int findNext(const Document& document, const std::vector<int>& order, int cell,
                           const SoughtText& sought);

/// Replaces the text everywhere in each of @p cells. A text that goes on in the next line remains.
/// @return the number of cells that changed.
int replaceIn(Document& document, const std::vector<int>& cells, const SoughtText& sought,
              const QString& replacement);

} // namespace norvane::overlay
