// What a user does with the lines of a preview that open other reports.
#include "reports/window/MakingBar.h"
#include "reports/window/PreviewWindow.h"
#include "tests/reports/ReportShop.h"
#include "tests/support/FormTest.h"

#include <QPrinter>
#include <QThread>

#include <atomic>

namespace norvane::test
{
namespace
{

using namespace reports;

class PreviewLinks : public testing::Test
{
protected:
    PreviewLinks()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS", "2|FOOD"});
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO", {"3|COLA|1", "100|TEA|1", "20|CRISPS|2"});
        shop.add("PLUSALES", "ID|SALESDATE|PROMO|WASTE|COUNT1|VALUE1|COUNT2|VALUE2",
                 {"3|2026-11-02|0|0|2|5|0|0", "3|2026-11-03|0|0|1|2.5|0|0", "100|2026-11-02|0|0|1|1.5|0|0",
                  "20|2026-11-02|0|0|4|4|0|0"});
        const ReportRequest request = shop.request(reports::test::ReportShop::installed("groupsales.rpt"));
        m_preview = new PreviewWindow(
            runReport(request), m_boxes, [] { return nullptr; }, nullptr);
        m_preview->followLinks(request, [this](const ReportRequest& wanted, const KeepGoing& keepGoing) {
            if (m_isGone)
                throw ReportError(u"articlesales.rpt: the report's layout was not found."_s);
            wanted.showStep(u"Adding up"_s);
            for (; m_isHeld; QThread::msleep(1))
                needGoOn(keepGoing);
            return runReport(wanted, keepGoing);
        });
        m_preview->resize(1000, 800);
        m_preview->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_preview));
    }
    ~PreviewLinks() override
    {
        delete m_preview;
        EXPECT_FALSE(takeFailure());
    }

    template <typename Control = QWidget>
    [[nodiscard]] Control* control(const char* name) const
    {
        return m_preview->findChild<Control*>(QLatin1String(name));
    }
    [[nodiscard]] QAbstractScrollArea* pages() const { return control<QAbstractScrollArea>("Pages"); }
    [[nodiscard]] QString title() const { return m_preview->windowTitle(); }
    [[nodiscard]] QString path() const
    {
        return control("HistoryBar")->isVisible() ? control<QLabel>("HistoryPath")->text() : QString();
    }
    /// The line that a screen reader calls @p name, in the viewport.
    [[nodiscard]] QRect lineOf(const QString& name) const
    {
        auto* const all = QAccessible::queryAccessibleInterface(pages());
        for (int place = 0; place < all->childCount(); ++place) {
            const QRect rect = all->child(place)->rect();
            if (all->child(place)->text(QAccessible::Name).startsWith(name))
                return {pages()->viewport()->mapFromGlobal(rect.topLeft()), rect.size()};
        }
        ADD_FAILURE() << name.toStdString();
        return {};
    }
    /// At the text of the line, or at its numbers.
    void click(const QString& name, bool atText = true, Qt::KeyboardModifiers modifiers = {})
    {
        const QRect line = lineOf(name);
        const int x = atText ? line.left() + line.width() / 10 : line.right() - line.width() / 10;
        QTest::mouseClick(pages()->viewport(), Qt::LeftButton, modifiers, {x, line.center().y()});
        waitUntilMade();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        waitUntilMade();
    }
    [[nodiscard]] bool isMaking() const { return m_preview->findChild<MakingBar*>()->isMaking(); }
    /// Unless the report is held back.
    void waitUntilMade() const
    {
        EXPECT_TRUE(m_isHeld || !m_preview || soon([this] { return !isMaking(); }));
    }
    [[nodiscard]] QString copied()
    {
        press(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }

    reports::test::ReportShop shop;
    RecordingBoxes m_boxes;
    std::atomic<bool> m_isGone = false;
    std::atomic<bool> m_isHeld = false; ///< reports that lines open are not finished
    QPointer<PreviewWindow> m_preview;
};

TEST_F(PreviewLinks, TheMouseOpensArticlesAndDaysAndAltLeftLeadsBack)
{
    EXPECT_EQ(path(), QString());
    click(u"1 DRINKS"_s);
    EXPECT_EQ(title(), u"Article Sales"_s);
    EXPECT_EQ(path(), u"Group Sales › 1 DRINKS"_s);
    click(u"3, COLA"_s);
    EXPECT_EQ(title(), u"Sales by Day"_s);
    EXPECT_EQ(path(), u"Group Sales › 1 DRINKS › 3 COLA"_s);
    EXPECT_EQ(copied().section(u'\t', 0, 1), u"02/11/2026\t2"_s) << "nothing is chosen in a new report";
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(copied().startsWith(u"3\tCOLA\t"_s)) << "the line that was followed is chosen again";
    QTest::mouseClick(control<QPushButton>("BackButton"), Qt::LeftButton);
    EXPECT_EQ(title(), u"Group Sales"_s);
    EXPECT_FALSE(control("BackButton")->isEnabled());
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(title(), u"Article Sales"_s);
    QTest::mouseClick(pages()->viewport(), Qt::BackButton, {}, {50, 50});
    click(u"2 FOOD"_s);
    EXPECT_EQ(path(), u"Group Sales › 2 FOOD"_s);
    EXPECT_FALSE(control("ForwardButton")->isEnabled()) << "a new way takes the place of the old one";
}

TEST_F(PreviewLinks, TheKeyboardChoosesAndOpensLines)
{
    press(Qt::Key_Return);
    EXPECT_EQ(title(), u"Group Sales"_s) << "no line is chosen yet";
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_TRUE(copied().startsWith(u"2 FOOD"_s)) << "the total opens nothing";
    press(Qt::Key_Up, Qt::ControlModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(path(), u"Group Sales › 1 DRINKS"_s);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"tea"_s);
    press(Qt::Key_Escape);
    press(Qt::Key_Enter);
    EXPECT_EQ(path(), u"Group Sales › 1 DRINKS › 100 TEA"_s);
    press(Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return path() == u"Group Sales › 1 DRINKS"_s; }));
}

