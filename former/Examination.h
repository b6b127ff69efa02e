// What a former database holds and what of it would be lost, found by reading it once.
#pragma once

#include "former/FormerReader.h"

#include <QDate>
#include <QDateTime>
#include <QStringList>
#include <QVector>

#include <chrono>

namespace norvane::former
{

/// A table of which fewer or more records can be read than its definition promises; -1 promised for one whose
/// definition is damaged.
struct ShortTable {
    QString name;
    qint64 promised = 0;
    qint64 read = 0;
};

/// A value of which its field can hold only a part, or nothing.
struct UnfitValue {
    QString table;
    qint64 record = 0; ///< counted from 1, as the file has them
    QString field;
    QString value;      ///< its beginning
    QString kept;       ///< what the field would hold; empty for nothing
    bool isKey = false; ///< of a field that may not be empty: the whole record is left out
};

/// A table of the file that the catalogue has.
struct FoundTable {
    QString name;
    qint64 records = 0;
};

struct Examination {
    QDateTime fileTime; ///< of the last change before the file was read
    QString format;     ///< the year of the format: "1997" or "2000"
    QVector<FoundTable> tables;
    qint64 recordCount = 0; ///< of the tables
    QDate firstSales;       ///< invalid without sales
    QDate lastSales;
    QStringList unknownTables;
    QStringList unknownFields; ///< "PLUDATA.notes"
    QVector<ShortTable> shortTables;
    QVector<UnfitValue> unfitValues; ///< the first of them
    qint64 unfitCount = 0;
    bool isOpen = false; ///< velmar.ldb is beside it: the former program works with it, or did not close it
    std::chrono::milliseconds readingTime{0};
};

/// At most so many values are named; the others are only counted.
inline constexpr qsizetype mostUnfitValues = 1000;

/// Reads the database at @p path.
/// @throws FormerError, also FormerProblem::NotOurs for a file without a table of PLUs.
[[nodiscard]] Examination examine(const QString& path, const QString& programFolder,
                                  const KeepGoing& keepGoing = {});

} // namespace norvane::former
