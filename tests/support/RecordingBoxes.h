// Boxes for the tests: records what was shown and gives prepared answers.
#pragma once

#include "platform/Boxes.h"

#include <deque>
#include <functional>
#include <vector>

namespace norvane::test
{

struct ShownBox {
    QString text;
    QString title;
    BoxIcon icon = BoxIcon::None;
    BoxAnswer preset = BoxAnswer::Yes; ///< of a question
    bool operator==(const ShownBox&) const = default;
};

/// Answers Yes/No and typed texts in the order in which they were put in; a question without an answer counts
/// as No, any other box without one as cancelled.
class RecordingBoxes : public Boxes
{
public:
    std::vector<ShownBox> shown;
    std::deque<bool> answers;
    std::deque<UnsavedAnswer> unsavedAnswers;
    std::deque<QString> typed;
    int beeps = 0;
    /// Runs while a box is open, to check the windows below it.
    std::function<void(const ShownBox&)> whileOpen;

    void message(const QString& text, const QString& title, BoxIcon icon) override
    {
        record({text, title.isEmpty() ? applicationTitle() : title, icon});
    }
    bool ask(const QString& text, const QString& title, BoxIcon icon, BoxAnswer preset) override
    {
        record({text, title, icon, preset});
        return takeFront(answers);
    }
    /// Closes the box if there is no answer.
    std::optional<bool> askBeforeGoingOn(const QString& text, const QString& title) override
    {
        record({text, title, BoxIcon::Question, BoxAnswer::Yes});
        return answers.empty() ? std::nullopt : std::optional(takeFront(answers));
    }
    bool choose(const QString& text, const QString& title, const QString& first,
                const QString& second) override
    {
        record({text + QLatin1String(" [") + first + QLatin1Char('|') + second + QLatin1Char(']'), title,
                BoxIcon::Exclamation});
        return takeFront(answers);
    }
    UnsavedAnswer askToSave(const QString& text, const QString& title) override
    {
        record({text + QLatin1String(" [Save|Discard|Cancel]"), title, BoxIcon::Exclamation});
        return takeFront(unsavedAnswers);
    }
    bool confirm(const QString& text, const QString& title) override
    {
        record({text + QLatin1String(" [OK|Cancel]"), title, BoxIcon::Question});
        return takeFront(answers);
    }
    QString input(const QString& prompt, const QString& title, const QString& /*initial*/) override
    {
        record({prompt, title, BoxIcon::None});
        return takeFront(typed);
    }
    QString fileToOpen(const FileRequest& request) override
    {
        record({request.title, request.filter, BoxIcon::None});
        return takeFront(typed);
    }
    QString fileToSave(const FileRequest& request) override { return fileToOpen(request); }
    void beep() override { ++beeps; }

private:
    void record(ShownBox box)
    {
        if (whileOpen) {
            whileOpen(box);
        }
        shown.push_back(std::move(box));
    }
    template <typename Answer>
    static Answer takeFront(std::deque<Answer>& queue)
    {
        if (queue.empty()) {
            return {};
        }
        Answer answer = queue.front();
        queue.pop_front();
        return answer;
    }
};

} // namespace norvane::test
