// What a user does in a preview.
#include "reports/window/PreviewWindow.h"

#include "tests/platform/TestFolder.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/FormTest.h"
#include "tests/support/OtherPrograms.h"

#include <QPrintDialog>
#include <QPrinter>

namespace norvane::test
{
namespace
{

using namespace reports;

ReportData longReport()
{
    ReportData report = emptySales();
    report.heading.from = QDate(2004, 5, 1);
    report.heading.to = QDate(2004, 5, 7);
    for (int group = 0; group < 4; ++group)
        addGroup(report, u"Group %1"_s.arg(group), 100);
    report.charts = {sampleChart(ChartKind::Ranking, 15), sampleChart(ChartKind::Shares, 6),
                     sampleChart(ChartKind::Course, 31)};
    return report;
}

class SavingBoxes : public RecordingBoxes
{
public:
    QString fileToSave(const FileRequest& request) override
    {
        suggested = QFileInfo(request.folder).fileName();
        return RecordingBoxes::fileToSave(request);
    }
    QString suggested;
};

class PreviewTest : public testing::Test
{
protected:
    PreviewTest()
    {
        m_preview->resize(900, 700);
        m_preview->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_preview));
        expectPageText(u"Page 1 of 10"_s);
    }
    ~PreviewTest() override
    {
        delete m_preview;
        EXPECT_FALSE(takeFailure());
    }

    template <typename Control = QWidget>
    [[nodiscard]] Control* control(const QString& name) const
    {
        return m_preview->findChild<Control*>(name);
    }
    [[nodiscard]] QString pageText() const { return control<QLabel>(u"PageNumber"_s)->text(); }
    [[nodiscard]] std::string status() const
    {
        return control<QStatusBar>(u"StatusBar1"_s)->currentMessage().toStdString();
    }
    void expectPageText(const QString& text) const
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return pageText() == text; })) << pageText().toStdString();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        // A box that has just closed gives the focus back in its own time.
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    [[nodiscard]] QString copied()
    {
        press(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }
    /// Prints by the key, and answers the system's print dialog once it is open.
    void print(const std::function<void(QDialog&)>& answer)
    {
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            poll.stop();
            answer(*dialog);
        });
        poll.start(10);
        press(Qt::Key_P, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !poll.isActive(); }));
        m_preview->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_preview));
    }
    void save(const char* kind, const QString& path)
    {
        m_boxes.typed.push_back(path);
        m_preview->findChild<QAction*>(QLatin1String(kind))->trigger();
    }

    TestFolder m_folder;
    SavingBoxes m_boxes;
    PrinterSource m_finder = [this] {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(m_folder.path(("paper" + std::to_string(++m_prints) + ".pdf").c_str()));
        return printer;
    };
    int m_prints = 0;
    QPointer<PreviewWindow> m_preview = new PreviewWindow(longReport(), m_boxes, m_finder, nullptr);
};

TEST_F(PreviewTest, AScreenReaderFindsTheLinesOfThePage)
{
    auto& pages = *QAccessible::queryAccessibleInterface(control(u"Pages"_s));
    EXPECT_EQ(pages.text(QAccessible::Name),
              u"PLU Sales Report by Date., Friday, 7 May 2004, Corner Shop, No sales on 7 May 2004."_s);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"Article 2"_s);
    std::string chosen;
    for (int place = 0; place < pages.childCount(); ++place) {
        if (pages.child(place)->state().selected)
            chosen += pages.child(place)->text(QAccessible::Name).toStdString();
    }
    EXPECT_EQ(chosen, "2, Article 2, 1.125, 2.35");
    EXPECT_EQ(pages.childAt(pages.child(1)->rect().center().x(), pages.child(1)->rect().center().y()),
              pages.child(1));
}

TEST_F(PreviewTest, AScreenReaderFindsThePointsOfTheCharts)
{
    auto& charts = *QAccessible::queryAccessibleInterface(control<QScrollArea>(u"Charts"_s)->widget());
    EXPECT_EQ(charts.childCount(), 15 + 6 + 31);
    EXPECT_EQ(charts.child(16)->text(QAccessible::Name), u"Label 1 94.50"_s);
    EXPECT_EQ(charts.child(16)->text(QAccessible::Description), u"Best-selling PLUs"_s);
}

