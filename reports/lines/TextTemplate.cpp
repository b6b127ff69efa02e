// See TextTemplate.h.
#include "reports/lines/TextTemplate.h"

#include "register/PluNumber.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

const store::Value& fieldAt(const LineFields& fields, Slot slot)
{
    return fields.at(static_cast<std::size_t>(slot));
}

using Parts = std::vector<TextTemplate::Part>;

bool isAnySet(const Parts& parts, const CellFormat& format, const LineFields& fields)
{
    return std::ranges::any_of(parts, [&](const auto& part) {
        return part.slot && !format.text(fieldAt(fields, *part.slot)).isEmpty();
    });
}

/// @return nullptr if there are no words for the value.
const Parts* wordsFor(const std::vector<Parts>& words, const store::Value& value)
{
    if (words.size() == 1)
        return namesNothing(value) ? nullptr : &words.front();
    const double number = value.toNumber();
    return number >= 0 && number < static_cast<double>(words.size())
               ? &words[static_cast<std::size_t>(number)]
               : nullptr;
}

struct MadeText {
    QString text;
    bool endsInLayout = false; ///< the last word is one of the layout, not of a field
};

MadeText textOfParts(const Parts& parts, const CellFormat& format, const LineFields& fields)
{
    MadeText made;
    const auto add = [&made](const QString& text, bool isOfLayout) {
        made.text += text;
        if (!text.trimmed().isEmpty())
            made.endsInLayout = isOfLayout;
    };
    for (const auto& [fixed, slot, words, names] : parts) {
        if (!slot) {
            add(fixed, true);
        } else if (names) {
            add(names->names.value(NameList::keyOf(fieldAt(fields, *slot))), false);
        } else if (words.empty()) {
            add(format.text(fieldAt(fields, *slot)), false);
        } else if (const auto* const chosen = wordsFor(words, fieldAt(fields, *slot))) {
            const MadeText inner = textOfParts(*chosen, format, fields);
            add(inner.text, inner.endsInLayout);
        }
    }
    return made;
}

/// Takes away a comma of the layout after which no further word came. A shop's own text keeps its comma.
QString withoutLastComma(const MadeText& made)
{
    const QString trimmed = made.text.trimmed();
    return made.endsInLayout && trimmed.endsWith(u',') ? trimmed.chopped(1) : trimmed;
}

} // namespace

bool NameList::isOfKeys() const
{
    return name.table->name == "NLU"_L1 && name.name() == "NLU"_L1;
}

QString NameList::keyOf(const store::Value& number)
{
    return unfilledNumber(number.toText().trimmed());
}

QString textOf(const TextTemplate& text, const CellFormat& format, const LineFields& fields)
{
    return withoutLastComma(textOfParts(text.parts, format, fields));
}

QString textOf(const LineText& text, const LineFields& fields)
{
    if (!text.missing.isEmpty() && !isAnySet(text.text.parts, text.format, fields))
        return textOf(text.missing, {FormatKind::Digits, 0, 0, {}}, fields);
    QString made = textOf(text.text, text.format, fields);
    for (const auto& further : text.further) {
        const QString more = textOf(further, text.format, fields);
        made += made.isEmpty() || more.isEmpty() ? more : u", "_s + more;
    }
    return made;
}

bool namesNothing(const store::Value& value)
{
    if (value.isText())
        return std::ranges::all_of(value.textView(), [](char c) { return c == '0' || c == ' '; });
    return value.isNull() || value.toNumber() == 0;
}

} // namespace norvane::reports
