// The sheets on paper, measured: a PDF of each keyboard, ten dots to the millimetre, beside where the keys of
// the real keyboard are.
#include "overlay/SheetFit.h"
#include "overlay/SheetPages.h"
#include "overlay/SheetPainter.h"
#include "overlay/SheetPrint.h"
#include "overlay/TestPage.h"
#include "paper/PageDevice.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/OtherPrograms.h"

#include <QPdfWriter>
#include <QSet>

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

/// Neighbours differ, and each is full or empty in every part, so that a half covered dot is distinguished.
constexpr std::array<QRgb, 6> colours = {0xffff0000, 0xff00ff00, 0xff0000ff,
                                         0xffffff00, 0xffff00ff, 0xff00ffff};

QRgb colourOfCell(int cell)
{
    return colours[static_cast<std::size_t>(cell) % colours.size()];
}

/// A rendered page, read in millimetres.
class Page
{
public:
    explicit Page(const QString& pdf) : m_image(pdfPage(pdf, 1)) { EXPECT_NEAR(m_image.width(), 2970, 1); }
    static Page of(const Document& document, const TargetPrinter& target = {})
    {
        const TestFolder folder;
        writeSheetPdf(document, target, folder.path("a.pdf"));
        EXPECT_LT(QFileInfo(folder.path("a.pdf")).size(), 500 * 1000);
        return Page(folder.path("a.pdf"));
    }
    /// Where the other page differs within an area.
    [[nodiscard]] QRectF difference(const Page& other, const QRectF& area) const
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

class SheetPdf : public testing::TestWithParam<KeyboardMeasure>
{
protected:
    static void expectBand(const Page& page, const ExpectedKey& key, std::size_t band)
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
    static void expectGaps(const Page& page, const ExpectedKey& key)
    {
        const double step = GetParam().step;
        const double bottom = key.measure.edges.back() + 0.1;
        const double width = edge + key.measure.width + 0.1;
        EXPECT_TRUE(page.isWhite({key.x, key.y + bottom, width, step + edge - bottom - 0.1})) << "below";
        EXPECT_TRUE(
            page.isWhite({key.x + width, key.y, GetParam().widths - GetParam().plain.width - 0.2, step}))
            << "to the right";
    }
    static void expectGreyOutline(const Page& page, const ExpectedKey& key)
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
    const Page page = Page::of(document);
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
    const Page page = Page::of(document);
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

TEST_P(SheetPdf, HasMarksBesideItsKeysThatMoveNoKey)
{
    Document document(GetParam().keyboard);
    for (int cell = 0; cell < document.cellCount(); ++cell) {
        document.cell(cell).text = u"Hg"_s;
        document.cell(cell).background = colourOf(QColor(colourOfCell(cell)));
    }
    const Page plain = Page::of(document);
    TargetPrinter target;
    target.options = {true, true, true, true, true};
    target.caption = u"DEMO CAFE, level 1"_s;
    const Page marked = Page::of(document, target);
    QRectF keys;
    for (const OverlayKey& key : document.layout().keys()) {
        const QRectF place = key.outline().translated(5, 5);
        keys |= place;
        // A line of a single key is over its grey outline.
        EXPECT_EQ(marked.difference(plain, place.adjusted(0.2, 0.2, -0.2, -0.2)), QRectF()) << key.firstCell;
        EXPECT_FALSE(marked.difference(plain, place.adjusted(-0.1, 2, -place.width() + 0.1, -2)).isEmpty());
    }
    const QRectF line = marked.difference(plain, {keys.right() + 0.3, 50, 0.4, 50});
    EXPECT_NEAR(line.center().x(), keys.right() + 0.5, 0.1);
    EXPECT_NEAR(line.height(), 50, 0.2);
    const QRectF mark = marked.darkPart({keys.left() - 0.7, keys.bottom() + 1, 0.4, 6});
    EXPECT_NEAR(mark.top(), keys.bottom() + 1.5, 0.2);
    EXPECT_NEAR(mark.height(), 4, 0.2);
}

TEST(SheetPages, LayOverEachOtherInOneColumnWhereThePaperIsTooSmall)
{
    Document document(Keyboard::Dorvik);
    for (int cell = 0; cell < document.cellCount(); ++cell)
        document.cell(cell).text = QString::number(document.layout().keyOf(cell).column);
    TargetPrinter target{{}, {QPageLayout::Landscape, paper::usualMargins, paper::SheetFormat::Letter}, {}};
    const TestFolder folder;
    const auto columnsOn = [&](int page) {
        writeSheetPdf(document, target, folder.path("a.pdf"));
        const QString number = QString::number(page);
        const QString text = QString::fromUtf8(
            outputOf(u"pdftotext"_s, {u"-f"_s, number, u"-l"_s, number, folder.path("a.pdf"), u"-"_s}));
        const QStringList words = text.simplified().split(u' ');
        return QSet<QString>(words.begin(), words.end());
    };
    EXPECT_FALSE(columnsOn(1).contains(u"15"_s)) << "beyond the paper";
    EXPECT_FALSE(keysOutside(document.layout(), target).empty());
    target.options.mayTakeTwoPages = true;
    const auto first = columnsOn(1);
    const auto second = columnsOn(2);
    EXPECT_TRUE(first.contains(u"0"_s) && first.contains(u"14"_s) && !first.contains(u"15"_s));
    EXPECT_TRUE(second.contains(u"14"_s) && second.contains(u"15"_s) && !second.contains(u"13"_s));
    EXPECT_TRUE(keysOutside(document.layout(), target).empty());
    EXPECT_EQ(pdfPage(folder.path("a.pdf"), 1).width(), 2794);
    const auto isWhite = [&](int page, QRect area) {
        const QImage part = pdfPage(folder.path("a.pdf"), page).copy(area);
        QImage white = part;
        white.fill(Qt::white);
        return part == white;
    };
    EXPECT_TRUE(isWhite(1, {2570, 1550, 220, 40}) && isWhite(2, {405, 1550, 500, 40})) << "cut or crossed";

    target.sheet.margins.right = paper::millimetres(180);
    EXPECT_EQ(pagesOf(document.layout(), target).size(), 1U) << "two pages are not enough";
    target.sheet.margins.right = paper::millimetres(260);
    EXPECT_EQ(pagesOf(document.layout(), target).size(), 1U) << "no page holds a column";
}

TEST(TestPageTest, HasItsLinesWhereItSaysUnderTheCurrentCorrection)
{
    const TestFolder folder;
    QPdfWriter writer(folder.path("a.pdf"));
    const paper::PrinterCorrection correction{{paper::millimetres(2), 1.01}, {paper::millimetres(-3), 1}};
    ASSERT_TRUE(printTestPage(writer, {u"Office"_s, {}, correction}));
    const Page page(folder.path("a.pdf"));
    const QRectF across = page.darkPart({20, 86.9, 200, 0.2});
    const QRectF down = page.darkPart({102.9, 20, 0.2, 120});
    EXPECT_NEAR(across.left(), 52 * 1.01, 0.1);
    EXPECT_NEAR(across.width(), 101, 0.2);
    EXPECT_NEAR(down.top(), 37, 0.1);
    EXPECT_NEAR(down.height(), 100, 0.2);
    // The ticks at the ends, six long.
    for (const double x : {52 * 1.01 + 0.1, 152 * 1.01 - 0.1})
        EXPECT_NEAR(page.darkPart({x - 0.1, 80, 0.2, 20}).height(), 6, 0.2) << x;
    for (const double y : {37.1, 136.9})
        EXPECT_NEAR(page.darkPart({90, y - 0.1, 30, 0.2}).width(), 6 * 1.01, 0.2) << y;
}

TEST(OverlayPenTest, WrapsWordsToTheWidthAndCutsToTheArea)
{
    const TestFolder folder;
    {
        QPdfWriter writer(folder.path("a.pdf"));
        paper::PageDevice page(writer, QPageSize(QPageSize::A4), QPageLayout::Portrait);
        OverlayPen pen(page.nextPage(), geometryOf(Keyboard::Dorvik));
        const auto wrap = [&pen](double y, double height, const QString& text) {
            pen.WordWrap(paper::millimetres(20), paper::millimetres(y), paper::millimetres(20),
                         paper::millimetres(height), text);
        };
        wrap(20, 50, u"Coffee with  milk and sugar"_s);
        wrap(80, 7, u"Coffee with milk, sugar, cream and a biscuit"_s);
        wrap(110, 50, u"Unbreakablewordofletters and more"_s);
        wrap(170, 0, u"No room"_s);
        EXPECT_TRUE(page.finish());
    }
    QStringList lines = pdfLines(folder.path("a.pdf"));
    lines.removeAll(QString());
    EXPECT_EQ(lines.join(u'|').toStdString(),
              "Coffee with|milk and sugar|Coffee with|milk, sugar,|crea|Unbreakablew|ordofletters|and more");
}

TEST(OverlayPenTest, CopiesAPictureInPointsOfTheScreen)
{
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixelColor(0, 0, Qt::red);
    picture.setPixelColor(1, 0, Qt::blue);
    QImage paper(100, 100, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    constexpr int dots = 100; // to the millimetre, of which a point has 0.2646
    painter.scale(dots, dots);
    OverlayPen(painter, geometryOf(Keyboard::Dorvik)).PicturePrint(picture);
    const std::array seen = {paper.pixelColor(25, 25), paper.pixelColor(28, 25), paper.pixelColor(51, 25),
                             paper.pixelColor(54, 25), paper.pixelColor(25, 28)};
    const std::array<QColor, 5> expected = {Qt::red, Qt::blue, Qt::blue, Qt::white, Qt::white};
    EXPECT_EQ(seen, expected);
}

INSTANTIATE_TEST_SUITE_P(Of, SheetPdf, testing::ValuesIn(measures), [](const auto& row) {
    return geometryOf(row.param.keyboard).name.toString().toStdString();
});

} // namespace
} // namespace norvane::test
