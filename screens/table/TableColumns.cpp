// See TableColumns.h.
#include "screens/table/TableColumns.h"

#include "platform/Numbers.h"
#include "register/PluNumber.h"
#include "screens/ComboRows.h"
#include "screens/RegisterRules.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr int usualDecimals = 2; ///< of a decimal box whose screen file does not say

/// Columns of the list whose width is 0 are hidden.
QString shownEntry(const QStringList& row, const QStringList& widths)
{
    QStringList shown;
    for (qsizetype column = 0; column < row.size(); ++column) {
        if (column >= widths.size() || toNumber(widths[column]) != 0)
            shown += row[column].trimmed();
    }
    return shown.join(u' ').trimmed();
}

QVector<ListEntry> entriesOf(const ControlDefinition& control, store::Database& database)
{
    const auto rows =
        control.sqlCriteria.isEmpty() ? rowsOfList(control.list) : rowsOfQuery(database, control.sqlCriteria);
    const int valueColumn = control.valueColumn.isEmpty() ? 0 : toWholeNumber(control.valueColumn);
    const QStringList widths = control.columnWidths.split(u';', Qt::SkipEmptyParts);
    QVector<ListEntry> entries;
    for (const QStringList& row : rows) {
        const auto number = store::Value::text(row.value(valueColumn)).toDecimal();
        entries += {store::Value::decimal(number), shownEntry(row, widths)};
    }
    return entries;
}

QString numberText(const TableColumn& column, const store::Value& value)
{
    const std::string plain = value.toUtf8();
    const auto number = plain.empty() ? std::optional(Decimal()) : Decimal::tryParse(plain);
    if (!number)
        return QString::fromStdString(plain);
    if (column.kind() == ControlKind::Decimal)
        return QString::fromStdString(number->text(column.decimals()));
    const QString whole = QString::fromStdString(number->rounded(0).text());
    return whole.rightJustified(column.control.digits.value_or(1), u'0');
}

bool isShown(const ControlDefinition& control)
{
    const bool isHeld = control.kind != ControlKind::Label && control.kind != ControlKind::Find &&
                        control.kind != ControlKind::Grid;
    return isHeld && control.visible.value_or(false) && !control.dataField.trimmed().isEmpty();
}

QString keyFieldOf(const store::TableDefinition& table, const QString& index)
{
    const auto found = std::ranges::find_if(table.indexes, [&](const store::IndexDefinition& known) {
        return known.names.contains(index, Qt::CaseInsensitive);
    });
    return found == table.indexes.end() ? QString() : found->field;
}

} // namespace

bool TableColumn::isEditable() const
{
    return !isKey && !control.readOnly.value_or(false) && control.enabled.value_or(true);
}

QString TableColumn::whyLocked() const
{
    if (isKey)
        return u"%1 is changed only on the record's screen. Enter opens it"_s.arg(label);
    return control.readOnly.value_or(false) ? u"%1 is only shown, on the record's screen too"_s.arg(label)
                                            : u"%1 is not an option of this register"_s.arg(label);
}

bool TableColumn::isOfDigits() const
{
    return isNumber() || control.characters.compare("NUMERIC"_L1, Qt::CaseInsensitive) == 0;
}

int TableColumn::decimals() const
{
    return kind() == ControlKind::Decimal ? control.decimals.value_or(usualDecimals) : 0;
}

const ListEntry* TableColumn::entryOf(const store::Value& value) const
{
    const auto number = Decimal::tryParse(value.toUtf8());
    const auto found = std::ranges::find_if(
        entries, [&number](const ListEntry& entry) { return number && entry.value.toDecimal() == *number; });
    return found == entries.end() ? nullptr : &*found;
}

QString TableColumn::text(const store::Value& value) const
{
    switch (kind()) {
    case ControlKind::Integer:
    case ControlKind::Decimal:
        return numberText(*this, value);
    case ControlKind::Check:
        return value.isTrue() ? u"Yes"_s : QString();
    case ControlKind::Combo: {
        const ListEntry* const entry = entryOf(value);
        return entry ? entry->shown : value.toText();
    }
    default:
        return isKey ? shownKey(field.name, value.toText()) : value.toText();
    }
}

TableSource tableSource(store::Database& database, const ScreenReader& file, const ApplicationValues& values,
                        const std::function<QString(const QString& field)>& labelOf)
{
    const store::TableDefinition table = database.table(file.table().table);
    TableSource source{table.name, keyFieldOf(table, file.table().firstIndex), {}};
    for (ControlDefinition& control : file.controls()) {
        const auto* const field = store::fieldNamed(table, control.dataField.trimmed());
        const bool isKnown = field && std::ranges::any_of(source.columns, [field](const TableColumn& column) {
                                 return column.field.name == field->name;
                             });
        if (!field || isKnown || !isShown(control))
            continue;
        fitToRegister(control, table.name, values);
        TableColumn column{control, *field, labelOf(field->name), {}, field->name == source.keyField};
        if (control.kind == ControlKind::Combo)
            column.entries = entriesOf(control, database);
        source.columns += column;
    }
    return source;
}

} // namespace norvane::screens
