// A field's value: null, yes/no, whole number, double, decimal, text or date.
#pragma once

#include "platform/Decimal.h"

#include <QDate>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace norvane::store
{

/// What a field holds or is given. Texts are UTF-8. A value carries no field type: the field converts it. A
/// decimal is only given, for no field holds one: text fields, such as prices, take its plain text, number
/// fields the nearest number.
class Value
{
public:
    Value() = default; ///< null

    [[nodiscard]] static Value yesNo(bool yes) { return Value(Data(yes)); }
    [[nodiscard]] static Value whole(std::int64_t number) { return Value(Data(number)); }
    [[nodiscard]] static Value number(double number) { return Value(Data(number)); }
    [[nodiscard]] static Value decimal(const Decimal& number) { return Value(Data(number)); }
    [[nodiscard]] static Value text(std::string utf8) { return Value(Data(std::move(utf8))); }
    [[nodiscard]] static Value text(const QString& text) { return Value(Data(text.toStdString())); }
    [[nodiscard]] static Value date(QDate date) { return Value(Data(date)); }

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(m_data); }
    [[nodiscard]] bool isYesNo() const { return std::holds_alternative<bool>(m_data); }
    [[nodiscard]] bool isWhole() const { return std::holds_alternative<std::int64_t>(m_data); }
    [[nodiscard]] bool isDouble() const { return std::holds_alternative<double>(m_data); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<std::string>(m_data); }
    [[nodiscard]] bool isDate() const { return std::holds_alternative<QDate>(m_data); }

    /// Equal to true: yes, or the number -1. A number 1 is not.
    [[nodiscard]] bool isTrue() const;
    /// Plain text: numbers in their shortest form, yes/no as "True" and "False", a date as dd/mm/yyyy, null
    /// as empty text.
    [[nodiscard]] QString toText() const;
    /// The same as UTF-8, for bulk work.
    [[nodiscard]] std::string toUtf8() const;
    /// The leading number of the text; yes counts as -1, null and no number as 0.
    [[nodiscard]] double toNumber() const;
    /// The leading number of the plain text, digit for digit. @throws RuntimeFailure with Failure::Overflow
    /// if it has more than 18 digits.
    [[nodiscard]] Decimal toDecimal() const;
    [[nodiscard]] QDate toDate() const;
    /// The text itself of a text value, empty otherwise. Lives as long as the value does.
    [[nodiscard]] std::string_view textView() const;

    using Data = std::variant<std::monostate, bool, std::int64_t, double, Decimal, std::string, QDate>;
    [[nodiscard]] const Data& data() const { return m_data; }
    /// To change the value in place. A walk reads row after row into one value, and a text keeps its memory.
    [[nodiscard]] Data& data() { return m_data; }
    bool operator==(const Value& other) const = default;

private:
    explicit Value(Data data) : m_data(std::move(data)) {}
    Data m_data;
};

} // namespace norvane::store
