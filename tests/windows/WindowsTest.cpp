// Every window under the settings that users have, and the faults that the search must find.
#include "scripts/windows/LetterCheck.h"
#include "scripts/windows/SpokenControls.h"
#include "scripts/windows/TextCheck.h"

#include <gtest/gtest.h>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

/// A control of a form whose texts can all be read otherwise, and what is done to it.
struct Planted {
    const char* control;
    void (*spoil)(QWidget& control);
    const char* found; ///< empty if it is not a fault
};

void colour(QWidget& control, QPalette::ColorRole role, const char* name)
{
    QPalette palette = control.palette();
    palette.setColor(role, QColor(QLatin1String(name)));
    control.setPalette(palette);
}

const Planted planted[] = {
    {"label", [](QWidget&) {}, ""},
    {"label", [](QWidget& label) { label.resize(30, 20); }, "needs"},
    {"label", [](QWidget& label) { label.resize(100, 8); }, "needs"},
    {"label", [](QWidget& label) { label.resize(30, 20), label.setToolTip(u"Description"_s); }, ""},
    {"label", [](QWidget& label) { label.move(10, 190); }, "cut by its parents"},
    {"label", [](QWidget& label) { label.move(10, 42); }, "overlaps button"},
    {"label", [](QWidget& label) { colour(label, QPalette::WindowText, "#8b959e"); }, "contrast"},
    {"label", [](QWidget& label) { label.setEnabled(false); }, ""},
    {"button", [](QWidget& button) { button.resize(40, 24); }, "needs"},
    {"check", [](QWidget& check) { check.resize(60, 20); }, "needs"},
    {"combo",
     [](QWidget& combo) { static_cast<QComboBox&>(combo).addItem(u"An entry that is far too long"_s); },
     "needs"},
    {"box", [](QWidget& box) { static_cast<QLineEdit&>(box).setMaxLength(24); }, "needs"},
    {"box", [](QWidget& box) { box.setToolTip(u"From 0 to 999999999999999999"_s); }, "needs"},
    {"box", [](QWidget& box) { colour(box, QPalette::Base, "#303030"); }, "contrast"},
    {"table", [](QWidget& table) { static_cast<QTableWidget&>(table).setColumnWidth(0, 20); }, "needs"},
};

void fill(QWidget& form)
{
    form.setPalette(QPalette(QColor(0xf0, 0xf0, 0xf0)));
    form.resize(300, 200);
    const auto place = [](QWidget* control, const char* name, QRect where) {
        control->setObjectName(QLatin1String(name));
        control->setGeometry(where);
    };
    place(new QLabel(u"Description"_s, &form), "label", {10, 10, 100, 20});
    place(new QPushButton(u"&Save record"_s, &form), "button", {10, 40, 110, 24});
    place(new QCheckBox(u"Allow preset"_s, &form), "check", {10, 70, 130, 20});
    auto* const combo = new QComboBox(&form);
    combo->addItem(u"Drinks"_s);
    place(combo, "combo", {150, 10, 120, 24});
    place(new QLineEdit(u"12.50"_s, &form), "box", {150, 40, 120, 24});
    auto* const table = new QTableWidget(1, 1, &form);
    table->setHorizontalHeaderLabels({u"Price"_s});
    table->setItem(0, 0, new QTableWidgetItem(u"1001"_s));
    place(table, "table", {150, 70, 140, 100});
}

TEST(TextCheckTest, FindsWhatAUserCannotRead)
{
    for (const Planted& each : planted) {
        QWidget form;
        fill(form);
        each.spoil(*form.findChild<QWidget*>(QLatin1String(each.control)));
        form.show();
        QApplication::processEvents();
        const QString faults = unreadableTexts(form, form.grab().toImage()).join(u'\n');
        EXPECT_EQ(faults.isEmpty(), *each.found == '\0') << faults.toStdString() << (&each - planted);
        EXPECT_TRUE(faults.contains(QLatin1String(each.found))) << faults.toStdString() << (&each - planted);
        EXPECT_LE(faults.count(u'\n'), 1) << faults.toStdString();
    }
}

