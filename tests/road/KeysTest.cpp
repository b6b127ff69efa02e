// What a user sets in the key editors, on its way to a register and from there to a second customer: the
// second one reads the same, but for what the packing of two function keys loses, which is listed here.
#include "keys/KeyGeometry.h"
#include "platform/FilePaths.h"
#include "tests/road/Shop.h"

namespace norvane
{
namespace
{

/// PLUs, function keys, look-ups, PLU and WLU relocation, key links.
const test::BoxNumbers keyBoxes{0, 3, 7, 21, 24};
constexpr int functionFile = 2;
constexpr int linkFile = 16;
constexpr int numberFile = 17;
constexpr int lookUpFile = 57;
/// The register's room for a look-up that is not used yet.
constexpr int emptyLookUp = 15;

/// What is set in the editor of the function keys, and what it shows then: numbers, then the boxes ticked.
struct KeyOptions {
    int key;
    int firstModel;
    int lastModel;
    QStringList numbers; ///< otherno, otherno2
    QList<int> ticked;
    const char* shown;       ///< by the editor, as soon as the key is shown again
    const char* shownBeyond; ///< at the second customer
};

// clang-format off
const KeyOptions keyOptions[] = {
    {119, 0, 3, {u"3"_s, u"2"_s}, {6},      "3 2 | 6",     "3 2 | 6"},
    {120, 1, 3, {u"3"_s, u"2"_s}, {12, 18}, "3 2 | 12 18", "3 2 | 12 18"},
    // The port of key 18 is added to the digit of boxes 15 to 17: beside one of those, both are misread.
    {18,  0, 0, {u"4"_s},         {6},      "4 | 6",       "4 | 6"},
    {18,  1, 3, {u"4"_s},         {16},     "6 | 15 16",   "6 | 15 16"},
    // The printer of key 21 is put after the digits of boxes 12 to 14, and a register keeps the last two.
    {21,  0, 3, {u"5"_s},         {6, 12},  "5 | 6 12",    "5 | 6"},
};
// clang-format on

class KeysRoad : public testing::TestWithParam<int>
{
protected:
    KeysRoad() { EXPECT_TRUE(m_shop.upload(keyBoxes).isEmpty()); }

    [[nodiscard]] const keys::KeyGeometry& keyboard() const
    {
        return keys::keyboardOf(modelOfNumber(QString::number(GetParam())).family);
    }
    static void typeInto(QLineEdit& box, const QString& text)
    {
        box.selectAll();
        QTest::keyClicks(&box, text);
    }

    void moveKey(keys::KeyCell from, keys::KeyCell to)
    {
        m_shop.choose("KeyboardLocation", [&](const QDialog& form) {
            auto& grid = test::child<QTableView>(form, "Grid1");
            grid.setCurrentIndex(grid.model()->index(from.row, from.column));
            test::child<QAction>(form, "Cut").trigger();
            grid.setCurrentIndex(grid.model()->index(to.row, to.column));
            test::child<QAction>(form, "Paste").trigger();
            leave(form, "CSCmdBtn1", "CSCmdBtn2");
        });
    }
    /// Saves with Yes and closes the form.
    void leave(const QDialog& form, const char* save, const char* exit)
    {
        m_shop.boxes().answers = {true};
        for (const char* button : {save, exit})
            test::press(form, button);
        m_shop.boxes().answers.clear();
    }

