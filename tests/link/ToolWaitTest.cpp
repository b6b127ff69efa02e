// A real tool that hangs, and a user who keeps pressing keys in real windows.
#include "link/ToolWait.h"

#include "tests/platform/TestFolder.h"
#include "tests/support/FormTest.h"

using namespace std::chrono_literals;

namespace norvane::link
{
namespace
{

class Painted : public QWidget
{
public:
    using QWidget::QWidget;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paints; }
};

/// Remains open when the user leaves, as the form of a run does.
class Form : public QDialog
{
public:
    int leaves = 0;
    void reject() override { ++leaves; }
};

/// The form of a run, another window, and a tool that hangs.
class ToolWaitTest : public testing::Test
{
protected:
    ToolWaitTest()
    {
        EXPECT_TRUE(QFile::copy(QStringLiteral(CHILD_PROBE), m_folder.path("tool")));
        m_values.appPath = m_folder.path();
        auto* const column = new QVBoxLayout(&form);
        column->addWidget(&exit);
        column->addWidget(&painted);
        exit.setMinimumHeight(30);
        painted.setMinimumHeight(30);
        QObject::connect(&exit, &QPushButton::clicked, [this] { ++exits; });
        for (QWidget* window : {static_cast<QWidget*>(&other), static_cast<QWidget*>(&form)}) {
            window->show();
            window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        }
        wait.setExit(&exit, [this](bool leaves) { isLeaving = leaves; });
    }

    /// Runs a tool that hangs. Meanwhile the user does @p acts, one each turn of 50 ms.
    [[nodiscard]] ChildResult hang(const std::vector<std::function<void()>>& acts)
    {
        return hang(acts, wait);
    }
    [[nodiscard]] ChildResult hang(const std::vector<std::function<void()>>& acts, ToolWait& by) const
    {
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&, next = std::size_t{0}]() mutable {
            if (next < acts.size())
                acts.at(next++)();
        });
        user.start(50ms);
        return by.run(m_values, u"tool hang started"_s);
    }
    /// A key as the platform reports it for the window of the form.
    void key(QTest::KeyAction action, Qt::Key which = Qt::Key_Escape, Qt::KeyboardModifiers with = {})
    {
        QTest::keyEvent(action, form.windowHandle(), which, with);
    }
    void down() { key(QTest::Press); }
    void up() { key(QTest::Release); }
    void clickExit() { QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, exit.geometry().center()); }
    [[nodiscard]] bool exitComesTo(int times)
    {
        return QTest::qWaitFor([this, times] { return exits == times; });
    }

    test::TestFolder m_folder;
    test::WorkingDirectory m_here{m_folder.path()};
    ApplicationValues m_values;
    test::RecordingBoxes boxes;
    Form form;
    QPushButton exit{u"E&xit"_s};
    Painted painted;
    QLineEdit other;
    int exits = 0;
    bool isLeaving = false; ///< as the form shows it
    QStringList shown;
    ToolWait wait{
        &form, boxes, [this](const QString& text) { shown << text; }, {.hangsAfter = 300ms, .held = 150ms}};
};

TEST_F(ToolWaitTest, PaintsWithoutTakingInputAndPassesTheFormItsOwnAfterwards)
{
    const int before = painted.paints;
    const auto pressMuch = [&] {
        clickExit();
        key(QTest::Click);
        key(QTest::Click, Qt::Key_X, Qt::AltModifier);
        QTest::keyClicks(&other, u"lost"_s);
        EXPECT_FALSE(other.windowHandle()->close());
        painted.update();
    };
    const auto endTool = [&] {
        EXPECT_GT(painted.paints, before);
        EXPECT_EQ(exits + form.leaves, 0);
        QFile::remove(u"started"_s);
    };
    EXPECT_EQ(hang({pressMuch, endTool}), ChildResult::Ended);
    EXPECT_TRUE(exitComesTo(2)) << "a click and the access letter";
    EXPECT_EQ(form.leaves, 1) << "Escape";
    EXPECT_EQ(other.text(), QString());
    EXPECT_TRUE(other.isVisible());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ToolWaitTest, AsksOnlyAboutAnEscapeThatIsHeldLongEnough)
{
    std::vector<std::function<void()>> acts{[&] {
        clickExit();
    }};
    for (int i = 0; i < 8; ++i) {
        acts.emplace_back([&] { down(); });
        acts.emplace_back([&] { up(); });
    }
    acts.emplace_back([&] {
        EXPECT_TRUE(boxes.shown.empty()) << "pressed often, held never";
        down();
    });
    boxes.answers = {false, true};
    boxes.whileOpen = [&](const test::ShownBox& box) {
        EXPECT_EQ(box.title, u"Please Check"_s);
        EXPECT_EQ(box.preset, BoxAnswer::No);
        EXPECT_TRUE(box.text.startsWith(u"tool has been running for "_s)) << qPrintable(box.text);
        up();
    };
    bool isDown = false;
    const auto again = [&] {
        if (boxes.shown.size() != 1)
            return;
        if (std::exchange(isDown, true))
            up(); // as some systems report a key that is held
        down();
    };
    acts.resize(acts.size() + 40, again);
    EXPECT_EQ(hang(acts), ChildResult::Crashed);
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_TRUE(shown.contains(u"1 s (to end it, hold Escape)"_s)) << qPrintable(shown.join(u'|'));
    EXPECT_EQ(shown.back(), QString());
    EXPECT_EQ(form.leaves, 0) << "the Escapes were meant for the question";
    EXPECT_TRUE(exitComesTo(1)) << "a click before it was not";
}

TEST_F(ToolWaitTest, ShowsAtOnceThatTheFormWillBeLeft)
{
    const auto expect = [this](bool leaving, const char* what) {
        EXPECT_EQ(std::exchange(isLeaving, false), leaving) << what;
    };
    std::vector<std::function<void()>> acts{
        [&] { QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, painted.geometry().center()); },
        [&] { key(QTest::Click, Qt::Key_Tab); },
        [&] {
            expect(false, "a click beside it and another key");
            clickExit();
            expect(true, "a click");
            key(QTest::Click, Qt::Key_X, Qt::AltModifier);
            expect(true, "the access letter");
            form.windowHandle()->close();
            expect(true, "the close button");
            down();
            expect(true, "Escape");
            up();
            QFile::remove(u"started"_s);
        }};
    EXPECT_EQ(hang(acts), ChildResult::Ended);
    EXPECT_FALSE(isLeaving) << "the form shows it from here on";
}

/// Such a form is a child of the main window. Its frame draws the close button itself.
TEST_F(ToolWaitTest, LeavesByTheCloseButtonOfTheFormsFrame)
{
    QMdiArea main;
    auto* const child = new Form;
    QMdiSubWindow* const frame = main.addSubWindow(child);
    main.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
    ToolWait childWait(child, boxes, [](const QString&) {});
    childWait.setExit(nullptr, [this](bool leaves) { isLeaving = leaves; });
    const auto click = [&](int fromRight) {
        const QPoint place(frame->width() - fromRight, 12);
        QTest::mouseClick(main.windowHandle(), Qt::LeftButton, {}, frame->mapTo(&main, place));
    };
    const auto act = [&] {
        click(frame->width() / 2);
        EXPECT_FALSE(isLeaving) << "the title";
        click(14);
        EXPECT_TRUE(isLeaving);
        QFile::remove(u"started"_s);
    };
    EXPECT_EQ(hang({act}, childWait), ChildResult::Ended);
    EXPECT_EQ(child->leaves, 1);
}

} // namespace
} // namespace norvane::link
