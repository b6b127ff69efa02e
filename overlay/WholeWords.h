// Texts of keys set in whole words by their true width.
#pragma once

#include "overlay/Document.h"

#include <array>
#include <vector>

namespace norvane::overlay
{

/// Smallest size unless the user says otherwise, in points.
inline constexpr float usualSmallestSize = 6;

/// For each key what it is called in the programme, on any level; missing texts are empty.
using ProgrammeTexts = std::vector<std::vector<QString>>;
/// The texts of all levels. A level or a database that cannot be read has none.
[[nodiscard]] ProgrammeTexts readProgrammeTexts(Keyboard keyboard, const QString& databasePath);

/// The text that the lines of a key were made of: the one of @p programme that the lines contain, or an
/// import cut; otherwise the lines themselves, each of them whole words.
[[nodiscard]] QString sourceText(const QStringList& lines, const std::vector<QString>& programme);

/// A key whose text does not fit.
struct UnfitKey {
    int key = 0;
    QString text;
    float fittingSize = 0; ///< at which it would, in points; 0 for none
};

struct WholeWordsResult {
    int changedKeys = 0;
    std::vector<UnfitKey> unfit;
};

/// Sets each of @p keys in whole words over its lines, at the largest size up to its own at which all lines
/// fit the width that prints. A word is broken at a soft hyphen or after a hyphen, if it does not fit
/// otherwise. Keys that are right already, and those that do not fit at @p smallest, remain as they are.
/// @param smallest size in points.
WholeWordsResult setWholeWords(Document& document, const std::vector<int>& keys,
                               const ProgrammeTexts& programme, float smallest);

} // namespace norvane::overlay
