// See CsvOption.h.
#include "command/CsvOption.h"

#include "command/TerminalBoxes.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

struct SeparatorWord {
    QLatin1StringView word;
    reports::CsvSigns signs;
};
constexpr auto separatorWords = std::to_array<SeparatorWord>({
    {"comma"_L1, {',', '.'}},
    {"semicolon"_L1, {';', ','}},
    {"tab"_L1, {'\t', '.'}},
});

std::optional<reports::CsvSigns> chosenSigns(const Invocation& words)
{
    if (!words.has(separatorOption.name))
        return std::nullopt;
    const QString given = words.value(separatorOption.name);
    const auto* const word = std::ranges::find_if(separatorWords, [&](const SeparatorWord& each) {
        return given == each.word || given == QLatin1Char(each.signs.separator);
    });
    if (word == separatorWords.end()) {
        throw CommandError(ExitCode::Usage,
                           u"--separator is comma, semicolon or tab, not \"%1\"."_s.arg(given));
    }
    return word->signs;
}

} // namespace

std::optional<char> separatorToRead(const Invocation& words)
{
    const auto signs = chosenSigns(words);
    return signs ? std::optional(signs->separator) : std::nullopt;
}

reports::CsvSigns signsToWrite(const Invocation& words)
{
    const auto ofTerminal = [] {
        return isTerminal(Output::Standard) ? reports::csvSignsOfLocale() : separatorWords.front().signs;
    };
    const auto signs = chosenSigns(words);
    return signs ? *signs : ofTerminal();
}

} // namespace norvane::command