TEST_F(PreviewLinks, ALineIsStillChosenBesideItsTextAndByDragging)
{
    click(u"1 DRINKS"_s, false);
    EXPECT_TRUE(copied().startsWith(u"1 DRINKS"_s));
    click(u"2 FOOD"_s, true, Qt::ShiftModifier);
    EXPECT_EQ(copied().count(u'\n'), 2);
    const QPoint from = lineOf(u"1 DRINKS"_s).center() - QPoint(200, 0);
    const QPoint to = lineOf(u"2 FOOD"_s).center() - QPoint(200, 0);
    QTest::mousePress(pages()->viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(pages()->viewport(), to);
    QTest::mouseRelease(pages()->viewport(), Qt::LeftButton, {}, to);
    EXPECT_EQ(title(), u"Group Sales"_s);
}

TEST_F(PreviewLinks, LinksAreSeenAndSaid)
{
    const QRect line = lineOf(u"1 DRINKS"_s);
    const QPoint text(line.left() + line.width() / 10, line.center().y());
    const QImage before = pages()->viewport()->grab().toImage();
    QTest::mouseMove(pages()->viewport(), text);
    EXPECT_EQ(pages()->viewport()->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_NE(pages()->viewport()->grab().toImage(), before);
    QTest::mouseMove(pages()->viewport(), {line.right() - 20, text.y()});
    EXPECT_EQ(pages()->viewport()->cursor().shape(), Qt::ArrowCursor);
    auto* const all = QAccessible::queryAccessibleInterface(pages());
    EXPECT_EQ(all->child(0)->text(QAccessible::Description), u"Link"_s);
    EXPECT_EQ(all->child(2)->text(QAccessible::Description), QString()) << "the total";
    click(u"1 DRINKS"_s);
    EXPECT_TRUE(pages()->accessibleName().startsWith(u"Article Sales, 1 DRINKS"_s));
}

TEST_F(PreviewLinks, ALayoutThatIsGoneLeavesTheReportAsItIs)
{
    m_isGone = true;
    click(u"1 DRINKS"_s);
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(m_boxes.shown[0].title, u"Report Error"_s);
    EXPECT_EQ(title(), u"Group Sales"_s);
    EXPECT_EQ(path(), QString());
    m_isGone = false;
    click(u"1 DRINKS"_s);
    EXPECT_EQ(title(), u"Article Sales"_s);
}

TEST_F(PreviewLinks, WhatIsOnTheScreenIsUsedWhileTheNextReportIsMade)
{
    m_isHeld = true;
    click(u"1 DRINKS"_s);
    EXPECT_FALSE(control("MakingBar")->isVisible()) << "a row that flashes";
    ASSERT_TRUE(soon([this] { return control("MakingBar")->isVisible(); }));
    EXPECT_EQ(control<QLabel>("MakingStep")->text(), u"The report of 1 DRINKS is being made. Adding up."_s);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"food"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(copied().startsWith(u"2 FOOD"_s));
    EXPECT_EQ(title(), u"Group Sales"_s);
    m_isHeld = false;
    EXPECT_TRUE(soon([this] { return title() == u"Article Sales"_s; }));
    EXPECT_EQ(path(), u"Group Sales › 1 DRINKS"_s);
    EXPECT_FALSE(control("MakingBar")->isVisible());
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(copied().startsWith(u"2 FOOD"_s)) << "as it was left";
}

TEST_F(PreviewLinks, WhatIsBeingMadeIsCancelledByBackEscapeOrAnotherLine)
{
    const std::function<void()> ways[] = {
        [this] { press(Qt::Key_Left, Qt::AltModifier); },
        [this] { press(Qt::Key_Escape); },
        [this] {
            QTest::mouseClick(pages()->viewport(), Qt::BackButton, {}, {50, 50});
        },
        [this] { control<QPushButton>("CancelMakingButton")->click(); },
    };
    for (const auto& cancel : ways) {
        m_isHeld = true;
        click(u"1 DRINKS"_s);
        ASSERT_TRUE(isMaking());
        cancel();
        EXPECT_FALSE(isMaking());
        m_isHeld = false;
        QTest::qWait(1);
        EXPECT_EQ(title(), u"Group Sales"_s);
        EXPECT_EQ(path(), QString());
    }
    m_isHeld = true;
    click(u"1 DRINKS"_s);
    click(u"2 FOOD"_s);
    m_isHeld = false;
    EXPECT_TRUE(soon([this] { return path() == u"Group Sales › 2 FOOD"_s; }));
    m_isHeld = true;
    click(u"20, CRISPS"_s);
    m_preview->close();
    EXPECT_TRUE(soon([this] { return m_preview.isNull(); }));
    EXPECT_TRUE(m_boxes.shown.empty());
}

// The switch of the charts is the reader's, not a report's.
TEST_F(PreviewLinks, ZoomAndChartsAreKept)
{
    control<QComboBox>("Zoom")->setCurrentIndex(2);
    const double width = lineOf(u"1 DRINKS"_s).width();
    control<QCheckBox>("ChartSwitch")->click();
    click(u"1 DRINKS"_s);
    EXPECT_FALSE(control("Charts")->isVisible());
    EXPECT_NEAR(lineOf(u"3, COLA"_s).width(), width, 2);
    control<QCheckBox>("ChartSwitch")->click();
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(control("Charts")->isVisible());
}

} // namespace
} // namespace norvane::test
