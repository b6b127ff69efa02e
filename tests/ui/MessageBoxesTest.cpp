// The boxes as a user meets them.
#include "ui/MessageBoxes.h"

#include "tests/platform/TestFolder.h"
#include "tests/support/FormTest.h"

namespace norvane::ui
{
namespace
{

/// Answers the boxes that open one after the other: a name for a file box, "Yes", "No" or "Escape" for a
/// question.
class Answers
{
public:
    explicit Answers(QStringList answers) : m_answers(std::move(answers))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
        m_timer.start(5);
    }
    QStringList asked;

private:
    void answer()
    {
        QWidget* const box = QApplication::activeModalWidget();
        if (box == nullptr || m_answers.isEmpty())
            return;
        const QString next = m_answers.takeFirst();
        if (auto* const question = qobject_cast<QMessageBox*>(box)) {
            asked += question->text() + u" preset "_s + question->defaultButton()->text().remove(u'&');
            const auto button = next == u"Yes" ? QMessageBox::Yes : QMessageBox::No;
            question->button(button)->click();
        } else if (next == u"Escape") {
            QTest::keyClick(box, Qt::Key_Escape);
        } else {
            auto* const name = box->findChild<QLineEdit*>(u"fileNameEdit"_s);
            name->setText(next);
            QTest::keyClick(name, Qt::Key_Return);
        }
    }

    QStringList m_answers;
    QTimer m_timer;
};

TEST(MessageBoxes, AnExistingFileIsReplacedOnlyAfterAYes)
{
    const test::TestFolder folder;
    folder.write("old.txt", "old");
    const FileRequest request{u"Save"_s, folder.path(), u"Texts (*.txt)"_s, u"txt"_s};
    const auto save = [&](const QStringList& answers) {
        const Answers user(answers);
        const QString path = MessageBoxes().fileToSave(request).section(u'/', -1);
        return user.asked.join(u'|') + u" -> "_s + path;
    };
    const QString question = u"old.txt exists already. Replace it? preset No -> "_s;
    EXPECT_EQ(save({u"new"_s}), u" -> new.txt"_s) << "with the suffix, unasked";
    EXPECT_EQ(save({u"old"_s, u"Yes"_s}), question + u"old.txt"_s);
    EXPECT_EQ(save({u"old"_s, u"No"_s, u"other.txt"_s}), question + u"other.txt"_s) << "asked for another";
    EXPECT_EQ(save({u"old"_s, u"No"_s, u"Escape"_s}), question);
    const Answers user({u"old.txt"_s});
    EXPECT_EQ(MessageBoxes().fileToOpen(request), folder.path("old.txt"));
}

/// Presses each key in a separate box, which @p ask opens.
template <typename Answer>
void expectAnswers(const std::function<Answer()>& ask,
                   const std::vector<std::pair<const char*, Answer>>& answers)
{
    for (const auto& [key, answer] : answers) {
        QTimer::singleShot(0, [key = key] {
            QWidget* const box = QApplication::activeModalWidget();
            ASSERT_TRUE(QTest::qWaitForWindowActive(box));
            QTest::keySequence(box, QKeySequence(QLatin1String(key)));
        });
        EXPECT_EQ(ask(), answer) << key;
    }
}

TEST(MessageBoxes, EnterEscapeAndLettersAnswer)
{
    MessageBoxes boxes;
    expectAnswers<bool>([&] { return boxes.confirm(u"Start?"_s, u"Print"_s); },
                        {{"Return", true}, {"Esc", false}});
    expectAnswers<UnsavedAnswer>([&] { return boxes.askToSave(u"Changes are not saved."_s, u"PLU"_s); },
                                 {{"Return", UnsavedAnswer::Save}, {"Esc", UnsavedAnswer::Cancel}});
    expectAnswers<bool>([&] { return boxes.choose(u"Changed"_s, u"Record"_s, u"&Save"_s, u"S&how"_s); },
                        {{"Return", false}, {"Esc", false}, {"Alt+H", false}, {"Alt+S", true}});
    expectAnswers<std::optional<bool>>(
        [&] { return boxes.askBeforeGoingOn(u"Save Changes?"_s, u"Save Details."_s); },
        {{"Return", true}, {"Alt+N", false}, {"Esc", std::nullopt}});
}

TEST(MessageBoxes, AShortTextLeavesRoomForTheTitle)
{
    const auto widthOf = [](const QString& title) {
        int width = 0;
        QTimer::singleShot(0, [&width] {
            width = QApplication::activeModalWidget()->width();
            QApplication::activeModalWidget()->close();
        });
        MessageBoxes().message(u"Continue?"_s, title, BoxIcon::Question);
        return width;
    };
    const QString title = u"Transfer of all prices to euro prices"_s;
    EXPECT_GT(widthOf(title), QFontMetrics(QApplication::font()).horizontalAdvance(title));
    EXPECT_LT(widthOf(u"A"_s), widthOf(title));
}

} // namespace
} // namespace norvane::ui
