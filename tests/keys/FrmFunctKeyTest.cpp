// The function key editor as a user works it, and the table afterwards.
#include "keys/functions/FrmFunctKey.h"

#include "store/engine/CommitOnExit.h"
#include "tests/keys/KeyShop.h"
#include "tests/support/FormTest.h"

namespace norvane::keys::test
{
namespace
{

class FrmFunctKeyTest : public testing::Test
{
protected:
    FrmFunctKeyTest()
    {
        const auto database = m_shop.open();
        const store::CommitOnExit all(*database);
        for (int id = 1; id <= 266; ++id) {
            const QString description = id == 21 ? u"Cheque"_s : u"KEY %1"_s.arg(267 - id);
            addRecord(*database, "FUNCTIONKEY",
                      {{"id", whole(id)}, {"description", store::Value::text(description)}});
        }
    }
    void open()
    {
        m_shop.values.databasePath = u"elsewhere"_s;
        m_form.emplace(m_shop.values, m_boxes);
        m_form->show();
        QApplication::setActiveWindow(&*m_form);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*m_form));
    }
    template <typename Control>
    Control& control(QAnyStringView name)
    {
        return norvane::test::child<Control>(*m_form, name);
    }
    QCheckBox& check(int index) { return control<QCheckBox>(u"Check1_%1"_s.arg(index)); }
    QComboBox& list() { return control<QComboBox>(u"selectkey"_s); }
    static void type(QLineEdit& box, const char* text, Qt::Key last)
    {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QLatin1String(text));
        QTest::keyClick(&box, last);
    }
    void enter(const char* box, const char* text) { type(control<QLineEdit>(box), text, Qt::Key_Tab); }
    void select(const char* typed) { type(*list().lineEdit(), typed, Qt::Key_Return); }
    /// By the letter of the button. @return the text of the status bar.
    QString save()
    {
        QSignalSpy message(&*m_form, &FrmFunctKey::noticeChanged);
        QTest::keyClick(&*m_form, Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(message.wait());
        return message.value(0).value(0).toString();
    }
    std::string row(int id) const
    {
        const QString fields = u"description, halo, flag1, flag2, flag3, flag4"_s;
        return norvane::test::rowsOf(m_shop.folder.path("velmar.mdb"),
                                     u"select %1 from FUNCTIONKEY where id = %2"_s.arg(fields).arg(id));
    }
    /// Numbers and boxes that the user sees, ticked ones with an asterisk.
    std::string shown()
    {
        QStringList seen;
        for (const auto& [label, box] :
             {std::pair(u"label1"_s, u"Halo"_s), {u"Label2"_s, u"otherno"_s}, {u"Label4"_s, u"otherno2"_s}}) {
            EXPECT_EQ(control<QLabel>(label).isVisible(), control<QLineEdit>(box).isVisible());
            if (control<QLabel>(label).isVisible())
                seen += control<QLabel>(label).text() + u'=' + control<QLineEdit>(box).text();
        }
        for (int index = 0; index < checkCount; ++index) {
            if (check(index).isVisible())
                seen += check(index).text() + (check(index).isChecked() ? u"*"_s : QString());
        }
        return seen.join(u'|').toStdString();
    }

    KeyShop m_shop{"3"};
    norvane::test::RecordingBoxes m_boxes;
    std::optional<FrmFunctKey> m_form;
};

TEST_F(FrmFunctKeyTest, AKeyIsFoundByItsNumberOrAnyPartOfItsText)
{
    open();
    EXPECT_EQ(m_shop.values.databasePath, m_shop.folder.path("velmar.mdb"));
    EXPECT_EQ(list().currentIndex(), -1);
    EXPECT_EQ(list().lineEdit()->placeholderText(), u"Select Function Key");
    EXPECT_FALSE(control<QLineEdit>(u"description"_s).isVisible());
    const std::pair<const char*, int> rows[] = {{"5", 5},      {"66", 66},  {"hequ", 21},
                                                {"key 1", 68}, {"xyz", 68}, {"266", 266}};
    for (const auto& [typed, id] : rows) {
        select(typed);
        EXPECT_EQ(list().currentData().toInt(), id) << typed;
        EXPECT_EQ(list().lineEdit()->text(), list().currentText()) << typed;
    }
    QTest::keyClick(list().lineEdit(), Qt::Key_Up);
    EXPECT_EQ(shown(), "Allow In X Mode Only|Print Card Details") << "key 265";
    EXPECT_EQ(row(5), "KEY 262|null|null|null|null|null") << "showing stores nothing";
}

/// What is typed then takes the place of the key shown.
TEST_F(FrmFunctKeyTest, AClickOrADoubleClickChoosesTheWholeTextOfTheKey)
{
    open();
    select("5");
    QLineEdit& text = *list().lineEdit();
    const QPoint place = text.mapTo(&*m_form, QPoint(30, text.height() / 2));
    for (const auto& [isDouble, typed] : {std::pair(false, "18"), {true, "21"}}) {
        QTest::mouseClick(m_form->windowHandle(), Qt::LeftButton, {}, place);
        if (isDouble)
            QTest::mouseDClick(m_form->windowHandle(), Qt::LeftButton, {}, place);
        QApplication::processEvents();
        QTest::keyClicks(&text, QLatin1String(typed));
        QTest::keyClick(&text, Qt::Key_Return);
        EXPECT_EQ(list().currentData().toString(), QLatin1String(typed));
    }
}

