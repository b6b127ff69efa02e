// Asks the user whether to keep or restore the tables when an import fails.
#pragma once

#include "platform/Boxes.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"

#include <functional>

namespace norvane::records
{

/// Runs @p import in the open @p transaction. On a failure, asks whether to keep what was read: the box shows
/// the failure and then the text of @p question, which is called only then; empty text asks nothing. No, the
/// default, restores the tables; Yes calls @p commit, which commits the transaction. The failure is rethrown
/// in either case. Without a failure the transaction remains open for the caller to commit. A killed process
/// keeps nothing.
void importOrPutBack(store::CommitOnExit& transaction, Boxes& boxes, const std::function<QString()>& question,
                     const std::function<void()>& import, const std::function<void()>& commit);
/// The same with a plain commit.
void importOrPutBack(store::CommitOnExit& transaction, Boxes& boxes, const std::function<QString()>& question,
                     const std::function<void()>& import);

/// The question about a register file's text that replaces a table of @p former records, after @p read of
/// them; empty text when the table was empty and nothing was read.
[[nodiscard]] QString keepRecordsQuestion(const QString& textName, qint64 read, qint64 former);

} // namespace norvane::records
