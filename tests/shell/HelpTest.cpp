// F1 with the guide that is installed.
#include "shell/FrameOpeners.h"
#include "shell/HelpKey.h"
#include "shell/HelpTopics.h"
#include "tests/shell/ShellFixture.h"
#include "ui/MessageBoxes.h"

#include <QTest>
#include <QtWidgets>

namespace norvane::shell
{
namespace
{

TEST(HelpTopicsTest, ReferToHeadingsOfTheGuide)
{
    QFile file(QStringLiteral(USER_GUIDE));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QString guide = QString::fromUtf8(file.readAll());
    for (const HelpTopic& topic : helpTopics())
        EXPECT_TRUE(guide.contains(u" id=\"%1\""_s.arg(topic.anchor))) << topic.form.data();
    EXPECT_FALSE(guide.contains(u".md\""_s) && guide.contains(u"href=\"../"_s)) << "leads out of the guide";
    for (const auto& link : QRegularExpression(u"href=\"#([^\"]+)"_s).globalMatch(guide)) {
        const QString place = link.captured(1);
        EXPECT_TRUE(guide.contains(u" id=\"%1\""_s.arg(place)) ||
                    guide.contains(u" name=\"%1\""_s.arg(place)))
            << place.toStdString();
    }
}

class HelpTest : public ShellFixture
{
protected:
    HelpTest()
    {
        m_main.show();
        QApplication::setActiveWindow(&m_main);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_main));
    }

    static void pressF1(QWidget& window)
    {
        QApplication::setActiveWindow(&window);
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_F1);
        QApplication::processEvents();
    }
    /// The guide above @p window.
    static QWidget* guideOf(QWidget& window)
    {
        return window.findChild<QWidget*>(u"GuideWindow"_s, Qt::FindDirectChildrenOnly);
    }
    /// What the guide shows in its uppermost line.
    static std::string uppermost(QWidget& guide)
    {
        const auto& text = child<QTextBrowser>(guide, "GuideText");
        return text.cursorForPosition({20, 20}).block().text().trimmed().toStdString();
    }

    FrmMain m_main{m_values, m_boxes, {.forms = makeFrameOpeners(m_values, m_boxes), .screen = {}}};
};

TEST_F(HelpTest, F1OpensTheGuideAtTheFormAndASearchFindsMore)
{
    const HelpKey help(QStringLiteral(USER_GUIDE), m_boxes);
    pressF1(m_main);
    QPointer<QWidget> guide = guideOf(m_main);
    ASSERT_TRUE(guide && guide->isVisible());
    EXPECT_EQ(uppermost(*guide), "User guide");
    child<QAction>(m_main, "DataSetup").trigger();
    child<QWidget>(m_main, "TxtTelephone").setFocus();
    pressF1(m_main);
    ASSERT_EQ(guideOf(m_main), guide) << "one for each window";
    EXPECT_EQ(uppermost(*guide), "Setup");

    auto& sought = child<QLineEdit>(*guide, "FindText");
    const auto& text = child<QTextBrowser>(*guide, "GuideText");
    const int shownFrom = text.cursorForPosition({20, 20}).position();
    QTest::keyClicks(&sought, u"SAFETY copy"_s);
    const int first = text.textCursor().position();
    EXPECT_EQ(text.textCursor().selectedText(), u"safety copy");
    EXPECT_GT(first, shownFrom);
    QTest::keyClick(&sought, Qt::Key_Return);
    EXPECT_GT(text.textCursor().position(), first);
    QTest::keyClicks(&sought, u"x"_s);
    EXPECT_EQ(child<QLabel>(*guide, "FindTextOutcome").text(), u"Not found.");
    QTest::keyClick(guide, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return guide.isNull(); }, 2000));
}

TEST_F(HelpTest, AModalFormAndABoxAboveItLeaveTheGuideUsable)
{
    const HelpKey help(QStringLiteral(USER_GUIDE), m_boxes);
    std::string places;
    QTimer::singleShot(0, [&] {
        QPointer<QWidget> dialog = QApplication::activeModalWidget();
        pressF1(*dialog);
        places = uppermost(*guideOf(*dialog));
        QTest::mouseClick(&child<QPushButton>(*guideOf(*dialog), "ContentsButton"), Qt::LeftButton);
        places += '|' + uppermost(*guideOf(*dialog));
        QTimer::singleShot(0, [&] {
            QWidget* const box = QApplication::activeModalWidget();
            pressF1(*box);
            places += '|' + uppermost(*guideOf(*box));
            box->close();
        });
        ui::MessageBoxes().ask(u"Go on?"_s, u"Please Check"_s, BoxIcon::Question, BoxAnswer::No);
        m_boxes.answers = {true};
        dialog->close();
    });
    child<QAction>(m_main, "ChangeCustomer").trigger();
    EXPECT_EQ(places, "Choosing a customer|User guide|Questions before something is lost");
}

TEST_F(HelpTest, AMissingGuideIsReported)
{
    const HelpKey help(m_folder.path("app/user-guide.html"), m_boxes);
    pressF1(m_main);
    EXPECT_EQ(guideOf(m_main), nullptr);
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.contains(u"/app/user-guide.html"_s));
}

} // namespace
} // namespace norvane::shell
