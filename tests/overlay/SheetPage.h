// A sheet or test page on paper, read in millimetres.
#pragma once

#include "overlay/SheetPrint.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/OtherPrograms.h"

#include <gtest/gtest.h>
#include <QFileInfo>
#include <QImage>
#include <QRectF>

#include <algorithm>
#include <array>

namespace norvane::test
{

/// Neighbours differ, and each is full or empty in every part, so that a half covered dot is distinguished.
inline constexpr std::array<QRgb, 6> cellColours = {0xffff0000, 0xff00ff00, 0xff0000ff,
                                                    0xffffff00, 0xffff00ff, 0xff00ffff};

inline QRgb colourOfCell(int cell)
{
    return cellColours[static_cast<std::size_t>(cell) % cellColours.size()];
}

/// A rendered PDF of one A4 page, ten dots to the millimetre.
class SheetPage
{
public:
    explicit SheetPage(const QString& pdf) : m_image(pdfPage(pdf, 1))
    {
        EXPECT_NEAR(m_image.width(), 2970, 1);
    }
    static SheetPage of(const overlay::Document& document, const overlay::TargetPrinter& target = {})
    {
        const TestFolder folder;
        writeSheetPdf(document, target, folder.path("a.pdf"));
        EXPECT_LT(QFileInfo(folder.path("a.pdf")).size(), 500 * 1000);
        return SheetPage(folder.path("a.pdf"));
    }
    /// Where the other page differs within an area.
    [[nodiscard]] QRectF difference(const SheetPage& other, const QRectF& area) const
    {
        QRectF differing;
        for (int y = static_cast<int>(area.top() * 10); y < area.bottom() * 10; ++y) {
            for (int x = static_cast<int>(area.left() * 10); x < area.right() * 10; ++x) {
                if (m_image.pixel(x, y) != other.m_image.pixel(x, y))
                    differing |= QRectF(x / 10.0, y / 10.0, 0.1, 0.1);
            }
        }
        return differing;
    }
    /// The colour at a dot, each part full or empty.
    [[nodiscard]] QRgb at(double x, double y) const
    {
        const QRgb dot = dotAt(x, y);
        const auto full = [](int part) {
            return part < 0x80 ? 0 : 0xff;
        };
        return qRgb(full(qRed(dot)), full(qGreen(dot)), full(qBlue(dot)));
    }
    /// How far the colour at a place extends in a direction; -1 if it is another one.
    [[nodiscard]] double reach(double x, double y, double stepX, double stepY, QRgb colour) const
    {
        int steps = 0;
        while (at(x + steps * stepX, y + steps * stepY) == colour)
            ++steps;
        return steps / 10.0 - 0.05;
    }
    [[nodiscard]] bool isWhite(const QRectF& area) const
    {
        for (double y = area.top(); y < area.bottom(); y += 0.1) {
            for (double x = area.left(); x < area.right(); x += 0.1) {
                if (at(x, y) != 0xffffffff)
                    return false;
            }
        }
        return true;
    }
    /// The light grey line that crosses a place, down or across it.
    [[nodiscard]] double greyWidth(double x, double y, double stepX, double stepY) const
    {
        double width = 0;
        for (int step = -6; step < 6; ++step) {
            const QRgb dot = dotAt(x + step * stepX, y + step * stepY);
            const auto [least, most] = std::minmax({qRed(dot), qGreen(dot), qBlue(dot)});
            width += least > 0x60 && most < 0xe0 ? 0.1 : 0;
        }
        return width;
    }
    /// The dark dots in an area.
    [[nodiscard]] QRectF darkPart(const QRectF& area) const
    {
        QRectF dark;
        for (int y = static_cast<int>(area.top() * 10); y < area.bottom() * 10; ++y) {
            for (int x = static_cast<int>(area.left() * 10); x < area.right() * 10; ++x) {
                if (qGray(m_image.pixel(x, y)) < 0x80)
                    dark |= QRectF(x / 10.0, y / 10.0, 0.1, 0.1);
            }
        }
        return dark;
    }

private:
    [[nodiscard]] QRgb dotAt(double x, double y) const
    {
        return m_image.pixel(static_cast<int>(x * 10), static_cast<int>(y * 10));
    }

    QImage m_image;
};

} // namespace norvane::test
