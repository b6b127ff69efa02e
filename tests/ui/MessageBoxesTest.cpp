// The boxes as a user meets them.
#include "ui/MessageBoxes.h"

#include "tests/platform/TestFolder.h"

#include <QTest>
#include <QtWidgets>

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

class FileBoxTest : public testing::Test
{
protected:
    [[nodiscard]] QString save(const QStringList& answers)
    {
        Answers user(answers);
        QString path = MessageBoxes().fileToSave({u"Save"_s, m_folder.path(), u"Texts (*.txt)"_s, u"txt"_s});
        m_asked = user.asked;
        return path;
    }

    test::TestFolder m_folder;
    QStringList m_asked;
};

TEST_F(FileBoxTest, AnExistingFileIsReplacedOnlyAfterAYes)
{
    m_folder.write("old.txt", "old");
    const QStringList question{u"old.txt exists already. Replace it? preset No"_s};
    EXPECT_EQ(save({u"new"_s}), m_folder.path("new.txt")) << "with the suffix, unasked";
    EXPECT_EQ(m_asked, QStringList());
    EXPECT_EQ(save({u"old"_s, u"Yes"_s}), m_folder.path("old.txt"));
    EXPECT_EQ(m_asked, question);
    EXPECT_EQ(save({u"old"_s, u"No"_s, u"other.txt"_s}), m_folder.path("other.txt")) << "asked for another";
    EXPECT_EQ(m_asked, question);
    EXPECT_EQ(save({u"old"_s, u"No"_s, u"Escape"_s}), QString());
}

TEST_F(FileBoxTest, OnlyAFileThatExistsCanBeOpened)
{
    m_folder.write("old.txt", "old");
    const Answers user({u"old.txt"_s});
    EXPECT_EQ(MessageBoxes().fileToOpen({u"Open"_s, m_folder.path(), u"Texts (*.txt)"_s, u"txt"_s}),
              m_folder.path("old.txt"));
}

/// Presses a key in the box that opens next.
void pressSoon(Qt::Key key, Qt::KeyboardModifier modifier)
{
    QTimer::singleShot(0, [key, modifier] {
        QWidget* const box = QApplication::activeModalWidget();
        ASSERT_TRUE(QTest::qWaitForWindowActive(box));
        QTest::keyClick(box, key, modifier);
    });
}

TEST(MessageBoxes, EnterConfirmsAndEscapeCancels)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
        pressSoon(key, Qt::NoModifier);
        EXPECT_EQ(MessageBoxes().confirm(u"Start?"_s, u"Print"_s), key == Qt::Key_Return);
    }
}

TEST(MessageBoxes, EnterSavesAndEscapeStays)
{
    for (const auto& [key, answer] :
         {std::pair(Qt::Key_Return, UnsavedAnswer::Save), std::pair(Qt::Key_Escape, UnsavedAnswer::Cancel)}) {
        pressSoon(key, Qt::NoModifier);
        EXPECT_EQ(MessageBoxes().askToSave(u"Changes are not saved."_s, u"PLU"_s), answer);
    }
}

TEST(MessageBoxes, OfTwoNamedAnswersEnterAndEscapeGiveTheSecond)
{
    const std::tuple<Qt::Key, Qt::KeyboardModifier, bool> cases[] = {{Qt::Key_Return, Qt::NoModifier, false},
                                                                     {Qt::Key_Escape, Qt::NoModifier, false},
                                                                     {Qt::Key_H, Qt::AltModifier, false},
                                                                     {Qt::Key_S, Qt::AltModifier, true}};
    for (const auto& [key, modifier, first] : cases) {
        pressSoon(key, modifier);
        EXPECT_EQ(MessageBoxes().choose(u"Changed"_s, u"Record"_s, u"&Save"_s, u"S&how"_s), first) << key;
    }
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

TEST(MessageBoxes, AQuestionBeforeGoingOnCanBeClosedWithoutAnAnswer)
{
    const std::tuple<Qt::Key, Qt::KeyboardModifier, std::optional<bool>> cases[] = {
        {Qt::Key_Return, Qt::NoModifier, true},
        {Qt::Key_N, Qt::AltModifier, false},
        {Qt::Key_Escape, Qt::NoModifier, std::nullopt}};
    for (const auto& [key, modifier, answer] : cases) {
        pressSoon(key, modifier);
        EXPECT_EQ(MessageBoxes().askBeforeGoingOn(u"Save Changes?"_s, u"Save Details."_s), answer) << key;
    }
}

} // namespace
} // namespace norvane::ui
