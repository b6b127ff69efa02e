// A level of a keyboard on a sheet of paper: what is on every key, in grey.
#pragma once

#include "keys/layout/KeyLevel.h"
#include "paper/Sheet.h"
#include "reports/pages/PageFont.h"

#include <QByteArray>
#include <QDateTime>

class QPagedPaintDevice;
class QPainter;

namespace norvane::keys
{

/// The sheet of every map: A4, across.
inline constexpr paper::Sheet mapSheet{QPageLayout::Landscape, paper::usualMargins};

/// Keys are where they are on the keyboard. Each shows its number, that of its item, and as much of the name
/// as fits. The grey of its background shows what it does; a cross marks an item that does not exist.
class LevelMap
{
public:
    /// Shows @p level as it is now. @param shop and @p printed for the heading.
    LevelMap(const KeyLevel& level, QString shop, const QDateTime& printed);

    [[nodiscard]] QString title() const;
    /// @param painter in mm from the sheet's upper left corner.
    void paint(QPainter& painter) const;
    /// Paints the sheet on @p device, a printer or a PDF. @return false when the device failed.
    [[nodiscard]] bool print(QPagedPaintDevice& device) const;
    /// The sheet as a PDF file; empty if it could not be painted.
    [[nodiscard]] QByteArray pdf() const;
    /// "Key 13: PLU 1013 Matcha Latte"; a fixed key has its text only.
    [[nodiscard]] QString keyText(KeyCell cell) const;
    [[nodiscard]] const KeyGeometry& keyboard() const { return m_keyboard; }
    /// Of a cell, in mm as all lengths here.
    [[nodiscard]] QRectF placeOf(KeyCell cell) const;

private:
    [[nodiscard]] const Key& key(KeyCell cell) const
    {
        const int place = cell.row * m_keyboard.columns + cell.column;
        return m_keys[static_cast<std::size_t>(place)];
    }
    void paintHeading(QPainter& painter) const;
    void paintKey(QPainter& painter, KeyCell cell) const;
    void paintNumbers(QPainter& painter, KeyCell cell) const;
    void paintName(QPainter& painter, const QRectF& place, const QString& name) const;
    void paintLegend(QPainter& painter) const;

    const KeyGeometry& m_keyboard;
    int m_level;
    std::vector<Key> m_keys; ///< row by row
    QString m_shop;
    QDateTime m_printed;
    reports::PageFont m_font;
};

} // namespace norvane::keys
