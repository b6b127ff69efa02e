// All function keys on all models, compared with a list of what registers have (function_keys.txt).
#include "keys/functions/FunctionKeys.h"

#include "store/engine/CommitOnExit.h"
#include "tests/keys/KeyShop.h"

#include <QMap>

namespace norvane::keys::test
{
namespace
{

constexpr int keysOfARegister = 266;
const QStringList controlNames{u"Halo"_s, u"otherno"_s, u"otherno2"_s};

auto& numberOf(auto& controls, const QString& name)
{
    return controls.number(static_cast<NumberControl>(controlNames.indexOf(name)));
}

Decimal decimal(const QString& text)
{
    return *Decimal::parse(text.toStdString());
}

QString textOf(const Decimal& value)
{
    return QString::fromStdString(value.text());
}

QStringList splitAt(const QString& text, QChar separator)
{
    QStringList parts = text.split(separator);
    for (QString& part : parts)
        part = part.trimmed();
    parts.removeAll(QString());
    return parts;
}

/// A row of the list's section of numbers.
struct ListedNumber {
    QString control;
    int scale;
    QString field;
    Decimal largest;
};

struct ListedKey {
    KeyControls page; ///< what is visible, with its caption
    std::vector<ListedNumber> numbers;
    QStringList differences;
};

void addCaptions(const QString& line, KeyControls& page)
{
    for (const QString& number : splitAt(line.section(u'|', 1, 1), u';'))
        numberOf(page, number.section(u' ', 0, 0)) = {true, number.section(u' ', 1), {}, {}};
    for (const QString& box : splitAt(line.section(u'|', 2), u';')) {
        for (int tax = 0; box == "tax"_L1 && tax < 6; ++tax)
            page.Check1[tax] = {true, u"Exempt Tax%1"_s.arg(tax + 1), false};
        if (box != "tax"_L1)
            page.Check1[box.section(u' ', 0, 0).toInt()] = {true, box.section(u' ', 1), false};
    }
}

void add(const QString& section, const QString& line, const QString& model, ListedKey& key)
{
    const QStringList cells = splitAt(line, u'|');
    if (section == "[keys]"_L1) {
        addCaptions(line, key.page);
    } else if (section == "[models]"_L1 && !cells[2].contains(model)) {
        for (const QString& box : cells[1].split(u' '))
            key.page.Check1[box.toInt()] = {};
    } else if (section == "[numbers]"_L1) {
        key.numbers.push_back({cells[1], cells[2].toInt(), cells[3], decimal(cells[4])});
    } else if (section == "[differences]"_L1 && cells[1].contains(model)) {
        key.differences += cells[2] + u" shows "_s + cells[3];
    }
}

/// What the list says of @p model, by key.
QMap<int, ListedKey> listedKeys(int model)
{
    QFile file(QStringLiteral(FUNCTION_KEYS));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QMap<int, ListedKey> keys;
    QString section;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'['))
            section = line;
        if (line.startsWith(u'[') || line.startsWith(u';'))
            continue;
        for (const QString& range : splitAt(line.section(u'|', 0, 0), u',')) {
            for (int id = range.section(u'-', 0, 0).toInt(); id <= range.section(u'-', -1).toInt(); ++id)
                add(section, line, QString::number(model), keys[id]);
        }
    }
    return keys;
}

QList<int> boxesOf(const KeyControls& controls, bool KeyControls::Tick::*which)
{
    QList<int> boxes;
    for (int index = 0; index < checkCount; ++index) {
        if (controls.Check1[index].*which)
            boxes += index;
    }
    return boxes;
}

std::string captions(const KeyControls& controls)
{
    QStringList lines;
    for (const int index : boxesOf(controls, &KeyControls::Tick::visible))
        lines += u"%1 %2"_s.arg(index).arg(controls.Check1[index].caption);
    for (const QString& name : controlNames) {
        if (numberOf(controls, name).visible)
            lines += name + u' ' + numberOf(controls, name).caption;
    }
    return lines.join(u'\n').toStdString();
}

class FunctionKeysTest : public testing::TestWithParam<int>
{
protected:
    void show(int id)
    {
        m_keys.moveTo(id);
        m_keys.GetData(m_controls);
    }
    /// Ticks @p boxes alone and sets all numbers of @p key to @p number.
    void set(const ListedKey& key, const QList<int>& boxes, const Decimal& number = {})
    {
        for (int index = 0; index < checkCount; ++index)
            m_controls.Check1[index].ticked = boxes.contains(index);
        for (const ListedNumber& each : key.numbers)
            numberOf(m_controls, each.control).value = number;
    }
    [[nodiscard]] Decimal stored(int id, const QString& field)
    {
        const auto row =
            m_database->openQuery(u"select %1 from FUNCTIONKEY where id = %2"_s.arg(field).arg(id));
        return decimal(row.value(0).toText());
    }
    /// Saves the controls, shows the key again and notes what has become another.
    void saveAndNote(int id, const ListedKey& key, const QString& what, QStringList& differences)
    {
        const KeyControls before = m_controls;
        m_keys.SaveData(m_controls);
        show(id);
        QStringList others;
        for (const ListedNumber& number : key.numbers) {
            const Decimal shown = numberOf(m_controls, number.control).value;
            if (!(shown == numberOf(before, number.control).value))
                others += number.control + u'=' + textOf(shown);
        }
        for (int index = 0; index < checkCount; ++index) {
            if (m_controls.Check1[index].ticked != before.Check1[index].ticked)
                others += QString::number(index) + (before.Check1[index].ticked ? u" off"_s : u" on"_s);
        }
        if (!others.isEmpty())
            differences += what + u" shows "_s + others.join(u", "_s);
    }

