// Where the program works and for which customer.
#pragma once

#include <QString>

namespace norvane
{

/// The file of a customer's database, in the customer's folder.
inline constexpr QLatin1StringView databaseFileName{"velmar.mdb"};

/// Plain values, created once by the program and passed to the code that needs them. Which routine sets which
/// value is part of the system's behaviour: a change of customer leaves databasePath as it was.
struct ApplicationValues {
    /// The program's folder (base/ProgramFolder.h), without a closing separator.
    QString appPath;
    /// The customer's folder name as typed or picked.
    QString customerName;
    /// Folder of the customer's setup.ini, database and register files.
    QString customerPath;
    /// The customer database in use. Set at the start and by the key editors only.
    QString databasePath;
    /// The kind of report for which the user picks a day ("DAILYPLU"); empty for a report over a fixed
    /// period. The price list does not set it and so keeps the value of the previous report.
    QString reportMode;
};

} // namespace norvane
