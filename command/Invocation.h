// The words of a command line, and the table of what it can say.
#pragma once

#include "command/ExitCode.h"

#include <QDate>
#include <QHash>
#include <QLatin1StringView>
#include <QStringList>

#include <optional>
#include <span>

namespace norvane::command
{

/// An option of the command line.
struct OptionDefinition {
    QLatin1StringView name;  ///< "pdf"
    QLatin1StringView value; ///< "FILE"; empty for a switch
    QLatin1StringView text;
};

/// A command line as it was typed, checked against its verb.
struct Invocation {
    QStringList operands; ///< after the verb
    QHash<QString, QString> options;

    [[nodiscard]] bool has(QLatin1StringView option) const { return options.contains(option); }
    [[nodiscard]] QString value(QLatin1StringView option) const { return options.value(option); }
    /// @throws CommandError Usage if the value is not a day.
    [[nodiscard]] QDate day(QLatin1StringView option) const;
};

struct Workplace;

/// A command of norvane-shop.
struct Verb {
    QLatin1StringView name;
    QLatin1StringView operands; ///< as help shows them: "CUSTOMER [BOX...]"
    int least;                  ///< of them
    int most;                   ///< -1 for any number
    std::span<const OptionDefinition> options;
    QLatin1StringView text;
    /// @throws CommandError, and what the product throws.
    void (*run)(const Workplace& workplace, const Invocation& words);
};

/// Every verb, in the order of the help.
[[nodiscard]] std::span<const Verb> verbs();
/// Options of every verb.
[[nodiscard]] std::span<const OptionDefinition> commonOptions();

/// The verb, its operands and options. Common options may also come before the verb.
/// @param words without the program's own name.
/// @throws CommandError Usage for an unknown verb or option, a missing value, too few or too many operands.
[[nodiscard]] std::pair<const Verb*, Invocation> parse(const QStringList& words);

/// What to print when @p words ask for help or for the version: "help", "help report", "report --help", "-h",
/// "--version". @return nothing for other words.
/// @throws CommandError Usage for help on an unknown verb.
[[nodiscard]] std::optional<QString> requestedHelp(const QStringList& words);

} // namespace norvane::command
