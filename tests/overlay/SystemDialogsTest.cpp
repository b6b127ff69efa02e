// The real dialogs of the overlay forms, answered as a user would.
#include "overlay/SystemDialogs.h"

#include "tests/platform/TestFolder.h"
#include "tests/support/FormTest.h"

#include <QPointer>

namespace norvane::overlay
{
namespace
{

/// Closes a dialog that is still open, and what is open above it: an unanswered one would never return.
void closeUnanswered(const QPointer<QWidget>& dialog)
{
    if (!dialog || !dialog->isVisible())
        return;
    ADD_FAILURE() << "the dialog was not answered";
    while (QWidget* const open = QApplication::activeModalWidget())
        open->hide();
}

/// Works the dialog that opens next.
template <typename Use>
void soon(Use use)
{
    QTimer::singleShot(0, [use] {
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        QTimer::singleShot(10000, dialog, [dialog] { closeUnanswered(dialog); });
        if (QTest::qWaitForWindowActive(dialog))
            use(*dialog);
    });
}

TEST(SystemDialogsTest, ANewFileMayBeNamedUnlessItMustExist)
{
    const test::TestFolder folder;
    for (const char* file : {"old.ky4", "tea.Dorvik", "tea.Velmar"})
        folder.write(file, "");
    const std::tuple<FileChoice::Name, const char*, QStringList, const char*> rows[] = {
        {FileChoice::Name::Any, "new", {u"ky4"_s}, "new.ky4"},
        {FileChoice::Name::ToWrite, "new", {u"ky4"_s}, "new.ky4"},
        {FileChoice::Name::ToWrite, "old", {u"ky4"_s}, "old.ky4"},
        {FileChoice::Name::Existing, "old", {u"ky4"_s}, "old.ky4"},
        {FileChoice::Name::Existing, "tea", {u"ky4"_s, u"Velmar"_s, u"Dorvik"_s}, "tea.Velmar"},
        {FileChoice::Name::Existing, "tea.Dorvik", {u"ky4"_s}, "tea.Dorvik"},
    };
    for (const auto& [name, typed, suffixes, expected] : rows) {
        soon([text = QString::fromLatin1(typed)](QWidget& box) {
            auto* const edit = box.findChild<QLineEdit*>(u"fileNameEdit"_s);
            edit->setText(text);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        EXPECT_EQ(SystemDialogs().file({u"New"_s, folder.path(), u"Files (*.ky4)"_s, suffixes, name}),
                  folder.path(expected));
    }
}

TEST(SystemDialogsTest, TheFontDialogBeginsAtTheReplacementOfAMissingFont)
{
    QFont missing(u"Arial"_s);
    missing.setPointSizeF(8.25);
    missing.setBold(true);
    soon([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    const auto chosen = SystemDialogs().font(missing);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->family(), QFontInfo(missing).family());
    EXPECT_EQ(chosen->pointSizeF(), 8.25);
    EXPECT_TRUE(chosen->bold());
}

TEST(SystemDialogsTest, AMissingPrinterRemainsChosenAndTheSheetCanBeTurned)
{
    soon([](QWidget& box) {
        EXPECT_EQ(box.findChild<QComboBox*>(u"PrinterList"_s)->currentText(), u"Back office"_s);
        EXPECT_TRUE(box.findChild<QRadioButton*>(u"Landscape"_s)->isChecked());
        box.findChild<QRadioButton*>(u"Portrait"_s)->click();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    const auto chosen = SystemDialogs().printer({u"Back office"_s, QPageLayout::Landscape});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->name, u"Back office"_s);
    EXPECT_EQ(chosen->orientation, QPageLayout::Portrait);
    soon([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_FALSE(SystemDialogs().printer({}));
}

} // namespace
} // namespace norvane::overlay
