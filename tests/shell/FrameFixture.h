// The real main window with the forms of all folders, over a shop with two PLUs.
#pragma once

#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "shell/Openers.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

namespace norvane::shell
{

class FrameFixture : public ShellFixture
{
protected:
    FrameFixture()
    {
        makeCustomerDatabase();
        setModel("2");
        QFile::copy(QStringLiteral(DATA_DIR "/PLUVelmarv3.scn"), m_folder.path("app/PLUVelmarv3.scn"));
        addPlu(u"1001', 'Lager', '2.5"_s);
        addPlu(u"1002', 'Cider', '3"_s);
        m_main.emplace(m_values, m_boxes, makeOpeners(m_values, m_boxes));
        m_main->show();
        QApplication::setActiveWindow(&*m_main);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*m_main));
    }

    /// Adds a PLU; all numbers that its screen shows are 0.
    void addPlu(const QString& numberNamePrice) const
    {
        execute(u"insert into PLUDATA (PLUNUMBER, DESCRIPTION, PRICE1) values ('00000000000000%1')"_s.arg(
            numberNamePrice));
        for (const auto& field : store::catalogueTable(u"PLUDATA"_s)->fields) {
            if (field.type == store::FieldType::Long)
                execute(u"update PLUDATA set [%1] = 0"_s.arg(field.name));
        }
    }
    /// Names and first prices of the PLUs.
    [[nodiscard]] std::string plus() const
    {
        return test::rowsOf(m_values.databasePath,
                            u"select DESCRIPTION & ' ' & PRICE1 from PLUDATA order by PLUNUMBER"_s, u"|");
    }
    /// The form of the child window that is in front.
    QWidget& front() { return *m_main->findChild<QMdiArea*>()->activeSubWindow()->widget(); }
    /// Chooses an entry. @return the form in front then.
    QWidget& open(const char* entry)
    {
        child<QAction>(*m_main, entry).trigger();
        return front();
    }
    static void letter(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier); }
    static void type(QWidget& screen, const char* box, const char* text)
    {
        auto& edit = child<QLineEdit>(screen, box);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(text));
    }
    static std::string shown(const QWidget& screen, const char* box)
    {
        return child<QLineEdit>(screen, box).text().toStdString();
    }
    [[nodiscard]] std::string notice() { return m_main->statusBar1().notice().toStdString(); }
    template <typename Condition>
    static bool soon(Condition condition)
    {
        return QTest::qWaitFor(condition, 2000);
    }
    [[nodiscard]] bool allClosed()
    {
        return soon([this] { return m_main->findChild<QMdiArea*>()->subWindowList().isEmpty(); });
    }
    /// Opens the menu that @p act leads to. @return its name.
    QString menuBy(const std::function<void()>& act)
    {
        act();
        QWidget* const menu = QApplication::activePopupWidget();
        QString name = menu ? menu->objectName() : QString();
        if (menu)
            menu->close();
        return name;
    }

    static void save(const QWidget& screen) { child<QPushButton>(screen, "SaveRecord").click(); }
    void bringToFront(const QWidget& screen)
    {
        m_main->findChild<QMdiArea*>()->setActiveSubWindow(
            qobject_cast<QMdiSubWindow*>(screen.parentWidget()));
    }

    std::optional<FrmMain> m_main;
};

inline constexpr auto pluNumber = "TextControl_1";
inline constexpr auto pluName = "TextControl_2";
inline constexpr auto firstPrice = "DecimalNumberControl_1";

} // namespace norvane::shell
