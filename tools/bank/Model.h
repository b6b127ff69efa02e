// The register families as the tools know them: the word of a command line and the byte in a file's header.
#pragma once

#include <QString>

#include <optional>

namespace bank
{

enum class Model : quint8 { Velmaro = 0, Velmarn = 1, Dorvik = 2 };

/// The word for @p model on convert's command line and in register.ini.
[[nodiscard]] QString modelWord(Model model);

/// @return nothing for a word that differs from all three, letter case included.
[[nodiscard]] std::optional<Model> modelOfWord(const QString& word);

} // namespace bank
