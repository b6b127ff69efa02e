// All function keys on all models, held against a list of what registers have (function_keys.txt).
#include "keys/FunctionKeys.h"

#include "tests/keys/KeyShop.h"

#include <QMap>

namespace norvane::keys::test
{
namespace
{

constexpr int keysOfARegister = 266;
constexpr int amounts[] = {40, 20, 10, 4, 2, 1};
const NumberControl numberControls[] = {NumberControl::Halo, NumberControl::otherno, NumberControl::otherno2};
const QStringList controlNames{u"Halo"_s, u"otherno"_s, u"otherno2"_s};

QString nameOf(NumberControl control)
{
    return controlNames[static_cast<int>(control)];
}

Decimal decimal(const QString& text)
{
    return *Decimal::parse(text.toStdString());
}

QString textOf(const Decimal& value)
{
    return QString::fromStdString(value.text());
}

QStringList parted(const QString& text, QChar separator)
{
    QStringList parts = text.split(separator);
    for (QString& part : parts)
        part = part.trimmed();
    return parts.size() == 1 && parts[0].isEmpty() ? QStringList() : parts;
}

struct ListedNumber {
    NumberControl control;
    int scale;
    QString shownFrom; ///< "last flag3"
    QString savedTo;   ///< "add flag3"
    Decimal largest;
};

struct ListedKey {
    KeyControls page; ///< what is visible, with its caption
    std::vector<ListedNumber> numbers;
    QMap<int, int> places;
    QStringList differences;
};

/// What the list says of one model.
class ListedKeys
{
public:
    explicit ListedKeys(int model) : m_model(QString::number(model))
    {
        QFile file(QStringLiteral(FUNCTION_KEYS));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            if (line.startsWith(u'[')) {
                m_section = line;
            } else if (!line.isEmpty() && !line.startsWith(u';')) {
                read(parted(line, u'|'));
            }
        }
    }
    [[nodiscard]] ListedKey& operator[](int id) { return m_keys[id]; }

private:
    void read(const QStringList& cells)
    {
        for (const QString& range : parted(cells[0], u',')) {
            for (int id = range.section(u'-', 0, 0).toInt(); id <= range.section(u'-', -1).toInt(); ++id)
                add(cells, m_keys[id]);
        }
    }
    void add(const QStringList& cells, ListedKey& key) const
    {
        if (m_section == "[keys]"_L1) {
            addCaptions(cells, key.page);
        } else if (m_section == "[models]"_L1 && !cells[2].contains(m_model)) {
            for (const QString& box : parted(cells[1], u' '))
                key.page.Check1[box.toInt()] = {};
        } else if (m_section == "[numbers]"_L1) {
            key.numbers.push_back({numberControls[controlNames.indexOf(cells[1])], cells[2].toInt(), cells[3],
                                   cells[4], decimal(cells[5])});
        } else if (m_section == "[places]"_L1) {
            key.places.insert(cells[1].toInt(), cells[2].toInt());
        } else if (m_section == "[differences]"_L1 && cells[1].contains(m_model)) {
            key.differences += cells[2] + u" shows "_s + cells[3];
        }
    }
    static void addCaptions(const QStringList& cells, KeyControls& page)
    {
        for (const QString& number : parted(cells[1], u';')) {
            const auto control = controlNames.indexOf(number.section(u' ', 0, 0));
            page.number(numberControls[control]) = {true, number.section(u' ', 1), {}, {}};
        }
        for (const QString& box : parted(cells[2], u';')) {
            for (int tax = 0; box == "tax"_L1 && tax < 6; ++tax)
                page.Check1[tax] = {true, u"Exempt Tax%1"_s.arg(tax + 1), false};
            if (box != "tax"_L1)
                page.Check1[box.section(u' ', 0, 0).toInt()] = {true, box.section(u' ', 1), false};
        }
    }

