// A report run from a form: where it goes, and what happens when it cannot.
#include "reports/window/Report.h"

#include "reports/window/PreviewWindow.h"
#include "tests/platform/TestFolder.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/FormTest.h"
#include "tests/support/OtherPrograms.h"

#include <QPrinter>

namespace norvane::test
{
namespace
{

using namespace reports;

ReportData drinks(const ReportRequest& request, const KeepGoing& /*goesOn*/)
{
    ReportData report = emptySales();
    report.heading.windowTitle = request.windowTitle.isEmpty() ? request.reportTitle : request.windowTitle;
    addGroup(report, u"Drinks"_s, 3);
    return report;
}

QList<PreviewWindow*> previews()
{
    QList<PreviewWindow*> found;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const preview = qobject_cast<PreviewWindow*>(window); preview && preview->isVisible())
            found << preview;
    }
    return found;
}

/// As the mouse does: through the window, which a modal form may hold back.
void click(PreviewWindow& preview, const QString& button)
{
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&preview));
    const auto* const control = preview.findChild<QPushButton*>(button);
    QTest::mouseClick(preview.windowHandle(), Qt::LeftButton, {},
                      control->mapTo(&preview, control->rect().center()));
}

class ReportTest : public testing::Test
{
protected:
    QMainWindow m_main;
    RecordingBoxes m_boxes;
};

// The form is modal, as the report dialog is.
TEST_F(ReportTest, OpensPreviewsThatCanBeUsedOverAModalFormAndOutliveIt)
{
    m_main.show();
    {
        QDialog form(&m_main);
        Report report(form, m_boxes, drinks);
        QTimer::singleShot(0, &form, [&] {
            report.run({});
            report.run({});
            ASSERT_EQ(previews().size(), 2);
            click(*previews()[0], u"FindButton"_s);
            EXPECT_TRUE(previews()[0]->findChild<QWidget*>(u"FindBar"_s)->isVisible());
            click(*previews()[1], u"CloseButton"_s);
            EXPECT_EQ(previews().size(), 1);
            form.reject();
        });
        form.exec();
    }
    ASSERT_EQ(previews().size(), 1);
    EXPECT_EQ(previews()[0]->parentWidget(), &m_main);
}

TEST_F(ReportTest, PrintsDirectlyOrSaysThatThereIsNoPrinter)
{
    const TestFolder folder;
    Report report(m_main, m_boxes, drinks);
    report.setPrinterSource([] { return nullptr; });
    report.run({}, Destination::Printer);
    ASSERT_EQ(m_boxes.shown.size(), 1);
    EXPECT_EQ(m_boxes.shown[0].title, u"Report Error"_s);
    report.setPrinterSource([&] {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName(folder.path("a.pdf"));
        return printer;
    });
    report.run({}, Destination::Printer);
    EXPECT_EQ(m_boxes.shown.size(), 1);
    EXPECT_TRUE(pdfLines(folder.path("a.pdf")).contains(u"Total Drinks 3.375 7.04"_s));
    EXPECT_EQ(previews().size(), 0);
}

TEST_F(ReportTest, ShowsAFailureOfTheStoreInItsBox)
{
    Report report(m_main, m_boxes, [](const ReportRequest&, const KeepGoing&) -> ReportData {
        throw RuntimeFailure(Failure::EngineFailure, u"The database is damaged."_s);
    });
    report.run({});
    EXPECT_EQ(m_boxes.shown,
              (std::vector<ShownBox>{{u"The database is damaged."_s, u"Report Error"_s, BoxIcon::Critical}}));
}

TEST_F(ReportTest, RespondsDuringALongRunAndStopsItOnCancel)
{
    QDialog form(&m_main);
    int runs = 0;
    Report report(form, m_boxes, [&](const ReportRequest& request, const KeepGoing& goesOn) -> ReportData {
        request.showStep(u"Adding up"_s);
        EXPECT_EQ(m_main.statusBar()->currentMessage(), u"Adding up"_s);
        while (goesOn()) {
            const auto* const box = m_main.findChild<QProgressDialog*>(u"RunProgress"_s);
            if (box && box->isVisible()) {
                EXPECT_EQ(box->labelText(), u"Adding up"_s);
                report.run({});
                QTest::mouseClick(box->findChild<QPushButton*>(), Qt::LeftButton);
            }
        }
        ++runs;
        throw ReportError(u"The report was given up."_s);
    });
    m_main.show();
    report.run({});
    EXPECT_EQ(runs, 1) << "a second run does not begin within the first";
    EXPECT_EQ(m_boxes.shown.size(), 0);
    EXPECT_EQ(previews().size(), 0);
    EXPECT_EQ(m_main.statusBar()->currentMessage(), QString());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace norvane::test