TEST_F(PreviewTest, TurnsPagesByKeysAndWheel)
{
    for (const auto& [key, page] : {std::pair(Qt::Key_PageDown, 2),
                                    {Qt::Key_PageDown, 3},
                                    {Qt::Key_PageUp, 2},
                                    {Qt::Key_End, 10},
                                    {Qt::Key_PageDown, 10},
                                    {Qt::Key_Home, 1},
                                    {Qt::Key_PageUp, 1}}) {
        press(key);
        EXPECT_EQ(pageText(), u"Page %1 of 10"_s.arg(page));
    }
    const auto* const bar = control<QAbstractScrollArea>(u"Pages"_s)->verticalScrollBar();
    QWheelEvent wheel(QPointF(50, 50), QPointF(50, 50), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(control<QAbstractScrollArea>(u"Pages"_s)->viewport(), &wheel);
    EXPECT_GT(bar->value(), 0);
    QTest::mouseClick(control(u"NextPageButton"_s), Qt::LeftButton);
    EXPECT_EQ(pageText(), u"Page 2 of 10"_s);
}

TEST_F(PreviewTest, KeepsItsPageInEveryZoom)
{
    auto* const zoom = control<QComboBox>(u"Zoom"_s);
    const auto* const view = control<QAbstractScrollArea>(u"Pages"_s);
    press(Qt::Key_PageDown);
    zoom->setCurrentIndex(1);
    EXPECT_EQ(pageText(), u"Page 2 of 10"_s);
    const int fitted = view->verticalScrollBar()->value();
    EXPECT_NEAR(fitted, view->viewport()->height(), 20) << "one page fills the view";
    zoom->setCurrentIndex(2);
    EXPECT_EQ(pageText(), u"Page 2 of 10"_s);
    EXPECT_NEAR(view->verticalScrollBar()->value(), 297 * 96 / 25.4, 15);
}

TEST_F(PreviewTest, FindsATextAndCopiesItsLine)
{
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"ARTICLE 77"_s);
    EXPECT_EQ(pageText(), u"Page 2 of 10"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(pageText(), u"Page 4 of 10"_s);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(pageText(), u"Page 2 of 10"_s);
    EXPECT_EQ(control<QLabel>(u"FindTextOutcome"_s)->text(), QString());
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    EXPECT_EQ(control<QLabel>(u"FindTextOutcome"_s)->text(), u"Not found."_s);
    press(Qt::Key_Escape);
    ASSERT_TRUE(m_preview && m_preview->isVisible()) << "Escape leaves the search first";
    EXPECT_EQ(copied(), u"77\tArticle 77\t1.125\t2.35\n"_s);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(copied(), u"77\tArticle 77\t1.125\t2.35\n78\tArticle 78\t1.125\t2.35\n"_s);
}

TEST_F(PreviewTest, CopiesAllLinesWhereNoneIsChosen)
{
    EXPECT_EQ(copied().count(u'\n'), longReport().lineCount());
    EXPECT_EQ(status(), "408 lines copied.");
    // On the group's heading, the first line of the page.
    auto* const view = control<QAbstractScrollArea>(u"Pages"_s)->viewport();
    const double scale = (view->width() - 24) / 210.0;
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(100, 12 + static_cast<int>(39 * scale)));
    EXPECT_EQ(copied(), u"Group 0\t\t\t\n"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied().count(u'\n'), longReport().lineCount());
}

TEST_F(PreviewTest, PrintsAndSavesWhatItShows)
{
    print([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(status(), "");
    print([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_EQ(status(), "Saved as " + m_folder.path("paper2.pdf").toStdString() + '.');
    print([](QDialog& dialog) {
        dialog.findChild<QRadioButton*>(u"printRange"_s)->click();
        dialog.findChild<QSpinBox*>(u"from"_s)->setValue(9);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(pdfLines(m_folder.path("paper3.pdf")).filter(u" of 10"_s).join(u'|'),
              u"Page 9 of 10|Page 10 of 10"_s);
    save("SavePdf", m_folder.path("whole.pdf"));
    EXPECT_EQ(m_boxes.suggested, u"Corner Shop - PLU Sales Report by Date - 2004-05-01 to 2004-05-07.pdf"_s);
    press(Qt::Key_H, Qt::AltModifier);
    expectPageText(u"Page 1 of 9"_s);
    EXPECT_FALSE(control(u"Charts"_s)->isVisible());
    save("SavePdf", m_folder.path("lines.pdf"));
    for (const auto& [file, pages] : {std::pair("paper2.pdf", 10), {"whole.pdf", 10}, {"lines.pdf", 9}}) {
        const QStringList lines = pdfLines(m_folder.path(file));
        EXPECT_EQ(lines.filter(u" of %1"_s.arg(pages)).size(), pages) << file;
        EXPECT_EQ(lines.contains(u"Best-selling PLUs"_s), pages == 10) << file;
    }
    EXPECT_EQ(pdfPage(m_folder.path("paper2.pdf"), 10), pdfPage(m_folder.path("whole.pdf"), 10));
}

TEST_F(PreviewTest, ReportsWhatCannotBeSavedOrPrinted)
{
    save("SaveCsv", m_folder.path("missing/a.csv"));
    save("SaveXlsx", m_folder.path("a.xlsx"));
    EXPECT_EQ(m_folder.names(), QStringList(u"a.xlsx"_s));
    PreviewWindow other(
        longReport(), m_boxes, [] { return nullptr; }, nullptr);
    other.findChild<QPushButton*>(u"PrintButton"_s)->click();
    ASSERT_EQ(m_boxes.shown.size(), 4);
    for (const std::size_t box : {1U, 3U})
        EXPECT_EQ(m_boxes.shown[box].title, u"Report Error"_s);
    EXPECT_TRUE(m_boxes.shown[1].text.startsWith(m_folder.path("missing/a.csv")));
    EXPECT_TRUE(m_boxes.shown[3].text.startsWith(u"There is no printer"_s));
}

// Names the first control that is cut off or outside, at the size of a small screen.
TEST_F(PreviewTest, FitsOnASmallScreen)
{
    m_preview->resize(1024, 700);
    press(Qt::Key_F, Qt::ControlModifier);
    for (const QPushButton* const button : m_preview->findChildren<QPushButton*>()) {
        EXPECT_TRUE(
            m_preview->rect().contains(QRect(button->mapTo(m_preview.data(), QPoint()), button->size())) &&
            button->width() >= button->fontMetrics().horizontalAdvance(button->text()))
            << button->objectName().toStdString();
    }
    EXPECT_GT(control(u"Pages"_s)->height(), 500);
}

TEST_F(PreviewTest, TabReachesEverythingAndEscapeCloses)
{
    for (const char* name : {"Charts", "PrintButton", "SaveButton", "CopyButton", "FindButton", "Zoom",
                             "ChartSwitch", "PreviousPageButton", "NextPageButton", "CloseButton", "Pages"}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), name);
    }
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_preview; }));
}

} // namespace
} // namespace norvane::test
