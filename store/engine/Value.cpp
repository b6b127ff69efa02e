// What a value looks like as text, number and date, whichever kind it holds; see Value.h.
#include "store/engine/Value.h"

#include "platform/Numbers.h"
#include "store/engine/FieldConversion.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

template <class... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

double leadingNumberOf(const std::string& text)
{
    const auto plain = Decimal::plain(text);
    return plain ? plain->toDouble() : leadingNumber(QString::fromStdString(text));
}

} // namespace

bool Value::isTrue() const
{
    return std::visit(Overloaded{[](bool yes) { return yes; },
                                 [](std::int64_t number) { return number == -1; },
                                 [](double number) { return number == -1; },
                                 [](const Decimal& number) { return number == Decimal(-1, 0); },
                                 [](const auto&) {
                                     return false;
                                 }},
                      m_data);
}

QString Value::toText() const
{
    return QString::fromStdString(toUtf8());
}

std::string Value::toUtf8() const
{
    return std::visit(Overloaded{[](std::monostate) { return std::string(); },
                                 [](bool yes) { return std::string(yes ? "True" : "False"); },
                                 [](std::int64_t number) { return std::to_string(number); },
                                 [](double number) { return numberText(number).toStdString(); },
                                 [](const Decimal& number) { return number.text(); },
                                 [](const std::string& text) { return text; },
                                 [](QDate date) {
                                     return date.toString(u"dd/MM/yyyy"_s).toStdString();
                                 }},
                      m_data);
}

double Value::toNumber() const
{
    return std::visit(Overloaded{[](bool yes) { return yes ? -1.0 : 0.0; },
                                 [](std::int64_t number) { return static_cast<double>(number); },
                                 [](double number) { return number; },
                                 [](const Decimal& number) { return number.toDouble(); },
                                 [](const std::string& text) { return leadingNumberOf(text); },
                                 [](const auto&) {
                                     return 0.0;
                                 }},
                      m_data);
}

Decimal Value::toDecimal() const
{
    if (const auto* number = std::get_if<Decimal>(&m_data))
        return *number;
    return isText() ? Decimal::leading(textView()) : Decimal::leading(toUtf8());
}

QDate Value::toDate() const
{
    return std::visit(Overloaded{[](QDate date) { return date; },
                                 [](const std::string& text) { return dateOfText(text); },
                                 [](const auto&) {
                                     return QDate();
                                 }},
                      m_data);
}

std::string_view Value::textView() const
{
    const auto* text = std::get_if<std::string>(&m_data);
    return text ? std::string_view(*text) : std::string_view();
}

} // namespace norvane::store
