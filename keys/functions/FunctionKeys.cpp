// Showing and saving by the tables of KeyOptions; see FunctionKeys.h.
#include "keys/functions/FunctionKeys.h"

#include "base/CustomerSettings.h"
#include "platform/FailurePlace.h"
#include "platform/Numbers.h"
#include "register/OptionDigits.h"
#include "store/engine/ShortWait.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr auto tableName = "FunctionKey"_L1;
constexpr auto descriptionField = "description"_L1;

/// Every key's amount is saved in hundredths, before the fields of the key itself.
constexpr int hundredths = 2;

/// In the order of NumberControl.
constexpr KeyControls::Number KeyControls::*numbers[] = {&KeyControls::Halo, &KeyControls::otherno,
                                                         &KeyControls::otherno2};

/// In the order of KeyField.
constexpr QLatin1StringView fieldNames[] = {"halo"_L1, "flag1"_L1, "flag2"_L1, "flag3"_L1, "flag4"_L1};

/// What a record is to hold, in the order of KeyField. A null text leaves a field as it is.
using FieldTexts = std::array<QString, std::size(fieldNames)>;

QString nameOf(KeyField field)
{
    return fieldNames[static_cast<int>(field)];
}

Decimal numberOf(const QString& text)
{
    return Decimal::leading(text.toStdString());
}

QString charactersOf(const QString& text, ShownFrom::Extent extent)
{
    switch (extent) {
    case ShownFrom::Extent::First:
        return text.left(1);
    case ShownFrom::Extent::Last:
        return text.right(1);
    case ShownFrom::Extent::All:
        break;
    }
    return text;
}

/// Rounded where the field has fractions of the number; else unchanged.
QString storedText(const Decimal& value, int scale)
{
    const Decimal stored = scale > 0 ? value.shifted(scale).rounded(0) : value;
    return QString::fromStdString(stored.text());
}

/// The amount as it is stored with every key. Null when the field cannot hold it: the rate of another key is
/// in the control then.
QString amountText(const Decimal& amount)
{
    const qint64 stored = amount.shifted(hundredths).toWhole();
    return stored > std::numeric_limits<qint32>::max() ? QString() : QString::number(stored);
}

/// Amount and boxes.
FieldTexts textsOf(const KeyControls& controls)
{
    std::array<int, flagCount> sums{};
    for (int index = 0; index < checkCount; ++index) {
        if (controls.Check1.at(index).ticked)
            sums.at(static_cast<std::size_t>(index / checksOfFlag)) += placeOf(index).amount();
    }
    FieldTexts texts{amountText(controls.Halo.value)};
    std::ranges::transform(sums, texts.begin() + 1, [](int sum) { return QString::number(sum); });
    return texts;
}

void putNumber(const NumberField& field, const Decimal& value, FieldTexts& texts)
{
    const QString number = storedText(value, field.scale);
    QString& text = texts.at(static_cast<std::size_t>(field.to.field));
    switch (field.to.manner) {
    case SavedTo::Manner::Replacing:
        text = number;
        break;
    case SavedTo::Manner::Adding:
        text = QString::number(text.toLongLong() + number.toLongLong());
        break;
    case SavedTo::Manner::Appending:
        text += number;
        break;
    }
}

RuntimeFailure noSuchRow(const QString& what)
{
    return {Failure::NoCurrentRecord,
            u"No current record. %1 Upload Function Keys from the ECR first."_s.arg(what)};
}

store::Recordset openKeys(store::Database& database)
{
    store::Recordset table = database.openTable(tableName);
    table.setIndex(u"primarykey"_s);
    if (table.recordCount() == 0)
        throw noSuchRow(u"Table %1 has no rows."_s.arg(tableName));
    return table;
}

void hideAll(KeyControls& controls)
{
    controls.Check1.fill({});
    for (const auto number : numbers)
        (controls.*number).visible = false;
    controls.Halo.caption = u"Halo"_s;
    controls.haloDigits = controls.standingHaloDigits;
}

void chooseDigits(HaloDigits digits, KeyControls& controls)
{
    constexpr int three = 3;
    if (digits == HaloDigits::NoneFromNow)
        controls.standingHaloDigits = 0;
    controls.haloDigits = digits == HaloDigits::Three ? three : controls.standingHaloDigits;
}

} // namespace

KeyControls::Number& KeyControls::number(NumberControl control)
{
    return this->*numbers[static_cast<int>(control)];
}

const KeyControls::Number& KeyControls::number(NumberControl control) const
{
    return this->*numbers[static_cast<int>(control)];
}

