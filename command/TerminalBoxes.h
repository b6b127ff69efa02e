// The program's boxes on a command line: texts on standard error, questions answered No.
#pragma once

#include "base/LossQuestion.h"
#include "platform/Boxes.h"

#include <QStringList>

namespace norvane::command
{

/// Every question of the program is worded so that No, or the second answer, loses nothing. An option of the
/// command line can answer Yes.
class TerminalBoxes : public Boxes, public AnswersByOption
{
public:
    /// @param options the names of the options that the command line has.
    explicit TerminalBoxes(QStringList options) : m_options(std::move(options)) {}

    void message(const QString& text, const QString& title, BoxIcon icon) override;
    bool ask(const QString& text, const QString& title, BoxIcon icon, BoxAnswer preset) override;
    QString input(const QString& prompt, const QString& title, const QString& initial) override;
    QString fileToOpen(const FileRequest& request) override;
    QString fileToSave(const FileRequest& request) override;
    void beep() override {}
    bool answerByOption(const QString& text, const QString& title, QLatin1StringView option) override;

private:
    QStringList m_options;
};

enum class Output { Standard, Error };
/// Whether somebody reads what is written there on a terminal.
[[nodiscard]] bool isTerminal(Output output);

/// Writes to standard output. @throws CommandError Unwritable when not all of it can be written.
void print(const QByteArray& bytes);
/// Writes a line to standard error.
void printMessage(const QString& text);
/// The same for the steps of a run, which a script does not need: only where standard error is a terminal.
void printStep(const QString& text);

} // namespace norvane::command
