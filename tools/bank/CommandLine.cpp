#include "tools/bank/CommandLine.h"

#include <QCoreApplication>

#include <cstdio>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace bank
{

CommandLine::CommandLine(const QList<QCommandLineOption>& options)
{
    m_parser.addHelpOption();
    m_parser.addPositionalArgument(u"folder"_s, u"Folder of the bank."_s);
    m_parser.addOptions(options);
    m_parser.process(QCoreApplication::arguments());
    if (m_parser.positionalArguments().size() != 1)
        throw std::runtime_error("one folder is needed, see --help");
}

quint64 CommandLine::number(const QString& option, quint64 least, quint64 most) const
{
    bool isNumber = false;
    const quint64 number = value(option).toULongLong(&isNumber);
    if (!isNumber || number < least || number > most)
        throw std::runtime_error(u"--%1 takes %2 to %3"_s.arg(option).arg(least).arg(most).toStdString());
    return number;
}

int CommandLine::number(const QString& option, int least, int most) const
{
    return static_cast<int>(number(option, static_cast<quint64>(least), static_cast<quint64>(most)));
}

int runTool(const char* name, const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", name, failure.what());
        return 1;
    }
    return 0;
}

} // namespace bank
