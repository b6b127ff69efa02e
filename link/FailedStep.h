// A step of a run that a result of the transfer tool has ended, and what the user has to know about it.
#pragma once

#include <QString>

namespace norvane::link
{

struct FailedStep {
    int result = 0;
    QString place;         ///< "file 67 (PLU)", "Consolidate Reports"
    bool isInTurn = false; ///< it went to several registers, one after another
    QString next;          ///< what is left to do, as a sentence
};

/// What happened and where, which registers were served, what helps, and how to go on: one line each.
[[nodiscard]] QString inWords(const FailedStep& step);

} // namespace norvane::link
