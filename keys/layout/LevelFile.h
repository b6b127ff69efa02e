// A level of a keyboard as a text file, with the names of what is on its keys.
#pragma once

#include "keys/layout/KeyLevel.h"
#include "keys/layout/KeyWords.h"
#include "platform/TextError.h"

#include <QByteArray>

#include <vector>

namespace norvane::keys
{

/// The largest file that is read; a level takes some kilobytes.
inline constexpr qint64 largestLevelFile = 1'000'000;

/// Why a file is not a level of this keyboard: names the line, if it is one of the keys.
class LevelFileError : public TextError
{
public:
    using TextError::TextError;
};

/// Whether @p key is empty or its item has a number that readLevelText() takes, be it of an item that does
/// not exist.
[[nodiscard]] bool isExportable(const Key& key);

/// The level as it is shown, in UTF-8: a heading, then a line for each key with its number, kind, number of
/// the item and name, separated by tabs. A key that is not exportable is written as not programmed.
[[nodiscard]] QByteArray levelText(const KeyLevel& level, const QString& shop);

/// What the keys hold, key number 1 first. @throws LevelFileError for another file, a level of another
/// keyboard, and a line that is wrong, missing or there twice.
[[nodiscard]] std::vector<KeyWords> readLevelText(const QByteArray& text, const KeyGeometry& keyboard);

} // namespace norvane::keys
