// Dialogs for the tests of the overlay forms: record the requests and give prepared answers.
#pragma once

#include "overlay/OverlayDialogs.h"

#include <deque>
#include <vector>

namespace norvane::test
{

/// Without an answer a dialog counts as cancelled.
class RecordingDialogs : public overlay::OverlayDialogs
{
public:
    std::vector<overlay::FileChoice> asked;
    std::deque<QString> files;
    std::deque<QColor> colours;
    std::deque<QFont> fonts;
    std::optional<overlay::PrinterChoice> printerChoice;

    QString file(const overlay::FileChoice& choice) override
    {
        asked.push_back(choice);
        return takeFront(files).value_or(QString());
    }
    std::optional<QColor> colour(const QColor& /*initial*/, const QString& /*title*/) override
    {
        return takeFront(colours);
    }
    std::optional<QFont> font(const QFont& /*initial*/) override { return takeFront(fonts); }
    std::optional<overlay::PrinterChoice> printer(const overlay::PrinterChoice& /*initial*/) override
    {
        return printerChoice;
    }

private:
    template <typename Answer>
    static std::optional<Answer> takeFront(std::deque<Answer>& queue)
    {
        if (queue.empty())
            return {};
        const Answer answer = queue.front();
        queue.pop_front();
        return answer;
    }
};

} // namespace norvane::test
