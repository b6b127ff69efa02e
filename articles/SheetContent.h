// A file of records as it comes from the user, before it is known what its columns mean.
#pragma once

#include "platform/KeepGoing.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace norvane::articles
{

/// The text of a file, whatever its format.
struct SheetContent {
    QByteArray text; ///< CSV; of a spreadsheet that of spreadsheetText()
    bool isFromSpreadsheet = false;
};

/// The line of a file that names its columns.
struct SheetHeadings {
    std::optional<char> separator; ///< nothing for an empty file
    QStringList headings;          ///< in the order of the file; some may be empty
};

/// Reads the CSV file or spreadsheet @p path.
/// @throws SpreadsheetError for a folder and for a file that cannot be read or is damaged, and RuntimeFailure
/// with Failure::UserInterrupt when @p keepGoing returns false.
[[nodiscard]] SheetContent sheetContent(const QString& path, const KeepGoing& keepGoing = {});

/// The line, among the first that are not empty, with the most headings that @p isKnown accepts. If it
/// accepts none, the first line with more than one filled cell: a title has one.
[[nodiscard]] SheetHeadings headingsOf(const SheetContent& content,
                                       const std::function<bool(const QString& heading)>& isKnown);

} // namespace norvane::articles