    QString m_model;
    QString m_section;
    QMap<int, ListedKey> m_keys;
};

QList<int> boxesOf(const KeyControls& controls, bool KeyControls::Check::*which)
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
    for (const int index : boxesOf(controls, &KeyControls::Check::visible))
        lines += u"%1 %2"_s.arg(index).arg(controls.Check1[index].caption);
    for (const NumberControl control : numberControls) {
        if (controls.number(control).visible)
            lines += nameOf(control) + u' ' + controls.number(control).caption;
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
            m_controls.number(each.control).value = number;
    }
    [[nodiscard]] std::string row(int id)
    {
        const auto rows = m_database->openQuery(
            u"select halo, flag1, flag2, flag3, flag4 from FUNCTIONKEY where id = %1"_s.arg(id));
        std::string fields = rows.value(0).toUtf8();
        for (int field = 1; field <= flagCount; ++field)
            fields += ' ' + rows.value(field).toUtf8();
        return fields;
    }
    /// What row() must give when the controls were saved.
    [[nodiscard]] std::string savedRow(const ListedKey& key) const
    {
        QMap<QString, QString> row{{u"halo"_s, textOf(m_controls.Halo.value.shifted(2).rounded(0))}};
        for (int index = 0; index < checkCount; ++index) {
            QString& flag = row[u"flag%1"_s.arg(index / 6 + 1)];
            flag = QString::number(flag.toInt() + (m_controls.Check1[index].ticked ? amounts[index % 6] : 0));
        }
        for (const ListedNumber& number : key.numbers) {
            QString& field = row[number.savedTo.section(u' ', -1)];
            const QString value = textOf(m_controls.number(number.control).value.shifted(number.scale));
            field = number.savedTo.startsWith("add "_L1)      ? QString::number(field.toInt() + value.toInt())
                    : number.savedTo.startsWith("append "_L1) ? QString::number((field + value).toInt())
                                                              : value;
        }
        QStringList fields{row[u"halo"_s]};
        for (int flag = 1; flag <= flagCount; ++flag)
            fields += row[u"flag%1"_s.arg(flag)];
        return fields.join(u' ').toStdString();
    }
    /// Saves the controls, looks at the row, shows the key again and notes what has become another.
    void saveAndNote(int id, const ListedKey& key, const QString& what, QStringList& differences)
    {
        const KeyControls before = m_controls;
        m_keys.SaveData(m_controls);
        EXPECT_EQ(row(id), savedRow(key)) << id << ' ' << qPrintable(what);
        show(id);
        QStringList others;
        for (const auto& number : key.numbers) {
            const Decimal shown = m_controls.number(number.control).value;
            if (!(shown == before.number(number.control).value))
                others += nameOf(number.control) + u'=' + textOf(shown);
        }
        for (int index = 0; index < checkCount; ++index) {
            if (m_controls.Check1[index].ticked != before.Check1[index].ticked)
                others += QString::number(index) + (before.Check1[index].ticked ? u" off"_s : u" on"_s);
        }
        if (!others.isEmpty())
            differences += what + u" shows "_s + others.join(u", "_s);
    }

    KeyShop m_shop{QByteArray::number(GetParam())};
    std::shared_ptr<store::Database> m_database = m_shop.open();
    store::Transaction m_quick{*m_database};
    KeyControls m_controls;
    FunctionKeys m_keys = [this] {
        for (int id = 1; id <= keysOfARegister + 1; ++id)
            KeyShop::add(*m_database, "FUNCTIONKEY", {{"id", whole(id)}});
        return FunctionKeys(m_database, m_shop.values);
    }();
};

TEST_P(FunctionKeysTest, EveryKeyIsShownAndSavedAsListed)
{
    ListedKeys listed(GetParam());
    for (int id = 1; id <= keysOfARegister + 1; ++id) {
        ListedKey& key = listed[id];
        show(id);
        EXPECT_EQ(captions(m_controls), captions(key.page)) << id;
        QStringList differences;
        const QList<int> all = boxesOf(key.page, &KeyControls::Check::visible);
        for (const int box : all) {
            set(key, {box});
            saveAndNote(id, key, QString::number(box), differences);
        }
        for (const auto& number : key.numbers) {
            EXPECT_EQ(m_controls.number(number.control).largest, number.largest) << id;
            for (const Decimal& value : {Decimal(1, 0), number.largest}) {
                set(key, {});
                m_controls.number(number.control).value = value;
                saveAndNote(id, key, nameOf(number.control) + u'=' + textOf(value), differences);
            }
        }
        set(key, all);
        saveAndNote(id, key, u"all"_s, differences);
        set(key, all, Decimal(1, 0));
        saveAndNote(id, key, u"all, numbers=1"_s, differences);
        EXPECT_EQ(differences.join(u'\n').toStdString(), key.differences.join(u'\n').toStdString()) << id;
    }
}

