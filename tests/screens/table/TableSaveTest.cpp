// What a save stores, and what becomes of changes that it cannot store.
#include "platform/FolderLock.h"
#include "store/engine/CommitOnExit.h"
#include "tests/platform/FullDisk.h"
#include "tests/platform/PlainUser.h"
#include "tests/screens/table/TableWindowFixture.h"
#include "tests/store/Elsewhere.h"

namespace norvane::screens
{
namespace
{

constexpr auto readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther | QFile::ExeOwner |
                          QFile::ExeGroup | QFile::ExeOther;
constexpr auto writable = readable | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

class TableSaveTest : public TableWindowFixture
{
protected:
    /// Saves, and checks that nothing was stored and all changes are still in the list.
    std::string refusedSave()
    {
        const std::string before = pending();
        const std::string stored = plus();
        save();
        EXPECT_EQ(pending(), before);
        EXPECT_EQ(plus(), stored);
        EXPECT_TRUE(window->isWindowModified());
        EXPECT_EQ(m_history->latest(m_values.databasePath), nullptr) << "nothing can be undone";
        return notice;
    }
    void allow(const char* path, QFile::Permissions rights) const
    {
        EXPECT_TRUE(QFile::setPermissions(m_folder.path(path), rights));
    }
};

TEST_F(TableSaveTest, ChangesOfOthersAreShownBeforeTheyAreOverwritten)
{
    for (const int number : {0, 1, 2}) {
        goTo(number, 3);
        type("7");
    }
    execute("update PLUDATA set PRICE1 = '3' where DESCRIPTION = 'Lager'");
    execute("delete * from PLUDATA where DESCRIPTION = 'Coke Zero'");
    execute("delete * from PLUDATA where DESCRIPTION = 'Café'");
    addPlu("30, 'Mocha', 1, '9.8', 0, 0"); // as an upload stores it again
    save();
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(
        m_boxes.shown[0].text.toStdString(),
        "Others have changed records since you saw them:\r\rPLUNUMBER 5, PRICE1: was 2.50, is 3.00, yours is "
        "7.00\rPLUNUMBER 9 was deleted; its change is dropped\r\rStore your values?");
    EXPECT_EQ(m_boxes.shown[0].preset, BoxAnswer::No);
    EXPECT_EQ(plus(), "Lager|3|3|False Mocha|9.8|1|False Menu|0.00|0|False");
    EXPECT_EQ(notice, "Nothing was stored. Your changes are still in the list");
    m_boxes.answers = {true};
    save();
    EXPECT_EQ(plus(), "Lager|7|3|False Mocha|7|1|False Menu|0.00|0|False");
    EXPECT_EQ(pending(), "");
}

TEST_F(TableSaveTest, APriceRunAndANewNumberAreAskedAboutAndAnUploadIsNot)
{
    const auto questionAbout = [this](const char* sql) {
        execute(sql);
        EXPECT_EQ(refusedSave(), "Nothing was stored. Your changes are still in the list");
        return m_boxes.shown.back().text.section(u'\r', 2, 2).toStdString();
    };
    goTo(0, 3);
    type("7");
    EXPECT_EQ(questionAbout("update PLUDATA set PRICE1 = '3'"),
              "PLUNUMBER 5, PRICE1: was 2.50, is 3.00, yours is 7.00");
    execute("update PLUDATA set PRICE1 = '2.5'");
    EXPECT_EQ(questionAbout("update PLUDATA set PLUNUMBER = '6' where DESCRIPTION = 'Lager'"),
              "PLUNUMBER 5 is now PLUNUMBER 6");
    execute("delete * from PLUDATA where DESCRIPTION <> 'Menu'"); // as an upload replaces its records
    addPlu("4, 'Mocha', 1, '1', 0, 0");
    addPlu("5, 'Lager', 3, '2.5', 0, 0");
    save();
    EXPECT_EQ(notice, "Saved 1 change in 1 record. Ctrl+Z undoes it");
    EXPECT_EQ(m_boxes.shown.size(), 2U);
    EXPECT_EQ(plus(), "Mocha|1|1|False Lager|7|3|False Menu|2.5|0|False");
}

TEST_F(TableSaveTest, WhatChangesWhileTheUserIsAskedIsNotOverwritten)
{
    goTo(0, 3);
    type("7");
    execute("update PLUDATA set PRICE1 = '3'");
    m_boxes.whileOpen = [this](const test::ShownBox&) {
        execute("update PLUDATA set PRICE1 = '4'");
    };
    m_boxes.answers = {true};
    save();
    EXPECT_EQ(notice,
              "Nothing was stored: records were changed meanwhile. Press Save Changes again to see them");
    EXPECT_EQ(pending(), "5|PRICE1|3.00|7.00");
    EXPECT_TRUE(plus().starts_with("Lager|4|"));
}

TEST_F(TableSaveTest, ALockedDatabaseOrShopKeepsTheList)
{
    goTo(0, 1);
    type("Stout");
    const std::string locked = "Nothing was stored: another program holds the database";
    {
        store::Database other(m_values.databasePath);
        const store::CommitOnExit writing(other);
        EXPECT_EQ(refusedSave(), locked);
    }
    {
        const test::ReadingElsewhere reading(m_values.databasePath);
        EXPECT_EQ(refusedSave(), locked);
    }
    EXPECT_TRUE(m_boxes.shown.empty());
    {
        const auto lock = FolderLock::take(m_values.customerPath, m_boxes);
        EXPECT_EQ(refusedSave(), "Nothing was stored. Your changes are still in the list");
    }
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.startsWith(u"Nothing was started: another exchange"_s));
    save();
    EXPECT_EQ(notice, "Saved 1 change in 1 record. Ctrl+Z undoes it");
}

TEST_F(TableSaveTest, AReadOnlyDatabaseOrFolderKeepsTheList)
{
    allow("", writable);
    allow("SHOP", writable);
    allow("SHOP/velmar.mdb", readable);
    {
        const test::PlainUser user;
        open();
        goTo(0, 1);
        type("Stout");
        EXPECT_EQ(refusedSave(), "Nothing was stored: the database is read only");
        EXPECT_TRUE(m_boxes.shown.empty());
    }
    allow("SHOP", readable);
    const test::PlainUser user;
    EXPECT_EQ(refusedSave(), "Nothing was stored. Your changes are still in the list");
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.endsWith(u"norvane.lock cannot be written, so nothing was started."_s));
}