TEST(TextCheckTest, FindsWhatAScreenReaderCannotSay)
{
    const struct {
        const char* control;
        const char* objectName;
        const char* spoken;
        const char* found;
    } cases[] = {{"box", "box", "Price", ""},
                 {"box", "box", "", "has no name"},
                 {"box", "box", "box", "has an internal name"},
                 {"button", "Save record", "", ""},
                 {"button", "button", "Exit", "has the name of another"}};
    for (const auto& each : cases) {
        QWidget form;
        fill(form);
        for (const char* const unnamed : {"combo", "table", "box"}) {
            form.findChild<QWidget*>(QLatin1String(unnamed))
                ->setAccessibleName(QLatin1String(unnamed) + u" 1"_s);
        }
        auto* const other = new QPushButton(u"E&xit"_s, &form);
        other->move(10, 150);
        auto& control = *form.findChild<QWidget*>(QLatin1String(each.control));
        control.setObjectName(QLatin1String(each.objectName));
        control.setAccessibleName(QLatin1String(each.spoken));
        form.show();
        const QString faults = unspokenControls(form).join(u'\n');
        EXPECT_EQ(faults.isEmpty(), *each.found == '\0') << faults.toStdString();
        EXPECT_TRUE(faults.contains(QLatin1String(each.found))) << faults.toStdString();
    }
}

TEST(LetterCheckTest, FindsLettersThatLeadToTwoControlsInViewOrTwoEntriesOfAMenu)
{
    const struct {
        void (*spoil)(QWidget& form, QWidget& label);
        const char* found; ///< empty if it is not a fault
    } cases[] = {
        {[](QWidget&, QWidget&) {}, ""},
        {[](QWidget& form, QWidget&) { new QCheckBox(u"&Send"_s, &form); }, "button \"&Save record\", "},
        {[](QWidget& form, QWidget&) { (new QCheckBox(u"&Send"_s, &form))->hide(); }, ""},
        {[](QWidget& form, QWidget&) { new QGroupBox(u"&Stock && Supply"_s, &form); }, "Alt+S"},
        {[](QWidget&, QWidget& label) { static_cast<QLabel&>(label).setText(u"&Supplier"_s); }, ""},
        {[](QWidget& form, QWidget& label) {
             static_cast<QLabel&>(label).setText(u"&Supplier"_s);
             static_cast<QLabel&>(label).setBuddy(form.findChild<QLineEdit*>());
         },
         "label \"&Supplier\""},
        {[](QWidget& form, QWidget&) { (new QMenu(&form))->addAction(u"&Save"_s); }, ""},
        {[](QWidget& form, QWidget&) {
             auto* const menu = new QMenu(&form);
             menu->addAction(u"&Copy"_s);
             menu->addAction(u"&Clear"_s);
         },
         "Alt+C"},
    };
    for (const auto& each : cases) {
        QWidget form;
        fill(form);
        each.spoil(form, *form.findChild<QWidget*>(u"label"_s));
        LetterCheck check;
        const QString faults = check.repeated(form).join(u'\n');
        EXPECT_EQ(faults.isEmpty(), *each.found == '\0') << faults.toStdString() << (&each - cases);
        EXPECT_TRUE(faults.contains(QLatin1String(each.found))) << faults.toStdString() << (&each - cases);
    }
}

/// Any two of the three settings meet in one of the runs. WINDOW_PICTURES names a folder for the pictures.
class EveryWindowTest : public testing::TestWithParam<const char*>
{
};

TEST_P(EveryWindowTest, CanBeReadOnTheScreenAndByAScreenReader)
{
    QStringList words = QString::fromLatin1(GetParam()).split(u' ');
    if (const QString folder = qEnvironmentVariable("WINDOW_PICTURES"); !folder.isEmpty())
        words += {u"--pictures"_s, folder + u'/' + words.join(QString())};
    QProcess check;
    check.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    check.start(QLatin1String(CHECK_WINDOWS), words);
    ASSERT_TRUE(check.waitForFinished(-1));
    const QByteArray printed = check.readAllStandardOutput();
    EXPECT_EQ(check.exitCode(), 0) << printed.toStdString();
    EXPECT_TRUE(printed.contains(" windows, 0 faults")) << printed.toStdString();
}

INSTANTIATE_TEST_SUITE_P(, EveryWindowTest,
                         testing::Values("--scale=1 --font=100", "--scale=1 --font=150 --dark",
                                         "--scale=2 --font=100 --dark", "--scale=2 --font=150",
                                         "--scale=1 --font=100 --contrast"));

} // namespace
} // namespace norvane::windows
