// The report dialog as a user works it: what it asks of the report control, entry by entry.
#include "sales/Frmreports.h"

#include "sales/MoreReports.h"
#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"
#include "tests/support/FormTest.h"

namespace norvane::sales
{
namespace
{

class FrmreportsTest : public testing::Test
{
protected:
    FrmreportsTest()
    {
        m_values.appPath = u"app"_s;
        m_values.customerName = u"Cafe"_s;
        m_values.customerPath = u"Cafe"_s;
        m_values.databasePath = u"Cafe/velmar.mdb"_s;
    }

    /// Opens the dialog of a menu entry, lets @p use work it and leaves it with Escape.
    void open(const char* handler, const std::function<void()>& use)
    {
        const auto entries = reportEntries();
        const auto entry = std::find_if(entries.begin(), entries.end(), [handler](const ReportEntry& each) {
            return each.handler == QLatin1StringView(handler);
        });
        ASSERT_NE(entry, entries.end()) << handler;
        QTimer::singleShot(0, [&] {
            m_form = QApplication::activeModalWidget();
            ASSERT_TRUE(m_form && QTest::qWaitForWindowActive(m_form)) << handler;
            use();
            EXPECT_TRUE(m_form->isVisible()) << "a report leaves the dialog open";
            QTest::keyClick(m_form, Qt::Key_Escape);
        });
        showReport(*entry, m_values, m_boxes, nullptr,
                   [this](const reports::ReportRequest& request, const KeepGoing&) -> reports::ReportData {
                       m_requests.push_back(request);
                       throw reports::ReportError(u"no layout"_s);
                   });
    }
    template <typename Control>
    Control& control(const char* name)
    {
        return test::child<Control>(*m_form, name);
    }
    bool showsCalendar() { return control<QCalendarWidget>("CSCal").isVisible(); }
    /// What the report control was asked for by the press of Enter.
    QString generated()
    {
        m_requests.clear();
        QTest::keyClick(m_form->focusWidget(), Qt::Key_Return);
        EXPECT_EQ(m_requests.size(), 1U);
        if (m_requests.empty())
            return {};
        const reports::ReportRequest& request = m_requests.back();
        EXPECT_EQ(request.dataFile, m_values.databasePath);
        EXPECT_EQ(request.customer, u"Cafe"_s);
        return QStringList{QFileInfo(request.reportFile).fileName(), request.reportTitle, request.windowTitle,
                           request.selectionFormula}
            .join(u'|');
    }

    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
    std::vector<reports::ReportRequest> m_requests;
    QWidget* m_form = nullptr;
};

TEST_F(FrmreportsTest, AFixedPeriodIsAskedForAtOnce)
{
    const std::pair<const char*, const char*> rows[] = {
        {"Finweek_Click", "finsales.rpt|Financial Sales Report Week to Date||{financialSALES.SALESDATE} in "
                          "WeekToDateFromSun"},
        {"MixMonth_Click",
         "mixsales.rpt|Mix N Match Sales Report Month to Date||{MIXSALES.SALESDATE} in monthtodate"},
        {"Clerkyear_Click",
         "clerksales.rpt|Clerk Sales Report Year to Date||{clerkSALES.SALESDATE} in YearToDate"},
        {"Pluprice_Click", "pluprice.rpt||PLU Price List Report|"},
    };
    for (const auto& [handler, expected] : rows) {
        open(handler, [&, text = QLatin1StringView(expected)] {
            EXPECT_FALSE(showsCalendar());
            EXPECT_EQ(generated(), text);
        });
    }
}

TEST_F(FrmreportsTest, ADayIsPickedAndThePriceListKeepsTheMode)
{
    open("TimeByDate_Click", [this] {
        auto& calendar = control<QCalendarWidget>("CSCal");
        EXPECT_TRUE(showsCalendar());
        EXPECT_EQ(calendar.selectedDate(), QDate::currentDate());
        for (const QDate day : {QDate(2004, 5, 7), QDate(2024, 2, 29)}) {
            calendar.setSelectedDate(day);
            EXPECT_EQ(generated(), u"timesales.rpt|Time Period Report by Date.||{TIMESALES.SALESDATE} = "
                                   "date(%1)"_s.arg(day.toString(u"yyyy,M,d"_s)));
        }
    });
    // A change of customer leaves the database; what is printed is still the former customer's.
    m_values.customerName = u"New"_s;
    m_values.customerPath = u"New"_s;
    const QString today = QDate::currentDate().toString(u"yyyy,M,d"_s);
    open("Pluprice_Click", [this, today] {
        EXPECT_TRUE(showsCalendar());
        EXPECT_EQ(generated(),
                  u"pluprice.rpt||PLU Price List Report|{TIMESALES.SALESDATE} = date(%1)"_s.arg(today));
    });
    open("PLUSalesMonthTodate_Click", [this] { EXPECT_FALSE(showsCalendar()); });
    open("Pluprice_Click", [this] {
        EXPECT_FALSE(showsCalendar());
        EXPECT_EQ(generated(), u"pluprice.rpt||PLU Price List Report|"_s);
        EXPECT_EQ(m_boxes.shown.back(),
                  (test::ShownBox{u"no layout"_s, u"Report Error"_s, BoxIcon::Critical}));
    });
}

TEST_F(FrmreportsTest, CanBeWorkedFromTheKeyboard)
{
    open("MixDate_Click", [this] {
        EXPECT_TRUE(control<QRadioButton>("Option1").isChecked());
        control<QCalendarWidget>("CSCal").setFocus();
        QTest::keyClick(m_form->focusWidget(), Qt::Key_Left);
        const QString yesterday = QDate::currentDate().addDays(-1).toString(u"yyyy,M,d"_s);
        EXPECT_TRUE(generated().endsWith(u"{MIXSALES.SALESDATE} = date(%1)"_s.arg(yesterday)));
        QTest::keyClick(m_form->windowHandle(), Qt::Key_G, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_requests.size() == 2; }));
    });
}

