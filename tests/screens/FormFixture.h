// A screen over the small shop, driven as a user would.
#pragma once

#include "screens/OptionForm.h"
#include "tests/screens/ScreenFixture.h"
#include "tests/support/FormTest.h"
#include "tests/support/RecordingBoxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <memory>

namespace norvane::test
{

class FormFixture : public testing::Test
{
protected:
    using Form = std::unique_ptr<screens::OptionForm>;

    /// Opens the screen file that is written now.
    Form open(screens::ReportRunner* reports = nullptr)
    {
        auto form = std::make_unique<screens::OptionForm>(m_shop.values, m_boxes, reports);
        form->show();
        QApplication::setActiveWindow(form.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return form;
    }
    Form open(const QByteArray& screen)
    {
        m_shop.screen(screen);
        return open();
    }
    template <typename Widget = QWidget>
    static Widget* control(const Form& form, const char* name)
    {
        auto* const found = form->findChild<Widget*>(QString::fromLatin1(name));
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
    static QString text(const Form& form, const char* box) { return control<QLineEdit>(form, box)->text(); }
    /// Presses a find button and answers the dialog that it opens.
    static void find(const Form& form, const char* button, const char* searchText,
                     Qt::Key key = Qt::Key_Return)
    {
        QTimer::singleShot(0, [=] {
            QWidget* const dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            auto* const box = dialog->findChild<QLineEdit*>(QStringLiteral("SearchData"));
            QTest::keyClicks(box, QString::fromUtf8(searchText));
            QTest::keyClick(box, key);
        });
        press(form, button);
    }

    ScreenFixture m_shop;
    RecordingBoxes m_boxes;
};

} // namespace norvane::test