    /// As the tables have them, in their order.
    [[nodiscard]] QByteArrayList pluNumbers() const
    {
        const auto numbers =
            test::rowsOf(m_shop.values().databasePath, u"select plunumber from pludata order by plunumber"_s);
        return QByteArray::fromStdString(numbers).split(' ');
    }
    /// Fills the keys from a cell on with the PLUs of these numbers, also those in use.
    void fillKeys(keys::KeyCell from, const QString& range)
    {
        m_shop.choose("KeyboardLocation", [&](const QDialog& form) {
            auto& grid = test::child<QTableView>(form, "Grid1");
            grid.setCurrentIndex(grid.model()->index(from.row, from.column));
            test::press(form, "FillButton");
            test::child<QRadioButton>(form, "plucode").click();
            typeInto(test::child<QLineEdit>(form, "ListFilter"), range);
            for (const char* const skips : {"FillSkipsUsed", "FillSkipsPlaced"})
                test::child<QCheckBox>(form, skips).click();
            test::press(form, "FillPut");
            leave(form, "CSCmdBtn1", "CSCmdBtn2");
        });
    }
    /// Fills the first three lines of a look-up that was empty: PLUs 4 and 2 of the list, function key 5.
    void fillLookUp()
    {
        openLookUp([&](const QDialog& form) {
            auto& grid = test::child<QTableView>(form, "Grid1");
            test::child<QCheckBox>(form, "allowfunction").click();
            test::child<QCheckBox>(form, "Allowexit").setChecked(true);
            typeInto(test::child<QLineEdit>(form, "description"), u"Favourites"_s);
            typeInto(test::child<QLineEdit>(form, "noofchoices"), u"2"_s);
            int line = 0;
            for (const auto& [list, entry] : {std::pair("plulist", 3), {"plulist", 1}, {"functionlist", 4}}) {
                grid.setCurrentIndex(grid.model()->index(line++, 2));
                auto& entries = test::child<QTableView>(form, list);
                QTest::mouseClick(entries.viewport(), Qt::LeftButton, {},
                                  entries.visualRect(entries.model()->index(entry, 0)).center());
            }
            leave(form, "CSCmdBtn1", "CSCmdBtn2");
        });
    }
    /// The look-up's controls and used lines as the editor shows them.
    [[nodiscard]] QString shownLookUp()
    {
        QStringList shown;
        openLookUp([&](const QDialog& form) {
            for (const char* box : {"WLUNumber", "description", "noofchoices"})
                shown += test::child<QLineEdit>(form, box).text().trimmed();
            for (const char* box : {"allowcondiment", "allowplu", "allowfunction", "Allowexit"})
                shown += test::child<QCheckBox>(form, box).isChecked() ? u"1"_s : u"0"_s;
            const auto& lines = *test::child<QTableView>(form, "Grid1").model();
            for (int line = 0; line < 4; ++line) {
                shown +=
                    lines.index(line, 1).data().toString() + u' ' + lines.index(line, 2).data().toString();
            }
            leave(form, "CSCmdBtn2", "CSCmdBtn2");
        });
        return shown.join(u'|');
    }
    void openLookUp(const std::function<void(const QDialog&)>& act)
    {
        m_shop.choose("WLUMenu", [&](QDialog& form) {
            for (int record = 1; record < emptyLookUp; ++record)
                test::press(form, "NextRecord");
            act(form);
        });
    }
    void openFunctionKeys(const std::function<void(const QDialog&, const KeyOptions&)>& act)
    {
        m_shop.choose("FunctionMenu", [&](QDialog& form) {
            for (const KeyOptions& options : keyOptions) {
                if (options.firstModel <= GetParam() && GetParam() <= options.lastModel)
                    act(form, options);
            }
            test::press(form, "ExitForm");
        });
    }
    static void select(const QDialog& form, int key)
    {
        QLineEdit& typed = *test::child<QComboBox>(form, "selectkey").lineEdit();
        typeInto(typed, QString::number(key));
        QTest::keyClick(&typed, Qt::Key_Return);
    }
    static void set(const QDialog& form, const KeyOptions& options)
    {
        select(form, options.key);
        for (qsizetype i = 0; i < options.numbers.size(); ++i)
            typeInto(test::child<QLineEdit>(form, i == 0 ? u"otherno"_s : u"otherno2"_s), options.numbers[i]);
        for (int box = 0; box < 24; ++box)
            test::child<QCheckBox>(form, u"Check1_%1"_s.arg(box)).setChecked(options.ticked.contains(box));
        test::press(form, "SaveRecord");
    }
    [[nodiscard]] static std::string shownOptions(const QDialog& form, int key)
    {
        select(form, key);
        QStringList numbers;
        QStringList ticked;
        for (const char* name : {"otherno", "otherno2"}) {
            const auto& box = test::child<QLineEdit>(form, name);
            if (box.isVisible())
                numbers += box.text();
        }
        for (int box = 0; box < 24; ++box) {
            if (test::child<QCheckBox>(form, u"Check1_%1"_s.arg(box)).isChecked())
                ticked += QString::number(box);
        }
        return (numbers.join(u' ') + u" | "_s + ticked.join(u' ')).toStdString();
    }
    /// All function keys but 21, whose third flag arrives cut.
    [[nodiscard]] std::string otherFunctionKeys() const
    {
        return test::rowsOf(
            m_shop.values().databasePath,
            u"select id, halo, flag1, flag2, flag3, flag4 from functionkey where id <> 21 order by id"_s);
    }
    /// What is rung on a key of the first level at the register, empty when it sells nothing.
    [[nodiscard]] QByteArray rungOn(keys::KeyCell cell)
    {
        const QString journal = m_shop.folder().appFile(u"day.csv"_s);
        const QString key = u"1/%1"_s.arg(*keyboard().keyNumber(cell));
        const QStringList words{
            m_shop.folder().bankPath(), u"--key"_s, key, u"--tickets"_s, u"2"_s, u"--journal"_s, journal};
        if (QProcess::execute(QString::fromUtf8(RINGSALES_TOOL), words) != 0)
            return {};
        const QList<QByteArray> lines = readWholeFile(journal).trimmed().split('\n');
        return lines.last().split(',').at(lines.first().split(',').indexOf("plu"));
    }
    /// What both tables hold for all keys of all levels.
    [[nodiscard]] std::string keyTables() const
    {
        const QString& path = m_shop.values().databasePath;
        return test::rowsOf(path, u"select keylink from keylink order by id"_s) +
               test::rowsOf(path, u"select nlu from nlu order by id"_s);
    }
    void sendAndStartAnew()
    {
        EXPECT_TRUE(m_shop.download(keyBoxes).isEmpty());
        m_shop.startWith(u"Second Shop"_s);
        EXPECT_TRUE(m_shop.upload(keyBoxes).isEmpty());
        if (const auto failure = test::takeFailure())
            ADD_FAILURE() << failure->text().toStdString();
    }