TEST_F(FrmreportsTest, OffersOtherPeriodsAndAComparison)
{
    const auto choose = [this](const char* name, const QString& entry) {
        auto& box = control<QComboBox>(name);
        QTest::keyClick(&box, Qt::Key_Home);
        for (int i = 0; i < box.count() && !box.currentText().startsWith(entry); ++i)
            QTest::keyClick(&box, Qt::Key_Down);
        EXPECT_TRUE(box.currentText().startsWith(entry));
    };
    open("PLUSalesByDate_Click", [&] {
        EXPECT_EQ(control<QComboBox>("Period").currentText(), u"Day in the calendar"_s);
        choose("Period", u"Last month"_s);
        EXPECT_FALSE(control<QCalendarWidget>("CSCal").isEnabled());
        EXPECT_EQ(generated(), u"plusales.rpt|PLU Sales Report||{PLUSALES.SALESDATE} in lastmonth"_s);
        EXPECT_EQ(m_requests.back().comparedWith, reports::ComparedWith::Nothing);
        choose("ComparedWith", u"The same a year"_s);
        choose("Period", u"Days from"_s);
        control<QDateEdit>("PeriodFrom").setDate({2026, 2, 3});
        control<QDateEdit>("PeriodTo").setDate({2026, 1, 1});
        EXPECT_EQ(generated(), u"plusales.rpt|PLU Sales Report||{PLUSALES.SALESDATE} in date(2026,2,3) to "
                               "date(2026,2,3)"_s);
        EXPECT_EQ(m_requests.back().comparedWith, reports::ComparedWith::YearEarlier);
        choose("Period", u"Day in"_s);
        EXPECT_TRUE(control<QCalendarWidget>("CSCal").isEnabled());
        EXPECT_TRUE(generated().startsWith(u"plusales.rpt|PLU Sales Report by Date.||"_s));
    });
    open("clerkweek_Click", [&] {
        choose("ComparedWith", u"The period before"_s);
        EXPECT_TRUE(generated().endsWith(u"in WeekToDateFromSun"_s));
        EXPECT_EQ(m_requests.back().comparedWith, reports::ComparedWith::PeriodBefore);
    });
    open("Pluprice_Click", [&] { EXPECT_EQ(m_form->findChild<QWidget*>(u"Period"_s), nullptr); });
}

