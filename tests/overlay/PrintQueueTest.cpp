// A sheet on the queue of a printer that tells its margins.
#include "overlay/SheetPrint.h"
#include "paper/DefaultPrinter.h"
#include "tests/support/PrintServer.h"

namespace norvane::test
{
namespace
{

using namespace overlay;

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
    const std::array told = {margins.left, margins.top, margins.right, margins.bottom};
    for (std::size_t edge = 0; edge < told.size(); ++edge)
        EXPECT_NEAR(told[edge].inMillimetres(), points[edge] * 25.4 / 72, 0.01) << edge;
}

TEST(PrintQueueTest, GetsTheSheetFromTheCornerOfThePrintableArea)
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
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(server.firstJob()); }));
    const QImage page = pdfPage(server.firstJob(), 1);
    EXPECT_NEAR(page.width(), 2970, 1);
    const int y = static_cast<int>((10 * 25.4 / 72 + 15 + 3) * 10);
    int x = 0;
    while (x < page.width() && qGray(page.pixel(x, y)) > 0x80)
        ++x;
    EXPECT_NEAR(x / 10.0, 40 * 25.4 / 72 + 0.34, 0.1);

    EXPECT_TRUE(paper::isThere(*printer));
    server.removeQueue(QStringLiteral("Office"));
    EXPECT_FALSE(paper::isThere(*printer));
}

} // namespace
} // namespace norvane::test
