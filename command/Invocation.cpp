// See Invocation.h.
#include "command/Invocation.h"

#include <QCommandLineParser>

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

QString optionLines(std::span<const OptionDefinition> options)
{
    QString lines;
    for (const auto& option : options) {
        const QString name = u"--%1 %2"_s.arg(option.name, option.value).trimmed();
        lines += u"    "_s + name.leftJustified(optionColumn) + option.text + u'\n';
    }
    return lines;
}

} // namespace

std::pair<const Verb*, Invocation> parse(const QStringList& words)
{
    if (words.isEmpty())
        throw CommandError(ExitCode::Usage, helpText());
    const Verb& verb = verbOf(words.front());
    QCommandLineParser parser;
    addOptions(parser, commonOptions());
    addOptions(parser, verb.options);
    // The parser takes the first word for the program's name.
    if (!parser.parse(words))
        throw CommandError(ExitCode::Usage, parser.errorText() + u"\nUsage: "_s + usageOf(verb));
    Invocation invocation{parser.positionalArguments(), {}};
    checkOperands(verb, invocation.operands.size());
    for (const QString& name : parser.optionNames())
        invocation.options.insert(name, parser.value(name));
    return {&verb, invocation};
}

QString helpText()
{
    QString text = u"norvane-shop: the Norvane utility without a window.\n\n"_s;
    for (const Verb& verb : verbs())
        text += usageOf(verb) + u"\n    "_s + verb.text + u'\n' + optionLines(verb.options);
    text += u"\nWith every command:\n"_s + optionLines(commonOptions()) + u"\nExit codes:\n"_s;
    for (const auto& meaning : exitMeanings())
        text += u"    %1  %2\n"_s.arg(static_cast<int>(meaning.code)).arg(meaning.text);
    return text;
}

} // namespace norvane::command
