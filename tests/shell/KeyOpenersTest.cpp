// The key editors from the menu of the real main window.
#include "shell/FrmMain.h"
#include "shell/Openers.h"
#include "tests/shell/ShellFixture.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

class KeyOpenersTest : public ShellFixture
{
protected:
    KeyOpenersTest() { makeCustomerDatabase(); }

    /// Five levels of the larger keyboard.
    void fillKeyboard() const
    {
        store::Database database(m_values.databasePath);
        const store::Transaction all(database);
        const auto add = [&database](const QString& sql) {
            database.execute(sql);
        };
        for (int id = 1; id <= 845; ++id) {
            add(u"insert into KEYLINK (ID, KEYLINK) values (%1, '5')"_s.arg(id));
            add(u"insert into NLU (ID, NLU) values (%1, '1')"_s.arg(id));
        }
    }
    /// Chooses the entry. @return the form that opened, which is closed again.
    QString opened(const char* entry)
    {
        QString form;
        QTimer::singleShot(0, &m_main, [&form] {
            if (QWidget* const open = QApplication::activeModalWidget()) {
                form = open->objectName();
                open->close();
            }
        });
        child<QAction>(m_main, entry).trigger();
        QApplication::processEvents();
        return form;
    }

    FrmMain m_main{m_values, m_boxes, makeOpeners(m_values, m_boxes)};
};

TEST_F(KeyOpenersTest, TheModelDecidesOnTheKeyboardAndItsDataAreInUse)
{
    fillKeyboard();
    m_values.databasePath = m_folder.path("app/Other/velmar.mdb");
    for (const auto& [model, form] :
         {std::pair("0", u"KeyLayoutVelmar"_s), {"2", u"KeyLayoutVelmar"_s}, {"3", u"KeyLayoutDorvik"_s}}) {
        setModel(model);
        EXPECT_EQ(opened("KeyboardLocation"), form);
        EXPECT_EQ(m_values.databasePath, m_folder.path("app/Cafe/velmar.mdb"));
    }
    EXPECT_EQ(m_boxes.shown, std::vector<test::ShownBox>());
}

} // namespace
} // namespace norvane::shell
