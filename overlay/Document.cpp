// See Document.h.
#include "overlay/Document.h"

namespace norvane::overlay
{
namespace
{

/// The number has red in its lowest byte.
QColor drawn(Colour colour, const QColor& systemColour)
{
    if (colour.isSystem())
        return systemColour;
    const auto parts = static_cast<std::uint32_t>(colour.number);
    const auto part = [parts](unsigned shift) {
        return static_cast<int>((parts >> shift) & 0xFFu);
    };
    return {part(0), part(8), part(16)};
}

} // namespace

Colour colourOf(const QColor& colour)
{
    return {colour.red() + 256 * colour.green() + 65536 * colour.blue()};
}

QColor drawnBackground(Colour colour)
{
    return drawn(colour, Qt::white);
}

QColor drawnText(Colour colour)
{
    return drawn(colour, Qt::black);
}

Document::Document(Keyboard keyboard)
    : m_keyboard(keyboard), m_cells(static_cast<std::size_t>(layoutOf(keyboard).cellCount()))
{
    for (const PresetText& preset : geometry().presets)
        cell(preset.cell).text = preset.text.toString();
}

} // namespace norvane::overlay
