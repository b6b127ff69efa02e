// See UnroundedFont.h.
#include "paper/UnroundedFont.h"

namespace norvane::paper
{

QFont unrounded(QFont font)
{
    font.setPixelSize(unitsPerSquare);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Without kerning a text is as wide as its letters; without ligatures, which any spacing turns off, the
    // letters of a PDF can be searched.
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.05);
    return font;
}

} // namespace norvane::paper
