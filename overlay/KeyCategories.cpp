// See KeyCategories.h.
#include "overlay/KeyCategories.h"

#include "overlay/LevelImport.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr std::pair<KeyUse, const char*> kinds[] = {
    {KeyUse::Plu, "PLUs"},
    {KeyUse::LookUp, "Window look-ups"},
    {KeyUse::Function, "Functions"},
    {KeyUse::Number, "Numeric keys"},
};

template <typename Condition>
std::vector<int> keysWith(const std::vector<LevelKey>& keys, const Condition& isWanted)
{
    std::vector<int> wanted;
    wanted.reserve(keys.size());
    for (std::size_t key = 0; key < keys.size(); ++key) {
        if (isWanted(keys[key]))
            wanted.push_back(static_cast<int>(key));
    }
    return wanted;
}

std::map<int, QString> readGroupNames(store::Database& database)
{
    std::map<int, QString> names;
    store::Recordset rows = database.openTable(u"groups"_s);
    const int number = rows.fieldOrdinal(u"GROUPNO"_s);
    const int description = rows.fieldOrdinal(u"DESCRIPTION"_s);
    rows.setIndex(u"groupno"_s);
    for (; !rows.atEnd(); rows.moveNext())
        names[rows.value(number).toText().toInt()] = rows.value(description).toText().trimmed();
    return names;
}

QString groupName(int group, const std::map<int, QString>& names)
{
    const auto found = names.find(group);
    return u"Group %1 %2"_s.arg(group).arg(found != names.end() ? found->second : QString()).trimmed();
}

} // namespace

std::vector<KeyCategory> categoriesOf(const std::vector<LevelKey>& keys,
                                      const std::map<int, QString>& groupNames)
{
    std::vector<KeyCategory> categories;
    for (const auto& [use, name] : kinds) {
        auto found = keysWith(keys, [use = use](const LevelKey& key) { return key.use == use; });
        if (!found.empty())
            categories.push_back({QLatin1StringView(name), 0, std::move(found)});
    }
    std::map<int, std::vector<int>> groups;
    for (std::size_t key = 0; key < keys.size(); ++key) {
        if (keys[key].group > 0)
            groups[keys[key].group].push_back(static_cast<int>(key));
    }
    for (auto& [group, found] : groups)
        categories.push_back({groupName(group, groupNames), group, std::move(found)});
    return categories;
}

void giveGroupColours(Document& document, const std::vector<LevelKey>& keys)
{
    for (int index = 0; index < document.cellCount(); ++index) {
        const int group = keys[static_cast<std::size_t>(document.layout().keyIndex(index))].group;
        const auto colours = document.notes().groups.find(group);
        if (colours == document.notes().groups.end())
            continue;
        document.cell(index).background = colours->second.background;
        document.cell(index).textColour = colours->second.textColour;
    }
}

std::vector<KeyCategory> readCategories(Keyboard keyboard, int level, const QString& databasePath)
{
    const auto keys = keysOfLevel(keyboard, level, databasePath);
    store::Database database(databasePath);
    return categoriesOf(keys, readGroupNames(database));
}

} // namespace norvane::overlay
