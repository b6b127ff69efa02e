// See Invocation.h.
#include "command/Invocation.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr qsizetype optionColumn = 24;

const Verb& verbOf(const QString& name)
{
    const auto all = verbs();
    const auto verb = std::ranges::find_if(all, [&](const Verb& each) { return name == each.name; });
    if (verb == all.end()) {
        throw CommandError(ExitCode::Usage,
                           u"There is no command \"%1\". Try norvane-shop --help."_s.arg(name));
    }
    return *verb;
}

void addOptions(QCommandLineParser& parser, std::span<const OptionDefinition> options)
{
    for (const auto& option : options)
        parser.addOption(QCommandLineOption(option.name, option.text, option.value));
}

QString usageOf(const Verb& verb)
{
    return u"norvane-shop %1 %2"_s.arg(verb.name, verb.operands).trimmed();
}

void checkOperands(const Verb& verb, qsizetype count)
{
    if (count < verb.least || (verb.most >= 0 && count > verb.most))
        throw CommandError(ExitCode::Usage, u"Usage: %1"_s.arg(usageOf(verb)));
}

/// A variable that a script has not set must not mean the current folder, or no publication.
void checkValues(const Verb& verb, const Invocation& invocation)
{
    for (const auto& options : {commonOptions(), verb.options}) {
        for (const auto& option : options) {
            if (!option.value.isEmpty() && invocation.has(option.name) &&
                invocation.value(option.name).isEmpty())
                throw CommandError(ExitCode::Usage, u"--%1 needs a value."_s.arg(option.name));
        }
    }
}

QString optionLines(std::span<const OptionDefinition> options)
{
    QString lines;
    for (const auto& option : options) {
        const QString name = u"--%1 %2"_s.arg(option.name, option.value).trimmed();
        lines += u"    "_s + name.leftJustified(optionColumn) + option.text + u'\n';
    }
    return lines;
}

QString linesOf(const Verb& verb)
{
    return usageOf(verb) + u"\n    "_s + verb.text + u'\n' + optionLines(verb.options);
}

QString commonLines()
{
    return u"\nWith every command:\n"_s + optionLines(commonOptions());
}

QString helpOf(const Verb& verb)
{
    return linesOf(verb) + commonLines();
}

QString helpOfAll()
{
    QString text = u"norvane-shop: the Norvane utility without a window.\n\n"_s;
    for (const Verb& verb : verbs())
        text += linesOf(verb);
    text += commonLines() + u"\nExit codes:\n"_s;
    for (const auto& meaning : exitMeanings())
        text += u"    %1  %2\n"_s.arg(static_cast<int>(meaning.code)).arg(meaning.text);
    return text;
}

/// Moves the options before the verb after it: "--json report X" becomes "report --json X".
QStringList verbFirst(const QStringList& words)
{
    QCommandLineParser parser;
    addOptions(parser, commonOptions());
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    if (!parser.parse(QStringList{u"norvane-shop"_s} + words))
        throw CommandError(ExitCode::Usage, parser.errorText());
    const QStringList rest = parser.positionalArguments();
    if (rest.isEmpty())
        throw CommandError(ExitCode::Usage, helpOfAll());
    return rest.first(1) + words.first(words.size() - rest.size()) + rest.sliced(1);
}

} // namespace

QDate Invocation::day(QLatin1StringView option) const
{
    const QDate day = QDate::fromString(value(option), Qt::ISODate);
    if (!day.isValid())
        throw CommandError(ExitCode::Usage, u"\"%1\" is not a day such as 2026-11-25."_s.arg(value(option)));
    return day;
}

std::optional<QString> requestedHelp(const QStringList& words)
{
    if (words.value(0) == "help"_L1)
        return words.size() > 1 && !words[1].startsWith(u'-') ? helpOf(verbOf(words[1])) : helpOfAll();
    // What follows "--" is data.
    const auto end = std::ranges::find(words, u"--"_s);
    const auto has = [&](QLatin1StringView option) {
        return std::find(words.begin(), end, option) != end;
    };
    if (has("--version"_L1))
        return u"norvane-shop %1\n"_s.arg(QCoreApplication::applicationVersion());
    if (!has("--help"_L1) && !has("-h"_L1))
        return std::nullopt;
    const auto all = verbs();
    const auto verb = std::ranges::find_if(all, [&](const Verb& each) { return words.front() == each.name; });
    return verb == all.end() ? helpOfAll() : helpOf(*verb);
}

std::pair<const Verb*, Invocation> parse(const QStringList& words)
{
    const QStringList ordered = verbFirst(words);
    const Verb& verb = verbOf(ordered.front());
    QCommandLineParser parser;
    addOptions(parser, commonOptions());
    addOptions(parser, verb.options);
    // The parser takes the first word for the program's name.
    if (!parser.parse(ordered))
        throw CommandError(ExitCode::Usage, parser.errorText() + u"\nUsage: "_s + usageOf(verb));
    Invocation invocation{parser.positionalArguments(), {}};
    checkOperands(verb, invocation.operands.size());
    for (const QString& name : parser.optionNames())
        invocation.options.insert(name, parser.value(name));
    checkValues(verb, invocation);
    return {&verb, invocation};
}

} // namespace norvane::command
