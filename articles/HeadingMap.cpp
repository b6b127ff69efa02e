// See HeadingMap.h.
#include "articles/HeadingMap.h"

#include "platform/FilePaths.h"

#include <QSettings>

#include <algorithm>
#include <functional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

/// A name in an initialisation file is never empty, as a heading may be.
QString keyOfHeading(const TableSheet& sheet, const QString& heading)
{
    return u"%1/_%2"_s.arg(sheet.table, heading);
}

const SheetColumn* columnOfField(const TableSheet& sheet, const QString& field)
{
    const auto found = std::ranges::find(sheet.columns, field, &SheetColumn::field);
    return found == sheet.columns.end() ? nullptr : &*found;
}

bool isSameHeading(const QString& left, const QString& right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// Whether a file with this heading could mean another column than that of @p field.
bool meansAnother(const TableSheet& sheet, const ColumnNames& names, const QString& name,
                  const QString& field)
{
    const bool isName =
        std::ranges::any_of(names, [&](const QString& known) { return isSameHeading(known, name); });
    return isName || std::ranges::any_of(sheet.columns, [&](const SheetColumn& column) {
               return column.field != field &&
                      (isSameHeading(column.heading, name) || isSameHeading(column.field, name));
           });
}

} // namespace

ColumnNames columnNames(const TableSheet& sheet, const std::vector<FieldLabel>& labels)
{
    ColumnNames names;
    for (const auto& [field, label] : labels) {
        const bool isClear = !label.isEmpty() && !meansAnother(sheet, names, label, field);
        names.insert(field, isClear ? label : u"%1 (%2)"_s.arg(label, field).trimmed());
    }
    return names;
}

QString nameOf(const SheetColumn& column, const ColumnNames& names)
{
    return names.value(column.field, column.heading);
}

HeadingMemory HeadingMemory::ofCustomer(const QString& customerPath)
{
    return HeadingMemory(joinPath(customerPath, u"import.ini"_s));
}

void HeadingMemory::addTo(HeadingMap& map, const TableSheet& sheet, const QStringList& headings) const
{
    const QSettings settings(m_path, QSettings::IniFormat);
    for (const QString& heading : headings) {
        const QVariant kept = settings.value(keyOfHeading(sheet, heading.toLower()));
        const SheetColumn* const column = columnOfField(sheet, kept.toString());
        if (kept.isValid() && (column != nullptr || kept.toString().isEmpty()))
            map.insert(heading.toLower(), column);
    }
}

bool HeadingMemory::keep(const HeadingMap& map, const TableSheet& sheet) const
{
    QSettings settings(m_path, QSettings::IniFormat);
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        settings.setValue(keyOfHeading(sheet, entry.key()), entry.value() ? entry.value()->field : u""_s);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

const SheetColumn* columnMeantBy(const TableSheet& sheet, const ColumnNames& names, const QString& heading)
{
    for (const auto& name : {std::function([&](const SheetColumn& column) { return nameOf(column, names); }),
                             std::function([](const SheetColumn& column) { return column.heading; }),
                             std::function([](const SheetColumn& column) { return column.field; })}) {
        const auto found = std::ranges::find_if(
            sheet.columns, [&](const SheetColumn& column) { return isSameHeading(name(column), heading); });
        if (found != sheet.columns.end())
            return &*found;
    }
    return nullptr;
}

HeadingMap proposedMap(const TableSheet& sheet, const ColumnNames& names, const QStringList& headings)
{
    HeadingMap map;
    for (const QString& heading : headings) {
        const SheetColumn* const column = columnMeantBy(sheet, names, heading);
        const bool isTaken = std::ranges::find(std::as_const(map), column) != map.cend();
        if (!map.contains(heading.toLower()))
            map.insert(heading.toLower(), isTaken ? nullptr : column);
    }
    return map;
}

QHash<QString, QString> headingsBy(const HeadingMap& map)
{
    QHash<QString, QString> headings;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        headings.insert(entry.key(), entry.value() ? entry.value()->heading : QString());
    return headings;
}

} // namespace norvane::articles
