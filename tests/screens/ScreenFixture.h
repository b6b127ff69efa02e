// A screen over a shop's small database, driven as a user would.
#pragma once

#include "base/ApplicationValues.h"
#include "screens/OptionForm.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"
#include "tests/support/FormTest.h"

#include <memory>

namespace norvane::test
{

/// Two tables: GROUPS with its number as key and an index over the names, PLUDATA with 18-digit keys.
inline QVector<store::TableDefinition> shopTables()
{
    using enum store::FieldType;
    return {{u"GROUPS"_s,
             {{u"GROUPNO"_s, Long, 0, {}},
              {u"DESCRIPTION"_s, Text, 12, {}},
              {u"RATE"_s, Double, 0, {}},
              {u"PRICE"_s, Text, 12, {}},
              {u"LINK"_s, Long, 0, {}},
              {u"LONGLINK"_s, Digits, 18, {}},
              {u"TAX1"_s, YesNo, 0, {}},
              {u"FLAG"_s, Long, 0, {}}},
             {{{u"groupno"_s}, u"GROUPNO"_s}, {{u"byname"_s}, u"DESCRIPTION"_s, false}}},
            {u"PLUDATA"_s,
             {{u"PLUNUMBER"_s, Text, 18, {}},
              {u"DESCRIPTION"_s, Text, 16, {}},
              {u"PRICE1"_s, Text, 12, {}},
              {u"GROUPNO"_s, Long, 0, {}}},
             {{{u"plunumber"_s}, u"PLUNUMBER"_s}}}};
}

class ScreenFixture : public testing::Test
{
protected:
    using Form = std::unique_ptr<screens::OptionForm>;

    ScreenFixture()
    {
        m_values.appPath = m_folder.path();
        m_values.databasePath = m_folder.path("velmar.mdb");
        store::Database::create(m_values.databasePath, shopTables());
        for (const char* group : {"1, 'Wines', 3, 1, 1", "2, 'Beers', 1, 0, -1", "3, 'Food', 2, 0, -1"}) {
            execute("insert into GROUPS (RATE, PRICE, GROUPNO, DESCRIPTION, LINK, TAX1, FLAG) values (1.5, "
                    "'12.34', " +
                    QByteArray(group) + ")");
        }
        execute("insert into PLUDATA values ('000000000000000005', 'Lager', '2.5', 9)");
        execute("insert into PLUDATA values ('000000000000000123', 'Claret', '2.5', 9)");
    }

    void execute(const QByteArray& sql) const
    {
        test::execute(m_values.databasePath, QString::fromUtf8(sql));
    }
    [[nodiscard]] std::string rows(const QByteArray& sql) const
    {
        return rowsOf(m_values.databasePath, QString::fromUtf8(sql));
    }
    /// Writes the screen file; lines are given with "\n".
    void screen(QByteArray text) const { m_folder.write("test.scn", text.replace("\n", "\r\n")); }
    /// Opens the screen file that is written now.
    Form open()
    {
        auto form =
            std::make_unique<screens::OptionForm>(m_screenFilePath, m_values, m_boxes, nullptr, m_losses);
        form->show();
        QApplication::setActiveWindow(form.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return form;
    }
    Form open(const QByteArray& text)
    {
        screen(text);
        return open();
    }
    template <typename Widget = QWidget>
    static Widget* control(const Form& form, const char* name)
    {
        auto* const found = form->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    static void press(const Form& form, const char* button)
    {
        QTest::mouseClick(control<QAbstractButton>(form, button), Qt::LeftButton);
    }
    static void type(const Form& form, const char* box, const char* text)
    {
        auto* const edit = control<QLineEdit>(form, box);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, QString::fromUtf8(text));
    }
    static std::string text(const Form& form, const char* box)
    {
        return control<QLineEdit>(form, box)->text().toStdString();
    }
    /// Presses a find button, types into the dialog and ends it with a key, or with the button @p answer.
    /// @return what the dialog says.
    static std::string find(const Form& form, const char* button, const char* searchText,
                            Qt::Key key = Qt::Key_Return, const char* answer = nullptr)
    {
        QString said;
        QTimer::singleShot(0, [=, &said] {
            QWidget* const dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            said = dialog->findChild<QLabel*>()->text();
            auto* const box = dialog->findChild<QLineEdit*>(u"SearchData"_s);
            QTest::keyClicks(box, QString::fromUtf8(searchText));
            if (answer != nullptr) {
                dialog->findChild<QAbstractButton*>(QLatin1String(answer))->click();
            } else {
                QTest::keyClick(box, key);
            }
        });
        press(form, button);
        return said.toStdString();
    }
    [[nodiscard]] ShownBox takeBox()
    {
        EXPECT_EQ(m_boxes.shown.size(), 1U);
        const auto shown = std::exchange(m_boxes.shown, {});
        return shown.empty() ? ShownBox{} : shown.back();
    }

    TestFolder m_folder;
    QString m_screenFilePath = m_folder.path("test.scn");
    ApplicationValues m_values;
    std::shared_ptr<screens::LostChangesList> m_losses = std::make_shared<screens::LostChangesList>();
    RecordingBoxes m_boxes;
};

} // namespace norvane::test
