// The preview of a sheet and the correction of its printer, as the user works with them.
#include "overlay/CorrectionForm.h"
#include "overlay/OverlayPreview.h"
#include "overlay/SheetView.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/FormTest.h"

namespace norvane::test
{
namespace
{

using namespace overlay;
using paper::millimetres;

class Preview : public testing::Test
{
protected:
    OverlayPreview& open(const Document& document, const TargetPrinter& target)
    {
        m_document = document;
        m_preview.reset();
        const PreviewActions actions{[](const paper::PrinterCorrection&) {}, [] {},
                                     [this](const paper::PrinterCorrection& correction) {
                                         m_testPages.push_back(correction);
                                         return m_testPages.size() > 1;
                                     },
                                     [target](QWidget* /*above*/) {
                                         TargetPrinter chosen = target;
                                         chosen.sheet.format = paper::SheetFormat::Letter;
                                         chosen.options.mayTakeTwoPages = true;
                                         return chosen;
                                     }};
        m_preview = std::make_unique<OverlayPreview>(m_document, target, actions, m_corrections, m_boxes);
        m_preview->resize(1100, 850);
        m_preview->show();
        return *m_preview;
    }
    [[nodiscard]] std::string notice() const
    {
        const auto& label = child<QLabel>(*m_preview, "Notice");
        return label.isVisible() ? label.text().toStdString() : "";
    }
    /// The colour that the preview shows at a place of the paper.
    [[nodiscard]] QColor at(double x, double y) const
    {
        const auto& view = child<SheetView>(*m_preview, "SheetView");
        return view.viewport()->grab().toImage().pixelColor(view.toViewport({x, y}).toPoint());
    }