TEST_F(TableSaveTest, AFullDiskKeepsTheList)
{
    for (int number = 100; number < 400; ++number)
        addPlu(QByteArray::number(number) + ", '', 1, '1', 0, 0");
    window->refresh();
    goTo(0, 1);
    view->selectionModel()->select(QItemSelection(view->model()->index(0, 1), view->model()->index(303, 1)),
                                   QItemSelectionModel::Select);
    paste("Sixteen letters!");
    {
        const test::FullDisk disk(8192);
        EXPECT_EQ(refusedSave(), "Nothing was stored: there is no safety copy");
    }
    {
        const test::FullDisk disk(static_cast<rlim_t>(QFileInfo(m_values.databasePath).size()));
        EXPECT_EQ(refusedSave().find("Nothing was stored: the disk"), 0U) << notice;
    }
    save();
    EXPECT_EQ(notice, "Saved 304 changes in 304 records. Ctrl+Z undoes it");
}

TEST_F(TableSaveTest, TheListSurvivesAFailedSaveAndClosingAsks)
{
    goTo(0, 1);
    type("Stout");
    QFile(m_values.customerPath + u"/copies"_s).open(QFile::WriteOnly); // where the copies belong
    save();
    EXPECT_EQ(notice, "Nothing was stored: there is no safety copy");
    EXPECT_EQ(pending(), "5|DESCRIPTION|Lager|Stout");
    EXPECT_EQ(plus(), untouched);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(m_boxes.shown.back().text,
              u"Changes in the table of PLUs are not saved. [Save|Discard|Cancel]"_s);
    QFile::remove(m_values.customerPath + u"/copies"_s);
    m_boxes.unsavedAnswers = {UnsavedAnswer::Save};
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(plus().starts_with("Stout|"));
}

} // namespace
} // namespace norvane::screens
