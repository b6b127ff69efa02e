// An overlay document: a fixed list of text cells, each with its own colours and font.
#pragma once

#include "overlay/OverlayLayout.h"

#include <QColor>
#include <QString>

#include <cstdint>
#include <map>
#include <vector>

namespace norvane::overlay
{

/// A colour as documents number it: red + 256 x green + 65,536 x blue. A negative number is a colour of the
/// computer's desktop, which paper does not have: see drawnBackground() and drawnText().
struct Colour {
    std::int32_t number = 0;

    [[nodiscard]] bool isSystem() const { return number < 0; }
    bool operator==(const Colour&) const = default;
};

inline constexpr Colour white{16777215};
inline constexpr Colour black{0};
inline constexpr Colour lightGrey{12632256}; ///< number 7 of the palette of 16 colours

[[nodiscard]] Colour colourOf(const QColor& colour);
/// A system colour is drawn as window: white.
[[nodiscard]] QColor drawnBackground(Colour colour);
/// A system colour is drawn as window text: black.
[[nodiscard]] QColor drawnText(Colour colour);

/// The font of a cell.
struct CellFont {
    QString name = QStringLiteral("Arial");
    float size = 8; ///< points; a document may say any number, one that is not above 0 prints nothing
    bool isBold = true;
    bool isItalic = false;

    bool operator==(const CellFont&) const = default;
};

/// A text cell with its colours and font.
struct TextCell {
    QString text; ///< leading blanks count
    Colour background = white;
    Colour textColour = black;
    CellFont font;

    bool operator==(const TextCell&) const = default;
};

/// The colours of the keys of a group of PLUs.
struct GroupColours {
    Colour background = white;
    Colour textColour = black;

    bool operator==(const GroupColours&) const = default;
};

/// What is remembered with a document, in a file of its own: see NotesFile.
struct DocumentNotes {
    int level = 0;                      ///< imported last, from 1; 0 for none
    std::map<int, GroupColours> groups; ///< by the group's number

    bool operator==(const DocumentNotes&) const = default;
};

/// The most characters that a cell holds; a file with a longer line is not an overlay.
inline constexpr int cellTextLimit = 32767;

/// A value: a copy is an independent document, for undo.
class Document
{
public:
    /// A new document: the defaults with the keyboard's preset texts.
    explicit Document(Keyboard keyboard);

    [[nodiscard]] Keyboard keyboard() const { return m_keyboard; }
    [[nodiscard]] const KeyboardGeometry& geometry() const { return geometryOf(m_keyboard); }
    [[nodiscard]] const OverlayLayout& layout() const { return layoutOf(m_keyboard); }

    [[nodiscard]] int cellCount() const { return static_cast<int>(m_cells.size()); }
    [[nodiscard]] const std::vector<TextCell>& cells() const { return m_cells; }
    /// @param index from 0 to cellCount() - 1.
    [[nodiscard]] const TextCell& cell(int index) const { return m_cells[static_cast<std::size_t>(index)]; }
    [[nodiscard]] TextCell& cell(int index) { return m_cells[static_cast<std::size_t>(index)]; }

    [[nodiscard]] const DocumentNotes& notes() const { return m_notes; }
    [[nodiscard]] DocumentNotes& notes() { return m_notes; }

    bool operator==(const Document&) const = default;

private:
    Keyboard m_keyboard;
    std::vector<TextCell> m_cells;
    DocumentNotes m_notes;
};

} // namespace norvane::overlay
