// See TerminalBoxes.h.
#include "command/TerminalBoxes.h"

#include "command/ExitCode.h"
#include "platform/Excerpt.h"

#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#else
#include <io.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// Texts of boxes end a line with a carriage return.
QString lines(QString text)
{
    return visibleControls(text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').trimmed());
}

} // namespace

bool isTerminal(Output output)
{
    std::FILE* const file = output == Output::Standard ? stdout : stderr;
#ifdef Q_OS_UNIX
    return isatty(fileno(file)) != 0;
#else
    return _isatty(_fileno(file)) != 0;
#endif
}

void print(const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        throw CommandError(ExitCode::Unwritable,
                           u"Standard output could not be written: %1."_s.arg(qt_error_string()));
    }
}

void printMessage(const QString& text)
{
    std::fprintf(stderr, "%s\n", lines(text).toLocal8Bit().constData());
}

void printStep(const QString& text)
{
    if (isTerminal(Output::Error) && !text.isEmpty())
        printMessage(text);
}

void TerminalBoxes::message(const QString& text, const QString& title, BoxIcon /*icon*/)
{
    printMessage(title.isEmpty() ? text : u"%1: %2"_s.arg(title, text));
}

bool TerminalBoxes::ask(const QString& text, const QString& title, BoxIcon /*icon*/, BoxAnswer /*preset*/)
{
    printMessage(u"%1: %2\nAnswered No."_s.arg(title, lines(text)));
    return false;
}

bool TerminalBoxes::answerByOption(const QString& text, const QString& title, QLatin1StringView option)
{
    const bool isYes = m_options.contains(option);
    const QString answer = isYes ? u"Answered Yes by --%1."_s : u"Answered No. To answer Yes, add --%1."_s;
    printMessage(u"%1: %2\n%3"_s.arg(title, lines(text), answer.arg(option)));
    return isYes;
}

QString TerminalBoxes::input(const QString& prompt, const QString& title, const QString& /*initial*/)
{
    printMessage(u"%1: %2\nLeft empty."_s.arg(title, prompt));
    return {};
}

QString TerminalBoxes::fileToOpen(const FileRequest& request)
{
    return input(request.title, {}, {});
}

QString TerminalBoxes::fileToSave(const FileRequest& request)
{
    return input(request.title, {}, {});
}

} // namespace norvane::command
