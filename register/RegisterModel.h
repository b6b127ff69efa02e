// The register models that a customer may have, and how they differ.
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace norvane
{

enum class RegisterFamily { Velmar, Dorvik };

/// A register model.
struct RegisterModel {
    /// Place in the list of models, from 0. Models that are not in the list have the place of the last one.
    int place;
    QLatin1StringView code; ///< the model word that the converter takes
    RegisterFamily family;
    int messageWidth; ///< characters of a message line: the printers differ
    bool hasCards;    ///< knows smart cards
    bool hasPoints;   ///< takes points of a smart card as payment
};

/// Levels of a keyboard, and the keys of a level that can be programmed: so many rows belong to it in each of
/// the tables KEYLINK and NLU.
inline constexpr int keyboardLevels = 5;
[[nodiscard]] constexpr int keysOfLevel(RegisterFamily family)
{
    return family == RegisterFamily::Velmar ? 169 : 158;
}

/// The model for the value of the setting ECRModel, read as a number. A number that is not in the list is a
/// Dorvik. @throws RuntimeFailure with Failure::TypeMismatch if @p setting is empty or not a number.
[[nodiscard]] const RegisterModel& modelOfNumber(const QString& setting);

/// The same by the characters of the value: "02" is then not in the list. Any text is accepted.
[[nodiscard]] const RegisterModel& modelOfText(const QString& setting);

} // namespace norvane