TEST_F(FrmreportsTest, OpensTheOtherReportsByKey)
{
    open("Finweek_Click", [this] {
        bool isOpen = false;
        QTimer::singleShot(0, [&] {
            auto* const more = QApplication::activeModalWidget();
            isOpen = more != nullptr && more->objectName() == u"MoreReports"_s;
            if (isOpen)
                QTest::keyClick(more, Qt::Key_Escape);
        });
        QTest::keyClick(m_form->focusWidget(), Qt::Key_R, Qt::ControlModifier);
        EXPECT_TRUE(isOpen);
    });
}

TEST_F(FrmreportsTest, ListsTheReportsOutsideTheMenu)
{
    const test::TestFolder app;
    m_values.appPath = app.path();
    m_values.customerPath = app.path("Cafe");
    ASSERT_TRUE(QDir(app.path()).mkdir(u"Cafe"_s));
    const QByteArray body = "[Column1]\r\nValue={ID}\r\nWidth=20\r\n";
    app.write("plusales.rpt", "[Report]\r\nTitle=Of the menu\r\nTable=PLUSALES\r\n" + body);
    app.write("list.rpt", "; All groups.\r\n[Report]\r\nTitle=Groups\r\nTable=GROUPS\r\n" +
                              QByteArray(body).replace("{ID}", "{GROUPNO}"));
    app.write("broken.rpt", "[Report]\r\nTable=NONE\r\n");
    app.write("Cafe/own.rpt",
              "; Times\r\n; of the shop\r\n[Report]\r\nTitle=Own\r\nTable=TIMESALES\r\n" + body);
    MoreReports form(m_values, m_boxes, [this](const reports::ReportRequest& request, const KeepGoing&) {
        m_requests.push_back(request);
        return reports::ReportData();
    });
    auto& list = test::child<QTreeWidget>(form, "Layouts");
    QStringList shown;
    for (int row = 0; row < list.topLevelItemCount(); ++row) {
        shown << list.topLevelItem(row)->text(0) + u'|' + list.topLevelItem(row)->text(2) + u'|' +
                     list.topLevelItem(row)->text(3);
    }
    ASSERT_EQ(shown.size(), 3) << shown.join(u'\n').toStdString();
    EXPECT_EQ(shown[0], u"Own|Any|Times of the shop"_s);
    EXPECT_TRUE(shown[1].startsWith(u"broken.rpt|"_s) &&
                shown[1].contains(u"line 1, section [Report], key Title"_s));
    EXPECT_EQ(shown[2], u"Groups|None|All groups."_s);
    form.show();
    QTest::keyClick(&test::child<QComboBox>(form, "Period"), Qt::Key_End);
    QTest::keyClick(&test::child<QComboBox>(form, "Period"), Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Return);
    ASSERT_EQ(m_requests.size(), 1U);
    EXPECT_EQ(m_requests.back().selectionFormula, u"{TIMESALES.SALESDATE} in lastyear"_s);
    list.setCurrentItem(list.topLevelItem(1));
    EXPECT_FALSE(test::child<QPushButton>(form, "ShowReport").isEnabled());
    list.setCurrentItem(list.topLevelItem(2));
    QTest::mouseClick(&test::child<QPushButton>(form, "ShowReport"), Qt::LeftButton);
    EXPECT_EQ(m_requests.back().selectionFormula, QString());
    EXPECT_FALSE(test::child<QComboBox>(form, "Period").isEnabled());
}

