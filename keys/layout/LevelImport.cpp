// See LevelImport.h.
#include "keys/layout/LevelImport.h"

#include "keys/layout/KeyboardKeys.h"
#include "register/PluNumber.h"
#include "store/engine/BoundQuery.h"

#include <QHash>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

ItemKind kindOfWords(const KeyWords& words)
{
    if (words.kind == kindWord(ItemKind::Plu))
        return ItemKind::Plu;
    return words.kind == kindWord(ItemKind::LookUp) ? ItemKind::LookUp : ItemKind::Function;
}

/// Numbers by names. A table is read when the first name of its kind is sought.
class ItemNames
{
public:
    explicit ItemNames(store::Database& database) : m_database(database) {}

    /// @return nothing if no item has this name, or several have it.
    std::optional<QString> onlyNumber(ItemKind kind, const QString& name)
    {
        if (!m_numbers.contains(kind))
            read(kind);
        const QStringList numbers = m_numbers[kind].values(name);
        return numbers.size() == 1 ? std::optional(numbers.first()) : std::nullopt;
    }

private:
    void read(ItemKind kind)
    {
        const ItemTable& table = itemTable(kind);
        const QString sql = u"SELECT %1, DESCRIPTION FROM %2"_s.arg(table.number, table.table);
        QMultiHash<QString, QString>& numbers = m_numbers[kind];
        store::BoundQuery rows(m_database, sql.toStdString(), {}, table.table);
        while (rows.next()) {
            const QString number = unfilledNumber(rows.value(0).toText());
            numbers.insert(rows.value(1).toText().trimmed(), number);
        }
    }

    store::Database& m_database;
    QHash<ItemKind, QMultiHash<QString, QString>> m_numbers;
};

/// Finds one item after the other, and notes what is not as in the file.
class Finder
{
public:
    Finder(KeyItems& items, store::Database& database, LevelImport& plan)
        : m_items(items), m_names(database), m_plan(plan)
    {
    }

    Key find(const KeyWords& words, int number)
    {
        if (words.kind.isEmpty())
            return unprogrammedKey();
        const ItemKind kind = kindOfWords(words);
        const std::optional<Key> sameNumber = m_items.keyFor(kind, words.number);
        if (sameNumber && (words.name.isEmpty() || wordsOf(*sameNumber).name == words.name))
            return *sameNumber;
        std::optional<Key> found = sameName(kind, words.name);
        if (!found)
            found = sameNumber;
        note(words, number, found);
        return found ? *found : m_items.missingKey(kind, words.number);
    }

private:
    std::optional<Key> sameName(ItemKind kind, const QString& name)
    {
        if (kind == ItemKind::Function || name.isEmpty())
            return std::nullopt;
        const std::optional<QString> number = m_names.onlyNumber(kind, name);
        return number ? m_items.keyFor(kind, *number) : std::nullopt;
    }
    void note(const KeyWords& words, int number, const std::optional<Key>& found)
    {
        const QString item =
            QStringList{u"Key %1:"_s.arg(number), words.kind, words.number, words.name}.join(u' ').trimmed();
        if (found) {
            m_plan.renamed += item + u" is "_s + keyInWords(*found) + u" here"_s;
        } else {
            m_plan.missing += item;
        }
    }

    KeyItems& m_items;
    ItemNames m_names;
    LevelImport& m_plan;
};

} // namespace

LevelImport planLevelImport(const std::vector<KeyWords>& keys, KeyLevel& level, store::Database& database)
{
    LevelImport plan;
    Finder finder(level.items(), database, plan);
    for (const PlacedKey& placed : keysOf(level)) {
        const Key key = finder.find(keys[static_cast<std::size_t>(placed.place.key) - 1], placed.place.key);
        plan.changed += doTheSame(key, placed.key) ? 0 : 1;
        plan.keys.push_back({placed.cell, key});
    }
    return plan;
}

} // namespace norvane::keys
