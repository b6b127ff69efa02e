// Asks the user what becomes of the tables when an import fails.
#pragma once

#include "platform/Boxes.h"
#include "store/Database.h"

#include <functional>

namespace norvane::records
{

/// Runs @p import in the open @p transaction. When a failure passes through it, asks whether to keep what was
/// read: the box shows the failure and then what @p question gives, which is called only then; empty text
/// asks nothing. No, the preset answer, puts the tables back as they were; Yes calls @p commit, which commits
/// the transaction. The failure passes on in either case. Without one the transaction stays open for the
/// caller to commit. A process that is killed keeps nothing.
void importOrPutBack(store::Transaction& transaction, Boxes& boxes, const std::function<QString()>& question,
                     const std::function<void()>& import, const std::function<void()>& commit);
/// The same with a plain commit.
void importOrPutBack(store::Transaction& transaction, Boxes& boxes, const std::function<QString()>& question,
                     const std::function<void()>& import);

/// The question about a register file's text that replaces a table of @p former records, after @p read of
/// them; empty text when the table was empty and nothing was read.
[[nodiscard]] QString keepRecordsQuestion(const QString& textName, qint64 read, qint64 former);

} // namespace norvane::records
