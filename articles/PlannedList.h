// A list of changes to a table that are to be stored on a day, and its file.
#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

namespace norvane::articles
{

/// A planned change of a field.
struct PlannedField {
    QString heading; ///< of the column in a spreadsheet of the table
    QString before;  ///< as shownSheetValue() shows it; empty for what was never set
    QString after;   ///< the same

    bool operator==(const PlannedField&) const = default;
};

/// All planned changes of a record.
struct PlannedRecord {
    QString number; ///< as the table holds it
    bool isNew = false;
    QList<PlannedField> fields;

    bool operator==(const PlannedRecord&) const = default;
};

/// What is to be stored on a day.
struct PlannedList {
    QDate day;
    QString table;
    QString model;  ///< of the customer's registers when it was made
    QDateTime made; ///< without milliseconds
    QString source; ///< the file that it was made from
    QList<PlannedRecord> records;

    bool operator==(const PlannedList&) const = default;
};

/// The text of a list's file, which people can read and spreadsheets open: CSV with the facts about the list,
/// a line for each field, and a check of all lines before the last one.
[[nodiscard]] QByteArray plannedText(const PlannedList& list);
/// @throws SpreadsheetError for a text that is not exactly what plannedText() made.
[[nodiscard]] PlannedList plannedListOf(const QByteArray& text);

} // namespace norvane::articles
