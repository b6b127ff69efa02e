// Places of options and the search for a key's row; see KeyOptions.h.
#include "keys/functions/KeyOptions.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{

OptionPlace placeOf(int index)
{
    constexpr KeyField flags[flagCount] = {KeyField::flag1, KeyField::flag2, KeyField::flag3,
                                           KeyField::flag4};
    constexpr int optionsOfDigit = checksOfFlag / 2;
    return {flags[index / checksOfFlag], index % checksOfFlag < optionsOfDigit, 4 >> index % optionsOfDigit};
}

bool includes(Models models, const RegisterModel& model)
{
    switch (models) {
    case Models::All:
        return true;
    case Models::Card:
        return model.hasCards;
    case Models::Points:
        return model.hasPoints;
    }
    return false;
}

const KeyOptions* optionsOf(qint64 id, const std::vector<KeyOptions>& rows)
{
    const auto row = std::ranges::find_if(rows, [id](const KeyOptions& options) {
        return std::ranges::any_of(
            options.keys, [id](const KeyRange& range) { return id >= range.first && id <= range.last; });
    });
    return row == rows.end() ? nullptr : &*row;
}

const KeyOptions* optionsOf(qint64 id)
{
    const KeyOptions* const found = optionsOf(id, keyOptionsTo156());
    return found != nullptr ? found : optionsOf(id, keyOptionsFrom157());
}

} // namespace norvane::keys
