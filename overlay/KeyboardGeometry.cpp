// See KeyboardGeometry.h.
#include "overlay/KeyboardGeometry.h"

namespace norvane::overlay
{
namespace
{

using paper::Length;
using paper::millimetres;

constexpr std::array dorvikColumns = {
    KeyColumns{12, {{{KeyKind::Plain, 10}}}, millimetres(18)},
    KeyColumns{3, {{{KeyKind::Plain, 6}, {KeyKind::Single, 4}}}, millimetres(18)},
    KeyColumns{1, {{{KeyKind::Plain, 10}}}, millimetres(18)},
};

constexpr std::array velmarColumns = {
    KeyColumns{9, {{{KeyKind::Plain, 13}}}, millimetres(18)},
    KeyColumns{3, {{{KeyKind::Plain, 9}, {KeyKind::Single, 4}}}, millimetres(18)},
    KeyColumns{1, {{{KeyKind::Plain, 13}}}, millimetres(18)},
};

/// A wide key reaches below the column to its right.
constexpr Length plainStep = millimetres(17);
constexpr Length wideStep = millimetres(19);
constexpr KeyColumns besideWideKeys{1, {{{KeyKind::Plain, 1}}}, plainStep};
constexpr KeyColumns oneAboveFiveWide{1, {{{KeyKind::Plain, 1}, {KeyKind::Wide, 5}}}, wideStep};

constexpr std::array quelmontColumns = {
    KeyColumns{2, {{{KeyKind::Plain, 6}}}, plainStep},
    KeyColumns{3, {{{KeyKind::Plain, 2}}}, plainStep},
    KeyColumns{1, {{{KeyKind::Plain, 6}}}, plainStep},
    oneAboveFiveWide,
    besideWideKeys,
    oneAboveFiveWide,
    besideWideKeys,
    oneAboveFiveWide,
    besideWideKeys,
    KeyColumns{1, {{{KeyKind::Plain, 6}}}, plainStep},
    KeyColumns{1, {{{KeyKind::Plain, 4}, {KeyKind::Wide, 2}}}, wideStep},
    KeyColumns{1, {{{KeyKind::Plain, 4}}}, plainStep},
};

constexpr std::array dorvikOutlines = {millimetres(14)};
constexpr std::array velmarOutlines = {millimetres(12), millimetres(13), millimetres(14)};
constexpr std::array quelmontOutlines = {millimetres(13)};

constexpr std::array<PresetText, 16> dorvikPresets = {{
    {0, u" RECEIPT"},
    {1, u" FEED"},
    {30, u" JOURNAL"},
    {31, u" FEED"},
    {378, u" 7"},
    {379, u" 4"},
    {380, u" 1"},
    {381, u" 0"},
    {400, u" 8"},
    {401, u" 5"},
    {402, u" 2"},
    {403, u"00"},
    {422, u" 9"},
    {423, u" 6"},
    {424, u" 3"},
    {425, u"  ."},
}};

constexpr std::array<PresetText, 12> velmarPresets = {{
    {378, u" 7"},
    {379, u" 4"},
    {380, u" 1"},
    {381, u" 0"},
    {409, u" 8"},
    {410, u" 5"},
    {411, u" 2"},
    {412, u"00"},
    {440, u" 9"},
    {441, u" 6"},
    {442, u" 3"},
    {443, u"  ."},
}};

constexpr KeyShape single17{millimetres(17), millimetres(13)};
constexpr KeyShape plain17{millimetres(17), millimetres(14.7)};
constexpr KeyShape none{};

constexpr std::array<KeyboardGeometry, 3> keyboards = {{
    {.keyboard = Keyboard::Dorvik,
     .name = u"Dorvik",
     .startX = millimetres(0),
     .startY = millimetres(0),
     .keyHeight = millimetres(14),
     .keyStep = millimetres(15),
     .lineStep = millimetres(4.66),
     .bandHeight = millimetres(4.76),
     .shapes = {plain17, none, single17},
     .outlines = dorvikOutlines,
     .columns = dorvikColumns,
     .presets = dorvikPresets,
     .files = {u"*.Dorvik", u"Keyboard Files (*.Dorvik)|*.Dorvik", u"*.Velmar"},
     .hasImport = true},
    {.keyboard = Keyboard::Velmar,
     .name = u"Velmar",
     .startX = millimetres(3),
     .startY = millimetres(-2),
     .keyHeight = millimetres(14),
     .keyStep = millimetres(15),
     .lineStep = millimetres(4.66),
     .bandHeight = millimetres(5.66),
     .shapes = {plain17, none, single17},
     .outlines = velmarOutlines,
     .columns = velmarColumns,
     .presets = velmarPresets,
     .files = {u"*.Velmar", u"Keyboard Files (*.Velmar)|*.Velmar", u"*.Velmar"},
     .hasImport = true},
    {.keyboard = Keyboard::Quelmont,
     .name = u"Quelmont",
     .startX = millimetres(2),
     .startY = millimetres(5),
     .keyHeight = millimetres(13),
     .keyStep = millimetres(17),
     .lineStep = millimetres(4.33),
     .bandHeight = millimetres(5.33),
     .shapes = {KeyShape{millimetres(13), millimetres(10.7)}, KeyShape{millimetres(32), millimetres(29.7)},
                none},
     .outlines = quelmontOutlines,
     .columns = quelmontColumns,
     .presets = {},
     .files = {u"*.ky4", u"Keyboard Files (*.ky4)|*.ky4", u"*.ky4", true},
     .hasImport = false},
}};

} // namespace

const KeyboardGeometry& geometryOf(Keyboard keyboard)
{
    return keyboards[static_cast<std::size_t>(keyboard)];
}

} // namespace norvane::overlay
