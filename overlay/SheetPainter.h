// The sheet under the keyboard's cover, key by key.
#pragma once

#include "overlay/OverlayPen.h"

#include <functional>

namespace norvane::overlay
{

/// Paints a document, the same on screen, paper and in files.
class SheetPainter
{
public:
    /// @param painter in millimetres from the corner of the printable area. Both must outlive this.
    SheetPainter(QPainter& painter, const Document& document);

    /// The keys that @p has says: down each column, columns from the left.
    void paint(const std::function<bool(const OverlayKey&)>& has = [](const OverlayKey&) { return true; });

private:
    /// Prints the next @p count keys of three lines.
    void SmallKeys(int count);
    /// Prints the next @p count single or wide keys, which end a column.
    void DoubleKeys(int count);
    void printRun(const KeyRun& run);
    const OverlayKey& takeKey();
    void printThreeLines(const OverlayKey& key);
    void printSingle(const OverlayKey& key);
    void printBands(const OverlayKey& key);
    void trimBands(const OverlayKey& key);
    void printText(const OverlayKey& key, int cell, paper::Length x, paper::Length y);
    [[nodiscard]] paper::Length lineTop(const OverlayKey& key, int line) const;

    const Document& m_document;
    const KeyboardGeometry& m_geometry;
    OverlayPen m_pen;
    std::size_t m_nextKey = 0;
    std::function<bool(const OverlayKey&)> m_has;
};

/// The part of a cell's text that prints: as much as reaches the width of its key.
[[nodiscard]] QString printedText(const Document& document, int cell);
/// The cells whose text is not printed completely, in their order.
[[nodiscard]] std::vector<int> cutCells(const Document& document);

} // namespace norvane::overlay
