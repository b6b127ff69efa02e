// See KeyboardKeys.h.
#include "keys/layout/KeyboardKeys.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/Database.h"

#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

void add(KeyboardKeys& all, const KeyLevel& level)
{
    std::vector<PlacedKey> keys = keysOf(level);
    all.keys.insert(all.keys.end(), std::make_move_iterator(keys.begin()),
                    std::make_move_iterator(keys.end()));
}

/// A level whose rows are missing does not hide the others.
void addStored(KeyboardKeys& all, KeyLevel& reader, int level)
{
    try {
        reader.read(level);
    } catch (const RuntimeFailure& failure) {
        all.failures += u"Level %1 cannot be read. %2"_s.arg(level).arg(failure.text());
        return;
    }
    add(all, reader);
}

} // namespace

std::vector<PlacedKey> keysOf(const KeyLevel& level)
{
    std::vector<PlacedKey> keys;
    keys.reserve(static_cast<std::size_t>(level.geometry().keysPerLevel));
    int number = 0;
    for (const KeyCell cell : level.geometry().walk())
        keys.push_back({{level.level(), ++number}, cell, level.key(cell)});
    return keys;
}

KeyboardKeys keysOfAllLevels(const KeyLevel& shown, const std::shared_ptr<store::Database>& database)
{
    KeyLevel reader(shown.geometry(), database);
    KeyboardKeys all;
    for (int level = 1; level <= levelCount; ++level) {
        if (level == shown.level()) {
            add(all, shown);
        } else {
            addStored(all, reader, level);
        }
    }
    return all;
}

} // namespace norvane::keys
