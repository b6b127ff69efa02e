// A preview that follows a layout while somebody edits the file.
#include "reports/window/PreviewWindow.h"
#include "reports/window/Report.h"
#include "tests/reports/ReportShop.h"
#include "tests/store/Rows.h"
#include "tests/support/FormTest.h"

namespace norvane::test
{
namespace
{

using namespace reports;

constexpr const char* good = "; Groups\r\n[Report]\r\nTitle=Groups\r\nTable=GROUPS\r\n"
                             "[Column1]\r\nHeading=Number\r\nValue={GROUPNO}\r\nWidth=20\r\n"
                             "[Column2]\r\nHeading=Name\r\nValue={DESCRIPTION}\r\nWidth=60\r\n";

class PreviewFollows : public testing::Test
{
protected:
    PreviewFollows()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS", "2|FOOD"});
        write(good);
    }
    ~PreviewFollows() override { EXPECT_FALSE(takeFailure()); }

    void write(const QByteArray& contents) const { shop.folder().write("own.rpt", contents); }
    [[nodiscard]] QString path() const { return shop.folder().path("own.rpt"); }
    void open()
    {
        m_report.runAndFollow(shop.request(path()));
        m_preview = m_form.findChild<PreviewWindow*>();
        ASSERT_TRUE(m_preview && QTest::qWaitForWindowActive(m_preview));
    }
    /// What the preview would copy: all lines.
    [[nodiscard]] std::string shown() const
    {
        child<QPushButton>(*m_preview, "CopyButton").click();
        return QGuiApplication::clipboard()->text().trimmed().toStdString();
    }
    /// "7 [Column1] Witdh" of each line of the list; empty while it is hidden.
    [[nodiscard]] std::string mistakes() const
    {
        const auto& list = child<QTreeWidget>(*m_preview, "Mistakes");
        QStringList all;
        for (int row = 0; list.isVisible() && row < list.topLevelItemCount(); ++row)
            all << (list.topLevelItem(row)->text(0) + u' ' + list.topLevelItem(row)->text(1)).trimmed();
        return all.join(u'|').toStdString();
    }
    /// Waits until the lines and the list of mistakes are these.
    void expectShown(const std::string& lines, const std::string& wrong = {}) const
    {
        EXPECT_TRUE(soon([&] { return shown() == lines && mistakes() == wrong; })) << shown() << "\n"
                                                                                   << mistakes();
    }

    reports::test::ReportShop shop;
    QWidget m_form;
    RecordingBoxes m_boxes;
    Report m_report{m_form, m_boxes};
    QPointer<PreviewWindow> m_preview;
};

TEST_F(PreviewFollows, EachSaveIsShownAndMistakesLeaveTheLastGoodReport)
{
    open();
    expectShown("1\tDRINKS\n2\tFOOD");
    write(QByteArray(good).replace("{DESCRIPTION}", "Group {DESCRIPTION}"));
    expectShown("1\tGroup DRINKS\n2\tGroup FOOD");
    write(QByteArray(good).replace("Heading=Number", "Haeding=Number").replace("=60", "=wide"));
    expectShown("1\tGroup DRINKS\n2\tGroup FOOD", "6 [Column1] Haeding|12 [Column2] Width");
    EXPECT_TRUE(child<QLabel>(*m_preview, "MistakeHeading").text().contains(u"own.rpt has 2 mistakes"_s));
    write(good);
    expectShown("1\tDRINKS\n2\tFOOD");
    EXPECT_TRUE(m_boxes.shown.empty()) << "a box at each save would take the keyboard from the editor";
}

// As editors save: half a file first, a file that takes the place of the old one, none for a moment.
TEST_F(PreviewFollows, HalfFilesReplacedFilesAndDeletedFiles)
{
    open();
    write(QByteArray(good).left(QByteArray(good).indexOf("Width=20")));
    expectShown("1\tDRINKS\n2\tFOOD", "5 [Column1] Width");
    shop.folder().write("new.rpt", QByteArray(good).replace("{DESCRIPTION}", "{DESCRIPTION}!"));
    ASSERT_EQ(std::rename(qPrintable(shop.folder().path("new.rpt")), qPrintable(path())), 0);
    expectShown("1\tDRINKS!\n2\tFOOD!");
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(soon([this] { return child<QTreeWidget>(*m_preview, "Mistakes").isVisible(); }));
    EXPECT_TRUE(child<QTreeWidget>(*m_preview, "Mistakes").topLevelItem(0)->text(2).contains(u"not found"_s));
    EXPECT_EQ(shown(), "1\tDRINKS!\n2\tFOOD!");
    write("");
    expectShown("1\tDRINKS!\n2\tFOOD!", "[Report] Title");
    write(good);
    expectShown("1\tDRINKS\n2\tFOOD");
}

TEST_F(PreviewFollows, ALayoutThatIsWrongFromTheBeginning)
{
    write(QByteArray(good).replace("Table=GROUPS", "Table=GROPUS"));
    open();
    expectShown("", "4 [Report] Table");
    EXPECT_FALSE(m_preview->grab().isNull());
    EXPECT_EQ(m_preview->windowTitle(), u"own.rpt"_s);
    write(good);
    expectShown("1\tDRINKS\n2\tFOOD");
    EXPECT_EQ(m_preview->windowTitle(), u"Groups"_s);
}

// A reader is not thrown back to the first page.
TEST_F(PreviewFollows, ThePlaceIsKept)
{
    open();
    execute(shop.path(), u"insert into \"GROUPS\" (GROUPNO, DESCRIPTION) "
                         "with recursive numbers(n) as (select 10 union all select n + 1 from numbers "
                         "where n < 200) select n, 'MORE' from numbers"_s);
    write(QByteArray(good) + "; \r\n");
    const auto* const number = m_preview->findChild<QLabel*>(u"PageNumber"_s);
    ASSERT_TRUE(soon([&] {
        return number->text().startsWith(u"Page 1 of "_s) && !number->text().endsWith(u" 1"_s);
    })) << number->text().toStdString();
    QTest::keyClick(&child<QAbstractScrollArea>(*m_preview, "Pages"), Qt::Key_PageDown);
    ASSERT_TRUE(number->text().startsWith(u"Page 2"_s));
    write(QByteArray(good).replace("{DESCRIPTION}", "{DESCRIPTION}!"));
    ASSERT_TRUE(soon([this] { return shown().starts_with("1\tDRINKS!"); }));
    EXPECT_TRUE(number->text().startsWith(u"Page 2"_s)) << number->text().toStdString();
}

} // namespace
} // namespace norvane::test
