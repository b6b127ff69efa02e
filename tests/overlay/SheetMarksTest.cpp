// What is printed besides the keys, and sheets on two pages.
#include "overlay/SheetFit.h"
#include "overlay/SheetPages.h"
#include "tests/overlay/SheetPage.h"

#include <QSet>

namespace norvane::test
{
namespace
{

using namespace overlay;

class SheetMarks : public testing::TestWithParam<Keyboard>
{
};

TEST_P(SheetMarks, AreBesideTheKeysAndMoveNone)
{
    Document document(GetParam());
    for (int cell = 0; cell < document.cellCount(); ++cell) {
        document.cell(cell).text = u"Hg"_s;
        document.cell(cell).background = colourOf(QColor(colourOfCell(cell)));
    }
    const SheetPage plain = SheetPage::of(document);
    TargetPrinter target;
    target.options = {true, true, true, true, true};
    target.caption = u"DEMO CAFE, level 1"_s;
    const SheetPage marked = SheetPage::of(document, target);
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

INSTANTIATE_TEST_SUITE_P(Of, SheetMarks,
                         testing::Values(Keyboard::Dorvik, Keyboard::Velmar, Keyboard::Quelmont),
                         [](const auto& row) { return geometryOf(row.param).name.toString().toStdString(); });

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

} // namespace
} // namespace norvane::test
