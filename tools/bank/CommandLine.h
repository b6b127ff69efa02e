// What the programs that fill a bank share: their command line and their end.
#pragma once

#include <QCommandLineParser>

#include <functional>

namespace bank
{

/// The words of the command line: the folder of a bank, and options.
class CommandLine
{
public:
    /// Ends the program with a message if the words contain an unknown option, and after "--help".
    /// @throws std::runtime_error if they do not name exactly one folder.
    explicit CommandLine(const QList<QCommandLineOption>& options);

    [[nodiscard]] QString folder() const { return m_parser.positionalArguments().first(); }
    [[nodiscard]] bool isSet(const QString& option) const { return m_parser.isSet(option); }
    [[nodiscard]] QString value(const QString& option) const { return m_parser.value(option); }
    /// @throws std::runtime_error if the value is not a number from @p least to @p most.
    [[nodiscard]] quint64 number(const QString& option, quint64 least, quint64 most) const;
    [[nodiscard]] int number(const QString& option, int least, int most) const;

private:
    QCommandLineParser m_parser;
};

/// Does the work of a program. A failure is printed on standard error after @p name, the program's.
/// @return the exit code.
int runTool(const char* name, const std::function<void()>& work);

} // namespace bank
