// The words in which the catalogue's tables are written, one row for a field or for a numbered group of
// fields. Only the Catalogue*.cpp files use them; everybody else reads store/catalogue/Catalogue.h.
#pragma once

#include "store/engine/Definitions.h"

#include <array>
#include <span>

namespace norvane::store::rows
{

/// A field as the catalogue writes it.
struct CatalogueField {
    const char* name = nullptr;
    FieldType type = FieldType::Text;
    int size = 0;
    const char* defaultText = "";
    bool required = false;
};

/// A row of a table: a field, or fields that are repeated with a number in their names.
struct FieldRow {
    std::array<CatalogueField, 3> fields{};
    int times = 0; ///< 0: once, with the unchanged name

    constexpr FieldRow(CatalogueField field) : fields{field} {}
    constexpr FieldRow(int count, CatalogueField first, CatalogueField second, CatalogueField third)
        : fields{first, second, third}, times(count)
    {
    }
};

/// The fields in turn for 1, then 2, up to @p times. The number replaces the "*" in their names.
constexpr FieldRow numbered(int times, CatalogueField first, CatalogueField second = {},
                            CatalogueField third = {})
{
    return {times, first, second, third};
}

constexpr CatalogueField flag(const char* name)
{
    return {name, FieldType::YesNo};
}
/// A whole number of up to 9 digits: what a number box on a screen can hold.
constexpr CatalogueField whole(const char* name)
{
    return {name, FieldType::Long};
}
/// A whole number of 10 to 15 digits: a double holds each exactly, and a decimal box without places shows it.
/// A box for whole numbers ends at 2,147,483,647.
constexpr CatalogueField longNumber(const char* name)
{
    return {name, FieldType::Double};
}
/// A number with decimal places.
constexpr CatalogueField decimal(const char* name)
{
    return {name, FieldType::Double};
}
/// A whole number of more than 15 digits, which no number type keeps exactly.
constexpr CatalogueField digits(const char* name, int size)
{
    return {name, FieldType::Digits, size};
}
constexpr CatalogueField text(const char* name, int size)
{
    return {name, FieldType::Text, size};
}
/// A number held as text: what the price utilities leave, such as " 1.5", must read back unchanged. Wide
/// enough for any quotient of a price and an exchange rate.
constexpr CatalogueField price(const char* name)
{
    return text(name, 20);
}
/// What the register reports of its memory, kept as it came.
constexpr CatalogueField reported(const char* name)
{
    return text(name, 20);
}
constexpr CatalogueField date(const char* name)
{
    return {name, FieldType::Date};
}
constexpr CatalogueField counter(const char* name)
{
    return {name, FieldType::Counter};
}
constexpr CatalogueField mustBeSet(CatalogueField field)
{
    field.required = true;
    return field;
}
/// May not be null; starts as "0", so it is null only when somebody makes it so.
constexpr CatalogueField zeroUnlessSet(CatalogueField field)
{
    field.defaultText = "0";
    return mustBeSet(field);
}

/// Lines of messages are 40 characters on the widest printer.
constexpr int messageLine = 40;

/// A table in the catalogue's rows.
struct TableRow {
    const char* name = nullptr;
    std::span<const FieldRow> fields;
    std::array<const char*, 2> indexNames{}; ///< of the one index; none for a table that is only appended to
    const char* indexField = nullptr;
    const char* searchedField = nullptr; ///< see TableDefinition
};

[[nodiscard]] std::span<const TableRow> productTables();
[[nodiscard]] std::span<const TableRow> keyTables();
[[nodiscard]] std::span<const TableRow> optionTables();
[[nodiscard]] std::span<const TableRow> printOptionTables();
[[nodiscard]] std::span<const TableRow> messageTables();
[[nodiscard]] std::span<const TableRow> staffTables();
[[nodiscard]] std::span<const TableRow> collectedTables();

} // namespace norvane::store::rows
