// One command line of convert, checked: what is turned into what, by which layout.
#pragma once

#include "tools/bank/Model.h"

#include <QStringList>

namespace bank
{

struct Operation {
    enum class Direction { ToText, ToBinary, ReportToText };

    Model model = Model::Velmaro;
    QString source; ///< name in the working directory
    QString target;
    QString word; ///< u67 and the like
    Direction direction = Direction::ToText;
    int code = 0; ///< layout code, or number of the report
};

/// @param words the command line without the program's name
/// @throws ToolFailure for a missing word, a wrong model word or an unknown operation
[[nodiscard]] Operation parseOperation(const QStringList& words);

} // namespace bank
