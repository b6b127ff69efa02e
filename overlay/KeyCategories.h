// The keys of a level by what they do.
#pragma once

#include "overlay/Document.h"
#include "overlay/LevelKey.h"

#include <map>
#include <vector>

namespace norvane::overlay
{

/// Keys that have something in common.
struct KeyCategory {
    QString name;
    int group = 0;         ///< 0 if it is not a group of PLUs
    std::vector<int> keys; ///< by their place in the layout
};

/// The kinds of keys, then the groups that the level has PLUs of, by number. Categories without keys are left
/// out.
/// @param groupNames by number; a group without a name is shown with its number.
[[nodiscard]] std::vector<KeyCategory> categoriesOf(const std::vector<LevelKey>& keys,
                                                    const std::map<int, QString>& groupNames);

/// Gives the keys of groups the colours that @p document remembers for them.
void giveGroupColours(Document& document, const std::vector<LevelKey>& keys);

/// Those of a level of the customer's programme. @throws RuntimeFailure as keysOfLevel() does.
[[nodiscard]] std::vector<KeyCategory> readCategories(Keyboard keyboard, int level,
                                                      const QString& databasePath);

} // namespace norvane::overlay
