// Makes a database of ours from one of the former program.
#pragma once

#include "former/Examination.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace norvane::former
{

/// What a conversion did.
struct Converted {
    qint64 records = 0;
    /// "PLUDATA, record 12: 000000000000001001": records with the key of one before them, or with none.
    QStringList leftOut;
    QString keptAs;     ///< file name under which the former database is kept beside the new one
    QString reportFile; ///< file name of the list of what was left out, in the same folder
};

/// Called now and then with the records stored so far. @return false to cancel.
using ConversionProgress = std::function<bool(qint64 stored)>;

/// Makes a new velmar.mdb from the one in the folder @p customerPath, which is kept as velmar.former.mdb with
/// every byte. Values that do not fit are cut or left out as @p found lists them; records that cannot be read
/// are missing. The new file takes its place in one step: whatever happens, the folder always holds either
/// the old or the complete new database under the name velmar.mdb.
/// @throws FormerError, with FormerProblem::Changed if the file changed since @p found was made, and
/// RuntimeFailure with Failure::DiskFull, Failure::PathOrFileAccess ...; the folder is then as it was.
Converted convertDatabase(const QString& customerPath, const QString& programFolder, const Examination& found,
                          const ConversionProgress& progress = {});

} // namespace norvane::former
