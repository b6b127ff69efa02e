// Files of a table out of the real main window, and back into it.
#include "tests/shell/TableFixture.h"
#include "tests/support/OtherPrograms.h"

namespace norvane::shell
{
namespace
{

class TableFilesTest : public TableFixture
{
protected:
    TableFilesTest()
    {
        execute(u"insert into GROUPS (GROUPNO, DESCRIPTION) values (3, 'Drinks')"_s);
        execute(u"update PLUDATA set GROUPNO = 3 where DESCRIPTION = 'Cider'"_s);
        openTable();
    }
    /// @return the file, as bytes.
    QByteArray exportTo(const char* file)
    {
        m_boxes.typed = {m_folder.path(file)};
        child<QAction>(*m_table, "ExportTable").trigger();
        QFile written(m_folder.path(file));
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }
    void importText(const QByteArray& text, const std::function<void(QDialog& dialog)>& act)
    {
        m_folder.write("app/in.csv", text);
        EXPECT_TRUE(importFrom(m_folder.path("app/in.csv"), act));
    }
    static bool mayImport(const QDialog& dialog)
    {
        return child<QPushButton>(dialog, "ImportButton").isEnabled();
    }
    static void press(const QDialog& dialog) { child<QPushButton>(dialog, "ImportButton").click(); }
    static void pick(const QDialog& dialog, const char* list, const char* entry)
    {
        child<QComboBox>(dialog, list).setCurrentText(QLatin1String(entry));
    }
    [[nodiscard]] QByteArray log() const
    {
        QFile file(m_folder.path("app/Cafe/norvane.log"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(TableFilesTest, WhatIsShownGoesIntoFilesThatCanBeImportedAgain)
{
    for (const char* const file : {"app/out.csv", "app/out.xlsx"}) {
        EXPECT_FALSE(exportTo(file).isEmpty());
        EXPECT_TRUE(importFrom(m_folder.path(file), [](const QDialog& dialog) {
            EXPECT_EQ(state(dialog), "The file changes nothing: 2 unchanged.");
            EXPECT_FALSE(mayImport(dialog));
        }));
    }
    auto& view = child<QTableView>(*m_table, "TableView");
    view.sortByColumn(1, Qt::AscendingOrder);
    for (int column = 3; column < view.model()->columnCount(); ++column)
        view.setColumnHidden(column, true);
    EXPECT_EQ(exportTo("app/out.csv").toStdString(),
              "\xEF\xBB\xBFPLU number,Description,Group\r\n1002,Cider,3\r\n1001,Lager,0\r\n");
    QTest::keyClicks(&child<QLineEdit>(*m_table, "TableFilter"), u"drinks"_s);
    EXPECT_FALSE(exportTo("app/out.pdf").isEmpty());
    const std::string pages = test::pdfLines(m_folder.path("app/out.pdf")).join(u'\n').toStdString();
    EXPECT_NE(pages.find("3 Drinks"), std::string::npos) << pages;
    EXPECT_NE(pages.find("1 of 2 records"), std::string::npos) << pages;
    EXPECT_EQ(pages.find("Lager"), std::string::npos) << pages;
}

TEST_F(TableFilesTest, AnExportThatFailsIsReported)
{
    EXPECT_TRUE(exportTo("app/none/out.csv").isEmpty());
    EXPECT_EQ(m_boxes.shown.back().title, u"Export"_s);
    EXPECT_TRUE(exportTo("app/out.doc").isEmpty());
    EXPECT_EQ(m_boxes.shown.back().text, u"Name a file that ends in .csv, .xlsx or .pdf."_s);
    EXPECT_EQ(&front(), m_table);
}

TEST_F(TableFilesTest, AnImportIsListedStoredLoggedAndUndone)
{
    importText("PLU number;Price 1;Description\n1001;2,60;Lager\n1002;3;Cider\n7;1;Tea\n",
               [&](const QDialog& dialog) {
                   EXPECT_EQ(lines(dialog), "Changed|1001|Price 1|2.50|2.60\nNew|7|||new PLU\nNew|7|Price "
                                            "1|0.00|1.00\nNew|7|Description||Tea");
                   EXPECT_EQ(state(dialog),
                             "1 changed, 1 new, 1 unchanged. Nothing is stored before you press Import.");
                   pick(dialog, "DifferenceKinds", "Changed records");
                   EXPECT_EQ(lines(dialog), "Changed|1001|Price 1|2.50|2.60");
                   EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
                   press(dialog);
               });
    EXPECT_EQ(plus(), "Tea 1|Lager 2.6|Cider 3");
    EXPECT_EQ(notice(), "Imported in.csv: 1 changed, 1 new. Ctrl+Z undoes it");
    EXPECT_EQ(child<QTableView>(*m_table, "TableView").model()->rowCount(), 3);
    EXPECT_TRUE(log().contains("PLU import\t\t1 changed, 1 new")) << log().toStdString();
    EXPECT_EQ(QDir(m_folder.path("app/Cafe/copies")).entryList({u"* before PLU import"_s}).size(), 1);
    EXPECT_EQ(shown(*m_screen, firstPrice), "2.60");
    m_main->bringToFront(*m_screen);
    m_boxes.answers = {true};
    QApplication::setActiveWindow(&*m_main);
    child<QLineEdit>(*m_screen, pluName).setFocus();
    QTest::keyClick(&child<QLineEdit>(*m_screen, pluName), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3") << notice();
}

TEST_F(TableFilesTest, NothingIsStoredOfAFileWithMistakes)
{
    importText(
        "PLU number,Price 1,Group\n1001,2.60,3\n1002,cheap,9\n12345678901234567890,1,3\n",
        [](const QDialog& dialog) {
            EXPECT_EQ(
                lines(dialog),
                "Mistake|line 3|Price 1||\"cheap\" is not a price\n"
                "Mistake|line 3|Group||there is no group 9\n"
                "Mistake|line 4|PLU number||\"12345678901234567890\" is not a PLU number of up to 18 digits\n"
                "Changed|1001|Price 1|2.50|2.60\nChanged|1001|Group|0|3");
            EXPECT_EQ(state(dialog), "Mistakes: 3. Nothing can be imported before they are mended.");
            EXPECT_FALSE(mayImport(dialog));
        });
    importText("", [](const QDialog& dialog) { EXPECT_EQ(state(dialog), "The file is empty."); });
    importText("1001|2.60\n", [](const QDialog& dialog) {
        EXPECT_EQ(state(dialog), "Choose which column of the file has the PLU number.");
        EXPECT_FALSE(mayImport(dialog));
    });
    m_boxes.typed = {m_folder.path("app")};
    child<QAction>(*m_table, "ImportTable").trigger();
    EXPECT_EQ(m_boxes.shown.back().text, u"The file app is a folder."_s);
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
    EXPECT_FALSE(log().contains("import"));
}

TEST_F(TableFilesTest, TheShopRemembersWhatHeadingsMean)
{
    const QByteArray file = "PLUs of today,,\nArticle,Retail,Supplier\n1001,2.60,x\n";
    importText(QByteArray(file).replace("2.60", "cheap"), [](const QDialog& dialog) {
        pick(dialog, "ColumnChoice1", "PLU number");
        EXPECT_EQ(state(dialog), "The file changes nothing: 1 unchanged. Not imported: Retail, Supplier.");
        pick(dialog, "ColumnChoice2", "Price 1");
        EXPECT_FALSE(mayImport(dialog)) << "the user mends the file and comes again";
    });
    importText(file, press);
    EXPECT_EQ(plus(), "Lager 2.6|Cider 3");
    importText(QByteArray(file).replace("2.60", "2.70"), [](const QDialog& dialog) {
        EXPECT_EQ(lines(dialog), "Changed|1001|Price 1|2.60|2.70");
        pick(dialog, "ColumnChoice3", "Price 1");
        EXPECT_EQ(lines(dialog), "Mistake|line 2|Supplier||the column is there twice");
    });
}

TEST_F(TableFilesTest, WhatOthersChangedMeanwhileIsComparedAgain)
{
    importText("PLU number,Price 1\n1001,2.60\n", [this](const QDialog& dialog) {
        execute(u"update PLUDATA set PRICE1 = '2.55' where DESCRIPTION = 'Lager'"_s);
        press(dialog);
        EXPECT_EQ(m_boxes.shown.back().text.toStdString(),
                  "Nothing was imported. Records were changed after the file was compared.\r\r"
                  "The list shows what the file would change now.");
        EXPECT_EQ(plus(), "Lager 2.55|Cider 3");
        EXPECT_EQ(lines(dialog), "Changed|1001|Price 1|2.55|2.60");
        press(dialog);
    });
    EXPECT_EQ(plus(), "Lager 2.6|Cider 3");
}

TEST_F(TableFilesTest, UnsavedChangesAreSettledFirst)
{
    auto& cells = *child<QTableView>(*m_table, "TableView").model();
    cells.setData(cells.index(0, 1), u"Stout"_s);
    m_boxes.unsavedAnswers = {UnsavedAnswer::Cancel};
    child<QAction>(*m_table, "ImportTable").trigger();
    EXPECT_EQ(m_boxes.shown.back().text,
              u"Changes in the table of PLUs are not saved. [Save|Discard|Cancel]"_s);
    EXPECT_TRUE(m_table->isWindowModified());
    m_boxes.unsavedAnswers = {UnsavedAnswer::Discard};
    importText("PLU number,Price 1\n1001,2.60\n", &press);
    EXPECT_FALSE(m_table->isWindowModified());
    EXPECT_EQ(plus(), "Lager 2.6|Cider 3");
}

} // namespace
} // namespace norvane::shell
