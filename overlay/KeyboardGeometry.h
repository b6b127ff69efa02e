// The three keyboards as tables: the places on the sheet, and the files of the sheets.
#pragma once

#include "paper/Length.h"

#include <QStringView>

#include <array>
#include <span>

namespace norvane::overlay
{

/// The keyboards that have overlays.
enum class Keyboard { Dorvik, Velmar, Quelmont };

/// Plain and wide keys have three cells, one for each line of text; a single one has one cell.
enum class KeyKind { Plain, Wide, Single };

/// The shape of a key.
struct KeyShape {
    paper::Length width;      ///< of bands and outline
    paper::Length printWidth; ///< that a line of text is cut to
};

/// Keys of one kind, one below the other.
struct KeyRun {
    KeyKind kind = KeyKind::Plain;
    int count = 0;
};

/// Columns alike, side by side.
struct KeyColumns {
    int columns = 0;
    std::array<KeyRun, 2> runs; ///< from the top; the second may be empty
    paper::Length step;         ///< from each of them to the next column
};

/// A cell that a new document has a text for.
struct PresetText {
    int cell = 0;
    QStringView text;
};

/// The files of a keyboard's documents.
struct DocumentFiles {
    QStringView extension;             ///< "*.ky4"
    QStringView filter;                ///< of the file dialogs: name, bar, pattern
    QStringView defaultExtension;      ///< of the dialogs New and Save; a Dorvik's is a Velmar's by tradition
    bool isNewInProgramFolder = false; ///< where the dialog New begins; else in the customer's folder
};

/// The sheet of a keyboard.
struct KeyboardGeometry {
    Keyboard keyboard{};
    QStringView name;     ///< of its form
    paper::Length startX; ///< of the first key, from the corner of the printable area
    paper::Length startY;
    paper::Length keyHeight;
    paper::Length keyStep;  ///< to the next key down
    paper::Length lineStep; ///< to the next line of a key
    paper::Length bandHeight;
    std::array<KeyShape, 3> shapes;          ///< by KeyKind
    std::span<const paper::Length> outlines; ///< heights of the white ones that trim a key of three cells
    std::span<const KeyColumns> columns;     ///< from the left
    std::span<const PresetText> presets;
    DocumentFiles files;
    bool hasImport = false; ///< of levels from the customer's tables

    [[nodiscard]] const KeyShape& shape(KeyKind kind) const { return shapes[static_cast<std::size_t>(kind)]; }
};

[[nodiscard]] const KeyboardGeometry& geometryOf(Keyboard keyboard);

} // namespace norvane::overlay
