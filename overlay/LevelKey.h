// What a key of the register does on a level.
#pragma once

#include <QString>

namespace norvane::overlay
{

/// Fixed keys are reserved by the register, and number keys enter digits: both whatever the programme says.
enum class KeyUse { Fixed, Number, Plu, LookUp, Function };

struct LevelKey {
    KeyUse use = KeyUse::Fixed;
    int group = 0; ///< of a PLU; 0 for none
    QString text;  ///< description in the programme
};

} // namespace norvane::overlay
