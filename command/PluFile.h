// The lines of a file of PLUs as they were typed.
#pragma once

#include "command/PluColumns.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace norvane::command
{

/// Why a file cannot be imported.
struct PluMistake {
    qint64 line = 0; ///< of the file, counted from 1
    QString column;  ///< its heading; empty when it is about the whole line
    QString reason;
};

struct PluLine {
    qint64 line = 0;
    std::string number;             ///< as the table keeps it
    std::vector<std::string> cells; ///< one for each column of the file, UTF-8
};

struct PluFile {
    std::vector<const PluColumn*> columns;
    std::vector<PluLine> lines;       ///< each of another number
    std::vector<PluMistake> mistakes; ///< lines that could not be read are missing above
};

/// Reads CSV in UTF-8, with commas or semicolons. A line of headings names the columns, in any order and
/// case; up to four lines before it, such as a title, are passed over. So are empty lines.
[[nodiscard]] PluFile readPluFile(const QByteArray& content);

} // namespace norvane::command