// A program in the folder of the test stands for the system's; it notes what it is asked to open.
TEST_F(FrmreportsTest, CopiesALayoutForTheShopAndOpensIt)
{
    const test::TestFolder app;
    m_values.appPath = app.path();
    m_values.customerPath = app.path("Cafe");
    m_values.databasePath = app.path("Cafe/velmar.mdb");
    ASSERT_TRUE(QDir(app.path()).mkpath(u"Cafe"_s) && QDir(app.path()).mkpath(u"bin"_s));
    store::Database::create(m_values.databasePath, store::catalogue());
    const QByteArray layout = "; Names\r\n[Report]\r\nTitle=Groups\r\nTable=GROUPS\r\n"
                              "[Column1]\r\nValue={DESCRIPTION}\r\nWidth=50\r\n";
    app.write("list.rpt", layout);
    app.write("Cafe/List.rpt", "the shop's own");
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", app.path("bin").toLocal8Bit());
    const auto restore = qScopeGuard([&] { qputenv("PATH", programs); });
    MoreReports form(m_values, m_boxes, reports::runReport);
    form.show();
    auto& list = test::child<QTreeWidget>(form, "Layouts");
    list.setCurrentItem(list.topLevelItem(1));
    ASSERT_EQ(list.currentItem()->text(0), u"Groups"_s);
    EXPECT_FALSE(test::child<QPushButton>(form, "OpenLayout").isEnabled()) << "the program's is only copied";

    test::press(form, "CopyLayout");
    ASSERT_TRUE(test::soon([this] { return m_boxes.shown.size() == 1; })) << "there is no editor";
    const QString copy = app.path("Cafe/list 2.rpt");
    EXPECT_TRUE(m_boxes.shown[0].text.contains(QDir::toNativeSeparators(copy)));
    EXPECT_EQ(app.read("Cafe/List.rpt"), "the shop's own");
    EXPECT_EQ(app.read("Cafe/list 2.rpt"), layout);
    EXPECT_EQ(list.currentItem()->text(1), u"Cafe"_s) << "the copy is chosen";
    auto* const preview = form.findChild<QWidget*>(u"ReportPreview"_s);
    ASSERT_TRUE(preview && preview->isVisible());
    app.write("Cafe/list 2.rpt", QByteArray(layout).replace("Title=Groups", "Title=Mine"));
    EXPECT_TRUE(test::soon([&] { return preview->windowTitle() == u"Mine"_s; }));
    auto& show = test::child<QPushButton>(form, "ShowReport");
    for (const bool isFaulty : {true, false}) {
        preview->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(preview));
        app.write("Cafe/list 2.rpt", isFaulty ? QByteArray("[Report]\r\n") : layout);
        form.activateWindow();
        EXPECT_TRUE(test::soon([&] { return show.isEnabled() != isFaulty; })) << "the list is read again";
        EXPECT_EQ(list.currentItem()->text(1), u"Cafe"_s);
    }

    app.write("bin/xdg-open", "#!/bin/sh\nprintf %s \"$1\" > '" + app.path("opened").toLocal8Bit() + "'\n");
    QFile::setPermissions(app.path("bin/xdg-open"), QFile::ReadOwner | QFile::ExeOwner);
    test::press(form, "OpenLayout");
    EXPECT_TRUE(test::soon([&] { return QFileInfo(app.path("opened")).size() > 0; }));
    EXPECT_EQ(app.read("opened"), copy.toLocal8Bit());
    EXPECT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(QDir(app.path("Cafe")).entryList({u"*.rpt"_s}).size(), 2);
}

TEST_F(FrmreportsTest, MarksTheDaysWithSales)
{
    const test::TestFolder folder;
    m_values.databasePath = folder.path("velmar.mdb");
    store::Database::create(m_values.databasePath, store::catalogue());
    const QDate first(QDate::currentDate().year(), QDate::currentDate().month(), 1);
    test::execute(m_values.databasePath, u"insert into TIMESALES (ID, SALESDATE) values (1, '%1')"_s.arg(
                                             first.addMonths(-1).addDays(3).toString(Qt::ISODate)));
    open("ClerkDate_Click", [&] {
        auto& calendar = control<QCalendarWidget>("CSCal");
        calendar.showPreviousMonth();
        const auto weight = [&](int day) {
            return calendar.dateTextFormat(first.addMonths(-1).addDays(day - 1)).fontWeight();
        };
        EXPECT_EQ(weight(4), QFont::Bold);
        EXPECT_NE(weight(5), QFont::Bold);
    });
}

} // namespace
} // namespace norvane::sales
