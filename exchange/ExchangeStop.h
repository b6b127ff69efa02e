// Where an exchange stops, and why, in words for the log and the user.
#pragma once

#include "link/FailedStep.h"
#include "link/RunOutside.h"

#include <QList>
#include <QString>

#include <optional>

namespace norvane::exchange
{

/// Follows a run. A run that stops with no result and was not left was answered No.
struct ExchangeStop {
    QString place;             ///< in progress: "file 67", "the opening exchange"
    std::optional<int> box;    ///< that has the file
    std::optional<int> result; ///< of the tool
    bool isLeft = false;       ///< by the user

    /// "result 8: Time Out (register 2 does not answer)", "left by the user".
    [[nodiscard]] QString reason(const link::RunOutside& outside) const;
    /// "stopped at file 67: result 8: Time Out; still to do: PLU, Group". @p left are boxes.
    [[nodiscard]] QString inWords(const QString& reason, const QList<int>& left) const;
    /// The step that @p failure, a result, has ended. @param isInTurn as link::FailedStep has it
    [[nodiscard]] link::FailedStep failedStep(int failure, bool isInTurn) const;
};

} // namespace norvane::exchange
