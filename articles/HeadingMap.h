// Which column of a table a heading of a file means: what the user chose before, or what it is called.
#pragma once

#include "articles/TableSheet.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace norvane::articles
{

/// What the user calls the columns, by their fields: the labels of the screen.
using ColumnNames = QHash<QString, QString>;

/// A field and its label on the screen.
struct FieldLabel {
    QString field;
    QString label;
};
/// Names that mean one column each, so that they can be the headings of a file: a label that another column
/// has, or that is the heading of another one, is followed by its field.
[[nodiscard]] ColumnNames columnNames(const TableSheet& sheet, const std::vector<FieldLabel>& labels);

/// The name of @p column for the user: that of the screen, or its heading where the screen does not show it.
[[nodiscard]] QString nameOf(const SheetColumn& column, const ColumnNames& names);

/// Columns by the headings of a file, in small letters; nullptr for a heading that is not imported.
using HeadingMap = QHash<QString, const SheetColumn*>;

/// The choices that a shop has made for the headings of its files, by table.
class HeadingMemory
{
public:
    /// @param path of an initialisation file, which need not exist.
    explicit HeadingMemory(QString path) : m_path(std::move(path)) {}
    /// That in the folder of a customer.
    [[nodiscard]] static HeadingMemory ofCustomer(const QString& customerPath);

    /// Adds what was chosen for headings of files like this one; columns that no longer exist are left out.
    void addTo(HeadingMap& map, const TableSheet& sheet, const QStringList& headings) const;
    /// @return false when the file cannot be written.
    bool keep(const HeadingMap& map, const TableSheet& sheet) const;

private:
    QString m_path;
};

/// The column that @p heading means: its name on the screen, its own heading or its field, in any case.
/// nullptr if there is none.
[[nodiscard]] const SheetColumn* columnMeantBy(const TableSheet& sheet, const ColumnNames& names,
                                               const QString& heading);

/// A column for each of @p headings, or nullptr. Each column is taken once: by the first that means it.
[[nodiscard]] HeadingMap proposedMap(const TableSheet& sheet, const ColumnNames& names,
                                     const QStringList& headings);

/// What a reader of the file needs: the table's headings by those of the file, empty for those to skip.
[[nodiscard]] QHash<QString, QString> headingsBy(const HeadingMap& map);

} // namespace norvane::articles
