// The sheets on paper, measured: a PDF of each keyboard, ten dots to the millimetre, beside where the keys of
// the real keyboard are.
#include "tests/overlay/SheetPage.h"

#include <array>
#include <vector>

namespace norvane::test
{
namespace
{

using namespace overlay;

struct KeyMeasure {
    double width;              ///< of the visible bands, which begin 0.34 right of the key's corner
    std::vector<double> edges; ///< between the visible bands, down from the key's corner
    double middle;             ///< of a text, right of the key's corner
    std::vector<double> lines; ///< tops of the texts
};

struct ColumnMeasure {
    double x; ///< of the keys' corners on the page
    int plain;
    int other; ///< wide or single keys below
};

struct KeyboardMeasure {
    Keyboard keyboard;
    double top; ///< of the first key's corner on the page
    double step;
    double widths; ///< from key to key across
    KeyMeasure plain;
    KeyMeasure other;
    std::vector<ColumnMeasure> columns;
};

constexpr double edge = 0.34; ///< half of 8 dots, 300 to the inch

const std::vector<ColumnMeasure> dorvikColumns = {{5, 10, 0},   {23, 10, 0},  {41, 10, 0},  {59, 10, 0},
                                                  {77, 10, 0},  {95, 10, 0},  {113, 10, 0}, {131, 10, 0},
                                                  {149, 10, 0}, {167, 10, 0}, {185, 10, 0}, {203, 10, 0},
                                                  {221, 6, 4},  {239, 6, 4},  {257, 6, 4},  {275, 10, 0}};
const std::vector<ColumnMeasure> velmarColumns = {
    {8, 13, 0},   {26, 13, 0},  {44, 13, 0}, {62, 13, 0}, {80, 13, 0}, {98, 13, 0}, {116, 13, 0},
    {134, 13, 0}, {152, 13, 0}, {170, 9, 4}, {188, 9, 4}, {206, 9, 4}, {224, 13, 0}};
const std::vector<ColumnMeasure> quelmontColumns = {
    {7, 6, 0},   {24, 6, 0},  {41, 2, 0},  {58, 2, 0},  {75, 2, 0},  {92, 6, 0},  {109, 1, 5}, {128, 1, 0},
    {145, 1, 5}, {164, 1, 0}, {181, 1, 5}, {200, 1, 0}, {217, 6, 0}, {234, 4, 2}, {253, 4, 0}};

// clang-format off
const KeyboardMeasure measures[] = {
    {Keyboard::Dorvik, 5, 15, 18,
     {16.32, {edge, 4.66, 9.42, 13.66}, 7.35, {0, 4.66, 9.32}}, {16.32, {edge, 13.66}, 7, {0.5}}, dorvikColumns},
    {Keyboard::Velmar, 3, 15, 18,
     {16.32, {edge, 4.66, 9.42, 11.66}, 7.35, {0, 4.66, 9.32}}, {16.32, {edge, 13.66}, 7, {0.5}}, velmarColumns},
    {Keyboard::Quelmont, 10, 17, 17,
     {12.32, {edge, 4.33, 8.76, 12.66}, 5.35, {0, 4.33, 8.66}},
     {31.32, {edge, 4.33, 8.76, 12.66}, 14.85, {0, 4.33, 8.66}}, quelmontColumns},
};
// clang-format on

/// A key where it should be, with its first cell.
struct ExpectedKey {
    const KeyMeasure& measure;
    double x;
    double y;
    int firstCell;
    bool isSingle;
};

std::vector<ExpectedKey> expectedKeys(const KeyboardMeasure& keyboard)
{
    std::vector<ExpectedKey> keys;
    int cell = 0;
    for (const ColumnMeasure& column : keyboard.columns) {
        for (int row = 0; row < column.plain + column.other; ++row) {
            const KeyMeasure& measure = row < column.plain ? keyboard.plain : keyboard.other;
            keys.push_back(
                {measure, column.x, keyboard.top + row * keyboard.step, cell, measure.lines.size() == 1});
            cell += static_cast<int>(measure.lines.size());
        }
    }
    return keys;
}

class SheetPdf : public testing::TestWithParam<KeyboardMeasure>
{
protected:
    static void expectBand(const SheetPage& page, const ExpectedKey& key, std::size_t band)
    {
        const double top = key.y + key.measure.edges[band];
        const double bottom = key.y + key.measure.edges[band + 1];
        const double x = key.x + edge + key.measure.width / 2;
        const double y = (top + bottom) / 2;
        const QRgb colour = colourOfCell(key.firstCell + static_cast<int>(band));
        EXPECT_NEAR(y - page.reach(x, y, 0, -0.1, colour), top, 0.1);
        EXPECT_NEAR(y + page.reach(x, y, 0, 0.1, colour), bottom, 0.1);
        EXPECT_NEAR(page.reach(x, y, -0.1, 0, colour), key.measure.width / 2, 0.1);
        EXPECT_NEAR(page.reach(x, y, 0.1, 0, colour), key.measure.width / 2, 0.1);
    }
    static void expectGaps(const SheetPage& page, const ExpectedKey& key)
    {
        const double step = GetParam().step;
        const double bottom = key.measure.edges.back() + 0.1;
        const double width = edge + key.measure.width + 0.1;
        EXPECT_TRUE(page.isWhite({key.x, key.y + bottom, width, step + edge - bottom - 0.1})) << "below";
        EXPECT_TRUE(
            page.isWhite({key.x + width, key.y, GetParam().widths - GetParam().plain.width - 0.2, step}))
            << "to the right";
    }
    static void expectGreyOutline(const SheetPage& page, const ExpectedKey& key)
    {
        for (const double x : {key.x, key.x + 17})
            EXPECT_NEAR(page.greyWidth(x, key.y + 7, 0.1, 0), 0.68, 0.1);
        for (const double y : {key.y, key.y + 14})
            EXPECT_NEAR(page.greyWidth(key.x + 8, y, 0, 0.1), 0.68, 0.1);
    }
};

TEST_P(SheetPdf, ShowsEveryBandAndGapWhereTheKeyIs)
{
    Document document(GetParam().keyboard);
    for (int cell = 0; cell < document.cellCount(); ++cell) {
        document.cell(cell).text.clear();
        document.cell(cell).background = colourOf(QColor(colourOfCell(cell)));
    }
    const SheetPage page = SheetPage::of(document);
    for (const ExpectedKey& key : expectedKeys(GetParam())) {
        SCOPED_TRACE(u"the key of cell %1"_s.arg(key.firstCell).toStdString());
        for (std::size_t band = 0; band < key.measure.lines.size(); ++band)
            expectBand(page, key, band);
        expectGaps(page, key);
        if (key.isSingle)
            expectGreyOutline(page, key);
    }
}

/// Where capitals of 8 points begin and end, down from the top of the text, in the substitute font for Arial.
constexpr double capitalTop = (0.905 - 0.688) * 8 * 25.4 / 72;
constexpr double baseline = 0.905 * 8 * 25.4 / 72;

TEST_P(SheetPdf, PrintsTextsInTheMiddleOfTheirWidthAndInsideTheirKeys)
{
    Document document(GetParam().keyboard);
    for (int cell = 0; cell < document.cellCount(); ++cell)
        document.cell(cell).text = cell % 2 == 0 ? u"H"_s : u"HHHHHHHHHHHHHHHHHHHH"_s;
    const SheetPage page = SheetPage::of(document);
    for (const ExpectedKey& key : expectedKeys(GetParam())) {
        for (std::size_t line = 0; line < key.measure.lines.size(); ++line) {
            const int cell = key.firstCell + static_cast<int>(line);
            SCOPED_TRACE(cell);
            const double top = key.y + key.measure.lines[line];
            const QRectF dark = page.darkPart({key.x - 0.5, top + 0.1, key.measure.width + 1.5, 3});
            EXPECT_NEAR(dark.top(), top + capitalTop, 0.1);
            EXPECT_NEAR(dark.bottom(), top + baseline, 0.1);
            if (cell % 2 == 0) {
                EXPECT_NEAR(dark.center().x(), key.x + key.measure.middle, 0.1);
            } else {
                EXPECT_GT(dark.left(), key.x + (key.isSingle ? 0.5 : 0)) << "never left of its start";
                EXPECT_LT(dark.right(), key.x + edge + key.measure.width) << "cut at the key's edge";
                EXPECT_GT(dark.right(), key.x + 2 * key.measure.middle - 0.3)
                    << "as much as there is room for";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, SheetPdf, testing::ValuesIn(measures), [](const auto& row) {
    return geometryOf(row.param.keyboard).name.toString().toStdString();
});

} // namespace
} // namespace norvane::test