    test::Shop m_shop{GetParam(), 1};
};

TEST_P(KeysRoad, KeysAndLookUpsReachARegisterAndASecondCustomer)
{
    const keys::KeyCell from{keyboard().rows - 1, 0};
    const keys::KeyCell to{3, 3};
    const QByteArray article = rungOn(from);
    ASSERT_FALSE(article.isEmpty());
    moveKey(from, to);
    fillLookUp();
    const QString lookUp = shownLookUp();
    EXPECT_TRUE(lookUp.startsWith(u"15|Favourites|2|0|1|1|1|PLU "_s)) << lookUp.toStdString();
    const std::string keys = keyTables();
    sendAndStartAnew();
    EXPECT_EQ(rungOn(to), article);
    EXPECT_EQ(rungOn(from), "");
    const int row = *keyboard().keyNumber(to) - 1;
    EXPECT_EQ(m_shop.recordsOf(1, linkFile).at(row).first(), "0200");
    EXPECT_EQ(m_shop.recordsOf(1, numberFile).at(row).first(), article);
    const QByteArrayList record = m_shop.recordsOf(1, lookUpFile).at(emptyLookUp - 1);
    EXPECT_EQ(record.at(3), "0003") << "lines in use";
    EXPECT_EQ(record.at(10) + ' ' + record.at(11), "40 000500000000000000");
    EXPECT_EQ(keyTables(), keys);
    EXPECT_EQ(shownLookUp(), lookUp);
}

TEST_P(KeysRoad, AFilledLevelReachesARegisterAndASecondCustomer)
{
    const keys::KeyCell first{0, 0}; // a fixed key on a Dorvik
    const std::string before = keyTables();
    const QByteArrayList plus = pluNumbers();
    ASSERT_GE(plus.size(), 20);
    fillKeys(first, QString::fromLatin1(plus.front() + ".." + plus.at(19)));
    const std::string keys = keyTables();
    EXPECT_NE(keys, before);
    sendAndStartAnew();
    EXPECT_EQ(keyTables(), keys);
    const QList<QByteArrayList> links = m_shop.recordsOf(1, linkFile);
    const QList<QByteArrayList> numbers = m_shop.recordsOf(1, numberFile);
    QByteArrayList onKeys;
    for (int cell = 0; onKeys.size() < 20; ++cell) {
        const auto number = keyboard().keyNumber({cell / keyboard().columns, cell % keyboard().columns});
        if (!number)
            continue;
        EXPECT_EQ(links.at(*number - 1).first(), "0200");
        onKeys += numbers.at(*number - 1).first();
    }
    EXPECT_EQ(onKeys, plus.first(20));
    EXPECT_EQ(rungOn({1, 0}), onKeys.at(keyboard().columns - std::ssize(keyboard().fixedCells)));
}

TEST_P(KeysRoad, FunctionKeysArriveExceptForWhatTheirPackingLoses)
{
    openFunctionKeys(set);
    openFunctionKeys([](const QDialog& form, const KeyOptions& options) {
        EXPECT_EQ(shownOptions(form, options.key), options.shown) << options.key;
    });
    const std::string others = otherFunctionKeys();
    sendAndStartAnew();
    const QByteArrayList tender = m_shop.recordsOf(1, functionFile).at(118);
    EXPECT_EQ(tender.sliced(2).join(' '), "00 40 03 02");
    openFunctionKeys([](const QDialog& form, const KeyOptions& options) {
        EXPECT_EQ(shownOptions(form, options.key), options.shownBeyond) << options.key;
    });
    EXPECT_EQ(otherFunctionKeys(), others);
}

INSTANTIATE_TEST_SUITE_P(Models, KeysRoad, testing::Range(0, 4));

} // namespace
} // namespace norvane
