// A sheet on the queue of a printer that reports its margins.
#include "overlay/SheetActions.h"
#include "paper/DefaultPrinter.h"
#include "paper/PrinterSheet.h"
#include "tests/overlay/RecordingDialogs.h"
#include "tests/support/PrintServer.h"
#include "tests/support/RecordingBoxes.h"

#include <QApplication>
#include <QPushButton>

namespace norvane::test
{
namespace
{

using namespace overlay;
using namespace Qt::Literals::StringLiterals;

/// White on upright A4: 10 points to the left, 20 above and to the right, 40 below.
const char* const description = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "OFFICE.PPD"
*Manufacturer: "Office"
*Product: "(Office)"
*ModelName: "Office"
*ShortNickName: "Office"
*NickName: "Office"
*PSVersion: "(3010.000) 0"
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "10 40 575 822"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
)ppd";

std::unique_ptr<QPrinter> printerFor(QPageLayout::Orientation orientation)
{
    auto printer = paper::defaultPrinter();
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setPageOrientation(orientation);
    return printer;
}

/// @param points at the left edge, above, to the right and below.
void expectMargins(const paper::Sheet& sheet, const std::array<int, 4>& points)
{
    const paper::Margins& margins = sheet.margins;
    const std::array reported = {margins.left, margins.top, margins.right, margins.bottom};
    for (std::size_t edge = 0; edge < reported.size(); ++edge)
        EXPECT_NEAR(reported[edge].inMillimetres(), points[edge] * 25.4 / 72, 0.01) << edge;
}

constexpr double millimetresPerPoint = 25.4 / 72;

/// Where black begins on a line of pixels across or down a page, in mm.
double blackFrom(const QImage& page, QPoint start, QPoint step)
{
    QPoint place = start;
    while (page.rect().contains(place) && qGray(page.pixel(place)) > 0x80)
        place += step;
    return (place.x() * step.x() + place.y() * step.y()) / 10.0;
}

/// Moves the sheet in its preview and prints it there.
void printFromPreview(SheetActions& actions)
{
    QTimer::singleShot(0, [] {
        const auto* const preview = QApplication::activeModalWidget();
        for (const char* button : {"MoveButton", "PrintButton", "CloseButton"})
            preview->findChild<QPushButton*>(QLatin1StringView(button))->click();
    });
    const auto print = [&](const paper::PrinterCorrection& shown) {
        actions.print(QStringLiteral("Velmar"), shown);
    };
    EXPECT_EQ(actions.destination(paper::PrinterCorrection{{{}, 1.0101}, {}}),
              u"Printer: Office. Paper: A4 landscape. Scale: 101.01 % across, 100 % down."_s);
    actions.preview(
        print, [] {}, nullptr);
}

TEST(PrintQueueTest, ReceivesTheSheetInPlaceAndInHighQuality)
{
    if (!PrintServer::isInstalled())
        GTEST_SKIP() << "needs the programs cupsd and lpadmin";
    const PrintServer server;
    ASSERT_TRUE(server.isUp());
    EXPECT_EQ(paper::defaultPrinter(), nullptr);
    server.addDefaultQueue(QStringLiteral("Office"), description);
    expectMargins(paper::sheetOf(*printerFor(QPageLayout::Portrait)), {10, 20, 20, 40});
    const auto printer = printerFor(QPageLayout::Landscape);
    const paper::Sheet sheet = paper::sheetOf(*printer);
    expectMargins(sheet, {40, 10, 20, 20});

    Document document(Keyboard::Dorvik);
    document.cell(3).background = black;
    ASSERT_TRUE(printSheet(document, *printer, {printer->printerName(), sheet, {}}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(server.job(1)); }));
    const QImage page = pdfPage(server.job(1), 1);
    EXPECT_NEAR(page.width(), 2970, 1);
    const int y = static_cast<int>((10 * millimetresPerPoint + 15 + 3) * 10);
    EXPECT_NEAR(blackFrom(page, {0, y}, {1, 0}), 40 * millimetresPerPoint + 0.34, 0.1);

    qputenv("XDG_CONFIG_HOME", "/dev/null"); // keeps no corrections
    Document velmar(Keyboard::Velmar);
    velmar.cell(40).background = black;
    RecordingBoxes boxes;
    boxes.answers = {true};
    RecordingDialogs dialogs;
    PrinterInUse inUse;
    SheetActions actions(velmar, boxes, dialogs, inUse);
    printFromPreview(actions);
    ASSERT_EQ(boxes.shown.size(), 2U);
    EXPECT_TRUE(boxes.shown[0].text.startsWith(u"The correction could not be stored."));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(server.job(2)); }));
    const int x = static_cast<int>((40 * millimetresPerPoint + 3 + 18 + 8) * 10);
    EXPECT_NEAR(blackFrom(pdfPage(server.job(2), 1), {x, 0}, {0, 1}), 10 * millimetresPerPoint + 4.66, 0.1)
        << "2 mm below where a Velmar begins";
    EXPECT_TRUE(server.attributesOf(2).contains(QByteArrayLiteral("print-quality\0\4\0\0\0\5")));

    EXPECT_TRUE(paper::isThere(*printer));
    server.removeQueue(QStringLiteral("Office"));
    EXPECT_FALSE(paper::isThere(*printer));
}

} // namespace
} // namespace norvane::test
