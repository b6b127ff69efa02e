// From a key of the keyboard to the item that it holds, and back, as the program opens them.
#include "tests/shell/FrameFixture.h"
#include "tests/store/Elsewhere.h"

namespace norvane::shell
{
namespace
{

/// Key 1 of level 1 is PLU 1001, key 2 function 5, key 3 look-up 1.
class KeyItemsInFrameTest : public FrameFixture
{
protected:
    KeyItemsInFrameTest()
    {
        const QString rows = u"insert into %1 with recursive n(i) as (select 1 union all select i + 1 from n "
                             "where i < 845) select i, %2 from n"_s;
        add(rows.arg(u"KEYLINK (ID, KEYLINK)"_s, u"case i when 1 then '0' when 3 then '271' else '5' end"_s));
        add(rows.arg(u"NLU (ID, NLU)"_s, u"case i when 3 then '000100000000000003' "
                                         "else '000000000000001001' end"_s));
        for (const char* const function : {"1, 'A'", "2, 'B'", "3, 'C'", "4, 'D'", "5, 'CASH'"})
            add(u"insert into FUNCTIONKEY (id, DESCRIPTION) values (%1)"_s.arg(QLatin1String(function)));
        add(u"insert into WLU (WLUno, DESCRIPTION) values (1, 'Drinks')"_s);
        add(u"insert into MEMORYALLOCATION ([LINES/PLU]) values ('4')"_s);
    }
    void add(const QString& sql) const
    {
        test::runElsewhere(m_values.databasePath,
                           QString(sql).replace(u'[', u'"').replace(u']', u'"').toUtf8());
    }
    /// Runs @p act on the modal window that opens next, whose name is @p form.
    void onceOpen(const char* form, const std::function<void(QWidget&)>& act)
    {
        QTimer::singleShot(0, &*m_main, [form, act] {
            QWidget* const open = QApplication::activeModalWidget();
            ASSERT_NE(open, nullptr);
            EXPECT_EQ(open->objectName(), QLatin1String(form));
            act(*open);
        });
    }
    /// The cell of a key of the leftmost column, key 1 at the bottom.
    static void openItem(QWidget& editor, int key)
    {
        auto& grid = child<QTableView>(editor, "Grid1");
        grid.setCurrentIndex(grid.model()->index(13 - key, 0));
        child<QAction>(editor, "OpenItem").trigger();
    }
    static std::string cell(const QWidget& editor, int key)
    {
        return child<QTableView>(editor, "Grid1").model()->index(13 - key, 0).data().toString().toStdString();
    }
};

TEST_F(KeyItemsInFrameTest, ItemsOpenOnTheirRecordAndKeysShowTheirNewNames)
{
    onceOpen("KeyLayoutVelmar", [this](QWidget& editor) {
        EXPECT_EQ(cell(editor, 1), "P00000000000001001 Lager");
        openItem(editor, 1);
        QWidget& article = *QApplication::activeModalWidget();
        ASSERT_EQ(article.objectName(), u"OptionForm"_s);
        EXPECT_EQ(shown(article, pluName), "Lager");
        type(article, pluName, "Stout");
        save(article);
        child<QPushButton>(article, "ExitForm").click();
        EXPECT_TRUE(soon([&] { return cell(editor, 1) == "P00000000000001001 Stout"; })) << cell(editor, 1);

        onceOpen("FrmFunctKey", [](QWidget& form) {
            EXPECT_EQ(shown(form, "description"), "CASH");
            type(form, "description", "NOTES");
            child<QPushButton>(form, "SaveRecord").click();
            form.close();
        });
        openItem(editor, 2);
        EXPECT_EQ(cell(editor, 2), "NOTES");

        onceOpen("frmwlu", [](QWidget& form) {
            EXPECT_EQ(shown(form, "WLUNumber"), "1");
            form.close();
        });
        openItem(editor, 3);
        editor.close();
    });
    child<QAction>(*m_main, "KeyboardLocation").trigger();
    EXPECT_TRUE(m_boxes.shown.empty()) << m_boxes.shown.front().text.toStdString();
}

} // namespace
} // namespace norvane::shell