FunctionKeys::FunctionKeys(std::shared_ptr<store::Database> database, const ApplicationValues& values)
    : m_values(values), m_database(std::move(database)), m_table(openKeys(*m_database))
{
}

QVector<ListedItem> FunctionKeys::readItems()
{
    QVector<ListedItem> items;
    items.reserve(m_table.recordCount());
    for (m_table.moveFirst(); !m_table.atEnd(); m_table.moveNext())
        items += {m_table.value(u"id"_s).toText(), m_table.value(descriptionField).toText()};
    m_table.moveFirst();
    return items;
}

int FunctionKeys::descriptionLength() const
{
    return m_table.field(m_table.fieldOrdinal(descriptionField)).size;
}

void FunctionKeys::moveTo(qint64 position)
{
    const qint64 rows = m_table.recordCount();
    if (position < 1 || position > rows) {
        throw noSuchRow(u"Table %1 has %2 rows, but no row %3. Their numbers must run from 1 without a gap."_s
                            .arg(tableName)
                            .arg(rows)
                            .arg(position));
    }
    m_table.moveFirst();
    for (qint64 row = 1; row < position; ++row)
        m_table.moveNext();
}

void FunctionKeys::GetData(KeyControls& controls) const
{
    const auto explain = [this](const QString& text) {
        return u"Function key %1 of table %2 cannot be shown. %3 Upload Function Keys from the ECR again."_s
            .arg(id())
            .arg(tableName, text);
    };
    const RegisterModel& model = registerModelByText(m_values);
    hideAll(controls);
    controls.description = m_table.value(descriptionField).toText();
    atPlace(explain, [&] {
        show(optionsOf(id(), keyOptionsTo156()), model, controls);
        getdata2(model, controls);
    });
}

void FunctionKeys::getdata2(const RegisterModel& model, KeyControls& controls) const
{
    show(optionsOf(id(), keyOptionsFrom157()), model, controls);
}

void FunctionKeys::show(const KeyOptions* options, const RegisterModel& model, KeyControls& controls) const
{
    if (options == nullptr)
        return;
    for (const OptionBox& box : options->boxes) {
        if (includes(box.models, model))
            controls.Check1[box.index] = {true, box.caption, isSet(box.shownAs.value_or(box.index))};
    }
    for (const NumberField& field : options->numbers)
        showNumber(field, controls);
}

/// Whether the option of a place is set. Only the first two characters of a flag are option digits.
bool FunctionKeys::isSet(int index) const
{
    const OptionPlace place = placeOf(index);
    const QString digits = formatNumber(textOf(place.field), u"00");
    const int digit = digits.isEmpty() ? 0 : digits.at(place.left ? 0 : 1).digitValue();
    return DigitFlagSet(digit, place.weight);
}

void FunctionKeys::showNumber(const NumberField& field, KeyControls& controls) const
{
    const Decimal stored = numberOf(charactersOf(textOf(field.from.field), field.from.extent));
    controls.number(field.control) = {true, field.caption, stored.shifted(-field.scale), field.largest};
    if (field.control == NumberControl::Halo)
        chooseDigits(field.digits, controls);
}

void FunctionKeys::SaveData(const KeyControls& controls)
{
    const auto explain = [this](const QString& text) {
        return u"Function key %1 of table %2 was not saved. %3"_s.arg(id()).arg(tableName, text);
    };
    const store::ShortWait wait(*m_database);
    atPlace(explain, [&] { storeAll(controls); });
}

/// Each field is stored once: what a number replaces may be more than its field holds.
void FunctionKeys::storeAll(const KeyControls& controls)
{
    FieldTexts texts = textsOf(controls);
    if (const KeyOptions* const options = optionsOf(id())) {
        for (const NumberField& field : options->numbers)
            putNumber(field, controls.number(field.control).value, texts);
    }
    // A record that could not be stored must not remain open: it would show values that were not stored.
    const auto close = qScopeGuard([this] { m_table.cancelUpdate(); });
    m_table.edit();
    m_table.setValue(descriptionField, store::Value::text(controls.description));
    for (std::size_t field = 0; field < texts.size(); ++field) {
        if (const QString& text = texts.at(field); !text.isNull())
            m_table.setValue(fieldNames[field], store::Value::text(text));
    }
    m_table.update();
}

qint64 FunctionKeys::id() const
{
    return static_cast<qint64>(m_table.value(u"id"_s).toNumber());
}

QString FunctionKeys::textOf(KeyField field) const
{
    return m_table.value(nameOf(field)).toText();
}

} // namespace norvane::keys
