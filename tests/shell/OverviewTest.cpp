// The overview in the real main window, with the real screens and forms.
#include "shell/Overview.h"

#include "tests/shell/FrameFixture.h"

#include <QAccessible>

namespace norvane::shell
{
namespace
{

class OverviewTest : public FrameFixture
{
protected:
    OverviewTest()
    {
        sell("2026-11-25", 5);
        show();
        m_main->showCustomer();
        EXPECT_TRUE(soon([this] { return spoken("OverviewCollection").contains(u"yesterday"_s); }));
    }

    void show()
    {
        new Overview(*m_main, m_values, m_memory, [this] { return m_now; });
    }
    void sell(const char* day, int value) const
    {
        execute(
            u"insert into FINANCIALSALES (ID, SALESDATE, QUANTITY, [VALUE]) values (2, '%1', 1, %2)"_s.arg(
                QLatin1String(day), QString::number(value)));
    }
    QWidget& panel() { return child<QWidget>(*m_main, "OverviewPanel"); }
    QPushButton& row(const char* name) { return child<QPushButton>(*m_main, name); }
    /// Empty until the line is there.
    QString spoken(const char* name)
    {
        const auto* const line = m_main->findChild<QPushButton*>(QLatin1String(name));
        return line == nullptr ? QString() : line->accessibleName();
    }
    QMdiArea& area() { return *m_main->findChild<QMdiArea*>(); }
    /// Asks for the context menu in the middle of @p place and chooses its only entry.
    void chooseInMenu(QWidget& place)
    {
        const QPoint middle = place.rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, middle, place.mapToGlobal(middle));
        QApplication::sendEvent(&place, &event);
        if (QWidget* const menu = QApplication::activePopupWidget()) {
            child<QAction>(*menu, "ShowOverview").trigger();
            menu->close();
        }
    }

    OverviewMemory m_memory{m_folder.path("overview.ini")};
    QDateTime m_now{QDate(2026, 11, 26), QTime(23, 59)};
};

TEST_F(OverviewTest, IsBelowTheChildWindowsAndTakesNothingFromThem)
{
    QTest::keyClick(&*m_main, Qt::Key_Tab);
    EXPECT_TRUE(panel().isAncestorOf(QApplication::focusWidget())) << "while no window is open";
    EXPECT_TRUE(area().subWindowList().isEmpty());

    QWidget& screen = open("PLUMENU");
    screen.parentWidget()->setGeometry(area().viewport()->rect());
    const QPoint place = panel().geometry().center();
    EXPECT_TRUE(screen.parentWidget()->isAncestorOf(area().viewport()->childAt(place)));
    sell("2026-11-26", 7);
    Q_EMIT m_main->entryDone();
    EXPECT_TRUE(soon([this] { return spoken("OverviewCollection").contains(u"today"_s); }));
    EXPECT_TRUE(screen.parentWidget()->isAncestorOf(area().viewport()->childAt(place)));
    EXPECT_TRUE(screen.isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(area().subWindowList().size(), 1);
    EXPECT_EQ(row("OverviewCollection").focusPolicy(), Qt::NoFocus) << "Tab remains in the window";
    chooseInMenu(*screen.findChild<QLabel*>());
    EXPECT_TRUE(panel().isVisible()) << "a child window's context menu is its own";
    screen.close();
    EXPECT_TRUE(soon([this] { return row("OverviewCollection").focusPolicy() == Qt::TabFocus; }));
}

TEST_F(OverviewTest, ReadsAgainAfterMidnightAndForAnotherCustomer)
{
    m_now = m_now.addSecs(60);
    QEvent front(QEvent::WindowActivate);
    QApplication::sendEvent(&*m_main, &front);
    EXPECT_TRUE(soon([this] { return spoken("OverviewCollection").endsWith(u"2 days ago"_s); }));

    m_folder.write("app/Bar/setup.ini", "[SetupOption]\r\nECRModel= 0\r\n");
    store::Database::create(m_folder.path("app/Bar/velmar.mdb"), store::catalogue());
    m_values.customerName = u"Bar"_s;
    m_values.customerPath = m_folder.path("app/Bar");
    m_main->showCustomer();
    EXPECT_TRUE(soon([this] { return spoken("OverviewCollection") == u"Last collection: never"_s; }));
    EXPECT_TRUE(soon([this] { return spoken("OverviewUnsent").endsWith(u": nothing"_s); }));
}

TEST_F(OverviewTest, RemainsHiddenUntilTheBackgroundShowsItAgain)
{
    child<QToolButton>(*m_main, "HideOverview").click();
    EXPECT_FALSE(panel().isVisible());
    EXPECT_FALSE(OverviewMemory(m_folder.path("overview.ini")).isShown());
    EXPECT_FALSE(notice().empty()) << "how to get it back";
    chooseInMenu(*area().viewport());
    EXPECT_TRUE(panel().isVisible());
    chooseInMenu(panel());
    EXPECT_FALSE(panel().isVisible()) << "the entry hides it, too";
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
    QApplication::sendEvent(&*m_main, &byKey);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    child<QAction>(*QApplication::activePopupWidget(), "ShowOverview").trigger();
    EXPECT_TRUE(panel().isVisible());
    EXPECT_TRUE(OverviewMemory(m_folder.path("overview.ini")).isShown());
}

TEST_F(OverviewTest, LinesOpenWhatTheyAreAbout)
{
    QString opened;
    const auto dialogOf = [&](const char* name) {
        QTimer::singleShot(0, [&] {
            opened = QApplication::activeModalWidget()->objectName();
            QApplication::activeModalWidget()->close();
        });
        row(name).click();
        QApplication::processEvents();
        return opened.toStdString();
    };
    EXPECT_EQ(dialogOf("OverviewCopies"), "CopiesDialog");
    EXPECT_EQ(dialogOf("OverviewUnsent"), "FrmComm");
    EXPECT_EQ(dialogOf("OverviewLog"), "frmSysInfo");
    EXPECT_EQ(dialogOf("OverviewTakings"), "Frmreports");
    row("OverviewCollection").click();
    EXPECT_EQ(front().objectName(), u"FrmsalesComm"_s);
}

TEST_F(OverviewTest, SaysEachDayToAScreenReader)
{
    const auto* const bars = QAccessible::queryAccessibleInterface(&child<QWidget>(*m_main, "TakingsBars"));
    ASSERT_EQ(bars->childCount(), 7);
    EXPECT_EQ(bars->child(5)->text(QAccessible::Name), u"Wed 25/11: 5.00"_s);
    EXPECT_EQ(bars->child(6)->text(QAccessible::Name), u"Thu 26/11: not collected yet"_s);
}

} // namespace
} // namespace norvane::shell