    QMap<int, ListedKey> m_listed = listedKeys(GetParam());
    KeyShop m_shop{QByteArray::number(GetParam())};
    std::shared_ptr<store::Database> m_database = m_shop.open();
    store::CommitOnExit m_quick{*m_database};
    KeyControls m_controls;
    FunctionKeys m_keys = [this] {
        for (int id = 1; id <= keysOfARegister + 1; ++id)
            addRecord(*m_database, "FUNCTIONKEY", {{"id", whole(id)}});
        return FunctionKeys(m_database, m_shop.values);
    }();
};

TEST_P(FunctionKeysTest, EveryKeyIsShownAndSavedAsListed)
{
    for (int id = 1; id <= keysOfARegister + 1; ++id) {
        const ListedKey& key = m_listed[id];
        show(id);
        EXPECT_EQ(captions(m_controls), captions(key.page)) << id;
        QStringList differences;
        const QList<int> all = boxesOf(key.page, &KeyControls::Tick::visible);
        for (const int box : all) {
            set(key, {box});
            saveAndNote(id, key, QString::number(box), differences);
        }
        for (const ListedNumber& number : key.numbers) {
            EXPECT_EQ(numberOf(m_controls, number.control).largest, number.largest) << id;
            for (const Decimal& value : {Decimal(1, 0), number.largest}) {
                set(key, {});
                numberOf(m_controls, number.control).value = value;
                saveAndNote(id, key, number.control + u'=' + textOf(value), differences);
                EXPECT_EQ(stored(id, number.field).text(), value.shifted(number.scale).text()) << id;
            }
        }
        set(key, all);
        saveAndNote(id, key, u"all"_s, differences);
        set(key, all, Decimal(1, 0));
        saveAndNote(id, key, u"all, numbers=1"_s, differences);
        EXPECT_EQ(differences.join(u'\n').toStdString(), key.differences.join(u'\n').toStdString()) << id;
    }
}

INSTANTIATE_TEST_SUITE_P(Models, FunctionKeysTest, testing::Range(0, 4));

/// What a damaged or foreign table may hold, and what some keys read elsewhere than they write it.
constexpr struct {
    int id;
    const char* fields;
    const char* shown; ///< otherno and ticked boxes
} oddValues[] = {
    {119, "flag3 = 407", "7 12"},
    {119, "flag3 = null", "0"},
    {119, "flag3 = -45", "5"},
    {18, "flag3 = null, flag1 = 98", "0"},
    {18, "flag3 = 1234567", "1 16"},
    {18, "flag1 = 37, flag3 = 0", "0 1 2 3 4 5"},
    {21, "flag3 = 12", "2 14"},
    {21, "flag3 = 40", "0 12"},
    {190, "flag1 = 1234567", "1234567"},
    {190, "flag1 = -3", "-3"},
    {20, "flag2 = 3, flag4 = 7", "7"},
    {223, "flag3 = 5, flag4 = 9", "5"},
    {214, "flag3 = 40", "0"},
    {217, "flag3 = 4, flag4 = 6", "6 12"},
};

TEST(FunctionKeyFieldsTest, OddValuesAreReadAsFarAsTheyGo)
{
    const KeyShop shop("3");
    const auto database = shop.open();
    for (const auto& [id, fields, shown] : oddValues) {
        database->execute(u"delete * from FUNCTIONKEY"_s);
        addRecord(*database, "FUNCTIONKEY", {{"id", whole(id)}});
        database->execute(u"update FUNCTIONKEY set "_s + QLatin1String(fields));
        KeyControls controls;
        FunctionKeys(database, shop.values).GetData(controls);
        std::string text = controls.otherno.value.text();
        for (const int box : boxesOf(controls, &KeyControls::Tick::ticked))
            text += ' ' + std::to_string(box);
        EXPECT_EQ(text, shown) << id << ' ' << fields;
    }
}

TEST(FunctionKeyFieldsTest, WhatCannotBeShownOrSavedNamesTableRowAndRemedy)
{
    const KeyShop shop;
    shop.add("FUNCTIONKEY", {{"id", whole(1)}});
    shop.add("FUNCTIONKEY", {{"id", whole(5)}});
    FunctionKeys keys(shop.open(), shop.values);
    const auto failure = [](const auto& act) {
        return failureTextOf(act).toStdString();
    };
    EXPECT_EQ(failure([&] { keys.moveTo(5); }),
              "3021 No current record. Table FunctionKey has 2 rows, but no row 5. Their numbers must run "
              "from 1 without a gap. Upload Function Keys from the ECR first.");
    KeyControls controls;
    keys.moveTo(2);
    controls.description = QString(40, u'x');
    EXPECT_EQ(failure([&] { keys.SaveData(controls); }).substr(0, 84),
              "3163 Function key 5 of table FunctionKey was not saved. The text is too long. Field ");
    shop.execute("delete * from FUNCTIONKEY");
    EXPECT_EQ(
        failure([&] { const FunctionKeys empty(shop.open(), shop.values); }),
        "3021 No current record. Table FunctionKey has no rows. Upload Function Keys from the ECR first.");
}

} // namespace
} // namespace norvane::keys::test