// clang-format off
const struct {
    const char* key;
    const char* shown;
    std::vector<std::pair<const char*, const char*>> typed;
    std::vector<int> ticks;
    const char* saved;
} kindsOfKeys[] = {
    {"1", "", {{"description", "GO"}}, {}, "GO|0|0|0|0|0"},
    {"16", "Halo=0.00|Allow In X Only|Compulsory Validation|Print Receipt", {{"Halo", "12,5"}}, {0, 2}, "KEY 251|1250|50|0|0|0"},
    {"23", "Print Check On Printer# (0-40)=0", {{"otherno", "7"}}, {}, "KEY 244|1250|0|0|7|0"},
    {"27", "Rate=0|Linked Drawer (0-3)=0|Curr Dec Places=0|Change In Foreign Currency",
     {{"Halo", "99999999"}, {"otherno", "3"}, {"otherno2", "2"}}, {0}, "KEY 240|99999999|40|3|2|0"},
    {"31", "", {{"description", "NO RATE"}}, {}, "NO RATE|null|0|0|0|0"},
    {"157", nullptr, {{"Halo", "1.234"}}, {6, 19}, "KEY 110|1234|0|40|0|20"},
    {"264", "Money Gain For Each Point=0|Allow In X Mode Only|Print Card Details", {{"Halo", "12.34"}}, {0}, "KEY 3|1234|40|12.34|0|0"},
};
// clang-format on

TEST_F(FrmFunctKeyTest, KeysOfAllKindsAreShownTypedAndSaved)
{
    open();
    const QSize size = m_form->size();
    for (const auto& [key, seen, typed, ticks, saved] : kindsOfKeys) {
        select(key);
        EXPECT_TRUE(seen == nullptr || shown() == seen) << key << ' ' << shown();
        for (const auto& [box, text] : typed)
            enter(box, text);
        for (const int index : ticks)
            check(index).click();
        EXPECT_EQ(save(), u"Saved function key "_s + QLatin1String(key));
        EXPECT_EQ(row(QByteArray(key).toInt()), saved) << key;
        select(key);
        for (int index = 0; index < checkCount; ++index)
            EXPECT_EQ(check(index).isChecked(), std::ranges::count(ticks, index) == 1) << key << ' ' << index;
        EXPECT_EQ(m_form->size().boundedTo({1024, 700}), size);
    }
}

TEST_F(FrmFunctKeyTest, ACaptionShowsOneAmpersand)
{
    open();
    select("232");
    EXPECT_EQ(check(8).text(), u"Tip Amt Adds To Grs && Net TTLs") << "shows one ampersand";
}

TEST_F(FrmFunctKeyTest, HaloKeepsItsValueAndItsDigitsFromKeyToKey)
{
    m_shop.execute("update FUNCTIONKEY set halo = 1250, flag2 = 2 where id in (16, 26, 157)");
    open();
    for (const auto& [key, halo] :
         {std::pair("16", "12.50"), {"26", "1250"}, {"16", "12.5"}, {"157", "1.250"}}) {
        select(key);
        EXPECT_EQ(control<QLineEdit>(u"Halo"_s).text(), QLatin1String(halo)) << key;
    }
    select("1");
    save();
    EXPECT_EQ(row(1), "KEY 266|125|0|0|0|0");
}

TEST_F(FrmFunctKeyTest, OnlySaveStoresAndTheListKeepsItsTexts)
{
    open();
    EXPECT_FALSE(control<QPushButton>(u"SaveRecord"_s).isEnabled()) << "no key is shown";
    select("13");
    enter("description", "NEW");
    save();
    EXPECT_EQ(row(13), "NEW|0|0|0|0|0");
    EXPECT_TRUE(list().currentText().endsWith(u"KEY 254"));
    select("16");
    enter("Halo", "1000000");
    EXPECT_EQ(m_boxes.shown, (std::vector{norvane::test::ShownBox{u"Maximum Value Exceeded"_s,
                                                                  u"Input Error"_s, BoxIcon::Exclamation}}));
    norvane::test::press(*m_form, "ExitForm");
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_EQ(row(16), "KEY 251|null|null|null|null|null");
    open();
    EXPECT_TRUE(list().itemText(12).endsWith(u"NEW"));
}

TEST_F(FrmFunctKeyTest, EscapeAndTheCloseButtonAskAboutChanges)
{
    open();
    const norvane::test::ShownBox saveChanges{u"Save Changes?"_s, u"Save Details."_s, BoxIcon::Question};
    select("16");
    check(0).click();
    QTest::keyClick(&*m_form, Qt::Key_Escape);
    EXPECT_TRUE(m_form->isVisible()) << "the question was closed";
    EXPECT_EQ(m_boxes.shown, std::vector{saveChanges});
    {
        const auto other = m_shop.open();
        const store::CommitOnExit held(*other);
        m_boxes.answers = {true};
        EXPECT_FALSE(m_form->close());
    }
    EXPECT_TRUE(
        m_boxes.shown.back().text.startsWith(u"Function key 16 of table FunctionKey was not saved."_s));
    m_boxes.answers = {true};
    EXPECT_TRUE(m_form->close());
    EXPECT_EQ(row(16), "KEY 251|0|40|0|0|0");
    m_form->show();
    QTest::keyClick(&*m_form, Qt::Key_Escape);
    EXPECT_FALSE(m_form->isVisible()) << "nothing has changed since";
    EXPECT_EQ(m_boxes.shown.size(), 4U);
}

} // namespace
} // namespace norvane::keys::test