/// Each field holds other digits, so that a value read from another one shows.
TEST_P(FunctionKeysTest, EveryKeyIsReadFromTheFieldsListed)
{
    ListedKeys listed(GetParam());
    for (const char* fields : {"123456 12 34 56 71", "7 65 43 217 6"}) {
        const QStringList row = QString::fromLatin1(fields).split(u' ');
        m_database->execute(u"update FUNCTIONKEY set halo=%1, flag1=%2, flag2=%3, flag3=%4, flag4=%5"_s.arg(
            row[0], row[1], row[2], row[3], row[4]));
        for (int id = 1; id <= keysOfARegister; ++id) {
            const ListedKey key = listed[id];
            show(id);
            for (const ListedNumber& number : key.numbers) {
                const QString field = number.shownFrom.section(u' ', -1);
                const QString text = row[field == "halo"_L1 ? 0 : field.last(1).toInt()];
                const QString part = number.shownFrom.startsWith("first"_L1)  ? text.left(1)
                                     : number.shownFrom.startsWith("last"_L1) ? text.right(1)
                                                                              : text;
                EXPECT_EQ(m_controls.number(number.control).value, decimal(part).shifted(-number.scale))
                    << id << ' ' << fields;
            }
            for (const int box : boxesOf(key.page, &KeyControls::Check::visible)) {
                const int place = key.places.value(box, box);
                const QChar digit = row[place / 6 + 1].rightJustified(2, u'0').at(place % 6 / 3);
                EXPECT_EQ(m_controls.Check1[box].ticked, (digit.digitValue() & (4 >> place % 3)) != 0)
                    << id << ' ' << box << ' ' << fields;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Models, FunctionKeysTest, testing::Range(0, 4));

/// What a damaged or foreign table may hold.
TEST(FunctionKeyFieldsTest, OddValuesAreReadAsFarAsTheyGo)
{
    struct {
        int id;
        const char* fields;
        const char* shown; ///< otherno and ticked boxes
    } const rows[] = {
        {119, "flag3 = 407", "7 12"},        {119, "flag3 = null", "0"},
        {119, "flag3 = -45", "5"},           {18, "flag3 = null, flag1 = 98", "0"},
        {18, "flag3 = 1234567", "1 16"},     {18, "flag1 = 37, flag3 = 0", "0 1 2 3 4 5"},
        {190, "flag1 = 1234567", "1234567"}, {190, "flag1 = -3", "-3"},
    };
    const KeyShop shop("3");
    const auto database = shop.open();
    for (const auto& [id, fields, shown] : rows) {
        database->execute(u"delete * from FUNCTIONKEY"_s);
        KeyShop::add(*database, "FUNCTIONKEY", {{"id", whole(id)}});
        database->execute(u"update FUNCTIONKEY set "_s + QLatin1String(fields));
        KeyControls controls;
        FunctionKeys(database, shop.values).GetData(controls);
        QStringList text(textOf(controls.otherno.value));
        for (const int box : boxesOf(controls, &KeyControls::Check::ticked))
            text += QString::number(box);
        EXPECT_EQ(text.join(u' ').toStdString(), shown) << id << ' ' << fields;
    }
}

TEST(FunctionKeyFieldsTest, WhatCannotBeShownOrSavedTellsTableRowAndWayOut)
{
    const KeyShop shop;
    shop.add("FUNCTIONKEY", {{"id", whole(1)}});
    shop.add("FUNCTIONKEY", {{"id", whole(5)}});
    FunctionKeys keys(shop.open(), shop.values);
    const auto failure = [](const auto& act) {
        QString text;
        try {
            act();
        } catch (const RuntimeFailure& thrown) {
            text = u"%1 %2"_s.arg(thrown.number()).arg(thrown.text());
        }
        return text.toStdString();
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