    TestFolder m_folder;
    paper::PrinterCorrections m_corrections{m_folder.path("printers.ini")};
    RecordingBoxes m_boxes;
    std::vector<paper::PrinterCorrection> m_testPages;
    Document m_document{Keyboard::Dorvik};
    std::unique_ptr<OverlayPreview> m_preview;
};

const TargetPrinter office{u"Office"_s, {}, {}};

TEST_F(Preview, MarksTheKeysThatAPrinterCannotReachAndMovesTheSheet)
{
    Document document(Keyboard::Velmar);
    document.cell(40).background = {255};
    document.cell(0).text = u"TEA"_s;
    open(document, office);
    auto& sheet = *QAccessible::queryAccessibleInterface(&child<SheetView>(*m_preview, "SheetView"));
    EXPECT_EQ(sheet.child(0)->text(QAccessible::Name), u"TEA"_s);
    EXPECT_EQ(sheet.child(0)->text(QAccessible::Description),
              u"Column 1, key 1, leaves the printable area"_s);
    EXPECT_EQ(
        notice(),
        "13 keys leave the printable area of the printer Office (dashed line) and will not print whole.");
    EXPECT_LT(at(8 + 18 + 8, 3 + 7).blue(), 40) << "the middle line of the second column's first key";
    EXPECT_NE(at(8 + 8, 3 + 13), QColor(Qt::white)) << "a mark over the white of the first key";
    press(*m_preview, "MoveButton");
    EXPECT_EQ(notice(), "");
    EXPECT_EQ(sheet.child(0)->text(QAccessible::Description), u"Column 1, key 1"_s);
    EXPECT_EQ(m_corrections.of(u"Office"_s).down.offset, millimetres(2));
    EXPECT_EQ(m_corrections.of(u"Office"_s).across.offset, millimetres(0)) << "fits already";
    EXPECT_EQ(at(8 + 18 + 8, 5 + 7), QColor(Qt::red));
    EXPECT_EQ(at(8 + 8, 5 + 13), QColor(Qt::white));
}

TEST_F(Preview, TurnsThePagesOfASheetThatTakesTwo)
{
    Document document(Keyboard::Dorvik);
    document.cell(document.layout().cellCount() - 2).background = {255};
    open(document, office);
    EXPECT_FALSE(child<QPushButton>(*m_preview, "PageButton").isVisible());
    press(*m_preview, "OptionsButton");
    EXPECT_EQ(notice(), "");
    const QPoint onSecond(5 + 18 + 8,
                          5 + 9 * 15 + 7); // the last key is beside the column that both pages have
    EXPECT_EQ(at(onSecond.x(), onSecond.y()), QColor(Qt::white));
    press(*m_preview, "PageButton");
    EXPECT_EQ(at(onSecond.x(), onSecond.y()), QColor(Qt::red));
}

TEST_F(Preview, NamesWhatWillNotBePrinted)
{
    open(m_document, office);
    EXPECT_EQ(notice(), "");
    m_document.cell(3).text = u"A text that is wider than a key"_s;
    open(m_document, {u"Office"_s, {QPageLayout::Portrait}, {}});
    EXPECT_EQ(
        notice(),
        "The sheet is wider than the page. Choose Landscape in Printer Setup. 50 keys leave the printable "
        "area of the printer Office (dashed line) and will not print whole.\n"
        "1 text is wider than the key and will be cut, as shown. The first is \"A text that is wider than "
        "a key\".");
    EXPECT_FALSE(child<QPushButton>(*m_preview, "MoveButton").isVisible()) << "no move helps";
    open(Document(Keyboard::Dorvik), {});
    EXPECT_FALSE(child<QPushButton>(*m_preview, "CorrectionButton").isEnabled()) << "a PDF needs none";
}

TEST_F(Preview, WorksOutACorrectionFromTheMeasuredTestPage)
{
    ASSERT_TRUE(m_corrections.keep(u"Office"_s, {{millimetres(1), 1}, {}}));
    open(m_document, {u"Office"_s, {}, m_corrections.of(u"Office"_s)});
    QTimer::singleShot(0, [this] {
        const auto& form = *m_preview->findChild<CorrectionForm*>();
        const auto set = [&form](const char* box, double value) {
            child<QDoubleSpinBox>(form, box).setValue(value);
        };
        child<QPushButton>(form, "TestPageButton").click();
        set("MeasuredAcross", 99);
        set("MeasuredLeft", 52);
        child<QPushButton>(form, "TakeOverButton").click();
        child<QPushButton>(form, "TakeOverButton").click(); // takes nothing over twice
        set("OffsetDown", -0.5);
        child<QPushButton>(form, "TestPageButton").click();
        child<QPushButton>(form, "OkButton").click();
    });
    press(*m_preview, "CorrectionButton");
    const paper::PrinterCorrection kept = m_corrections.of(u"Office"_s);
    EXPECT_NEAR(kept.across.offset.inMillimetres(), 0.99 * 51 - 52, 0.006);
    EXPECT_NEAR(kept.across.stretch, 1 / 0.99, 0.0001);
    EXPECT_EQ(kept.down, (paper::AxisCorrection{millimetres(-0.5), 1}));
    ASSERT_EQ(m_testPages.size(), 2U);
    EXPECT_EQ(m_testPages[0].across.offset, millimetres(1)) << "printed under the current correction";
    EXPECT_EQ(m_testPages[1], kept);
    ASSERT_EQ(m_boxes.shown.size(), 1U) << "of the first test page";
    EXPECT_EQ(m_boxes.shown[0].text, u"Printer Failure"_s);
}

TEST_F(Preview, ZoomsAroundThePointer)
{
    open(m_document, office);
    auto& view = child<SheetView>(*m_preview, "SheetView");
    const double whole = view.pixelsPerMillimetre();
    const QPointF pointer = view.toViewport({100, 60});
    QWheelEvent turn(pointer, view.viewport()->mapToGlobal(pointer), {}, {0, 480}, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &turn);
    EXPECT_NEAR(view.pixelsPerMillimetre(), whole * 2.44, 0.1);
    const QPointF way = view.toViewport({100, 60}) - pointer;
    EXPECT_LT(way.manhattanLength(), 3);
    EXPECT_EQ(child<QComboBox>(*m_preview, "Zoom").currentIndex(), -1);
    QTest::keyClick(&view, Qt::Key_Minus);
    EXPECT_NEAR(view.pixelsPerMillimetre(), whole * 1.95, 0.1);
}

} // namespace
} // namespace norvane::test
