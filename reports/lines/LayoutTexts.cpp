// See LayoutTexts.h.
#include "reports/lines/LayoutTexts.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

const Join* joinOf(const ReportLayout& layout, const store::TableDefinition* table)
{
    const auto found = std::ranges::find(layout.joins, table, &Join::table);
    return found == layout.joins.end() ? nullptr : &*found;
}

/// Follows the joins back to the field of the report's own table by which the record of @p field is found.
FieldName rootOf(const ReportLayout& layout, FieldName field)
{
    while (const auto* join = joinOf(layout, field.table))
        field = join->of;
    return field;
}

class TemplateParser
{
public:
    TemplateParser(QStringView text, const FieldSlots& fields) : m_text(text), m_fields(fields) {}

    /// The characters from @p at to before @p end.
    TextTemplate part(qsizetype at, qsizetype end)
    {
        TextTemplate made;
        while (at < end) {
            const qsizetype open = m_text.indexOf(u'{', at);
            const qsizetype plainEnd = open < 0 || open > end ? end : open;
            if (plainEnd > at)
                made.parts.push_back({m_text.mid(at, plainEnd - at).toString(), {}, {}});
            at = plainEnd;
            if (at < end) {
                const qsizetype close = closeOf(open);
                made.parts.push_back(field(open, close));
                at = close + 1;
            }
        }
        return made;
    }

private:
    [[nodiscard]] qsizetype closeOf(qsizetype open) const
    {
        int depth = 0;
        for (qsizetype at = open; at < m_text.size(); ++at) {
            depth += m_text.at(at) == u'{' ? 1 : m_text.at(at) == u'}' ? -1 : 0;
            if (depth == 0)
                return at;
        }
        throw FormulaError(open + 1, u"a field's name is not closed by }"_s);
    }

    /// The next semicolon outside inner braces.
    [[nodiscard]] qsizetype endOfWords(qsizetype at, qsizetype close) const
    {
        while (at < close && m_text.at(at) != u';')
            at = m_text.at(at) == u'{' ? closeOf(at) + 1 : at + 1;
        return at;
    }

    TextTemplate::Part field(qsizetype open, qsizetype close)
    {
        const QStringView inside = m_text.mid(open + 1, close - open - 1);
        const qsizetype question = inside.indexOf(u'?');
        const QStringView names = question < 0 ? inside : inside.left(question);
        const qsizetype colon = names.indexOf(u':');
        const auto found = fieldNamed(colon < 0 ? names : names.left(colon), open + 1);
        TextTemplate::Part made{{}, m_fields.slotOf(found, open + 1), {}};
        if (colon >= 0)
            made.names = m_fields.namesOf(fieldNamed(names.mid(colon + 1), open + 1), open + 1);
        for (qsizetype at = open + 1 + question; question >= 0 && at < close;) {
            const qsizetype end = endOfWords(at + 1, close);
            made.words.push_back(part(at + 1, end).parts);
            at = end;
        }
        return made;
    }

    [[nodiscard]] FieldName fieldNamed(QStringView name, qsizetype column) const
    {
        const auto found = findField(name, m_fields.own);
        if (!found)
            throw FormulaError(column, u"there is no field {%1}"_s.arg(name));
        return *found;
    }

    QStringView m_text;
    const FieldSlots& m_fields;
};

std::shared_ptr<const NameList> nameListOf(ReportLayout& layout, const FieldName& name, qsizetype column)
{
    const auto same =
        std::ranges::find_if(layout.nameLists, [&name](const auto& list) { return list->name == name; });
    if (same != layout.nameLists.end())
        return *same;
    const auto& indexes = name.table->indexes;
    const auto key = indexes.isEmpty() ? std::nullopt : findField(indexes.first().field, name.table);
    if (!key)
        throw FormulaError(column, u"records of table %1 have no number"_s.arg(name.table->name));
    return layout.nameLists.emplace_back(std::make_shared<NameList>(NameList{name, *key, {}}));
}

} // namespace

std::vector<FieldName> parseFields(QStringView text, const store::TableDefinition* own)
{
    FormulaTokens tokens(text, own);
    std::vector<FieldName> fields;
    do {
        fields.push_back(tokens.takeField());
    } while (tokens.takeSymbol(u","));
    tokens.expectEnd();
    return fields;
}

std::optional<SortKey> parseSortKey(QStringView text, const store::TableDefinition* own)
{
    FormulaTokens tokens(text, own);
    SortKey key{tokens.takeField()};
    if (tokens.takeWord(u"descending")) {
        key.order = Order::Descending;
    } else if (tokens.takeWord(u"by") && tokens.takeWord(u"value")) {
        key.order = Order::ByValue;
    }
    if (tokens.current().kind != TokenKind::End)
        return std::nullopt;
    return key;
}

TextTemplate parseTemplate(QStringView text, const FieldSlots& fields)
{
    return TemplateParser(text, fields).part(0, text.size());
}

void checkField(const ReportLayout& layout, const LineSource& source, const FieldName& field,
                qsizetype column)
{
    if (!layout.reads(*field.table))
        throw FormulaError(column, u"the report does not read table %1"_s.arg(field.table->name));
    if (!source.addsUp() || (field.table == source.table && field.isNumber()))
        return;
    if (!source.isKey(rootOf(layout, field))) {
        throw FormulaError(
            column, u"%1 is not the same in all rows that make a line, and no number"_s.arg(field.text()));
    }
}

FieldSlots fieldSlots(ReportLayout& layout, LineSource& source)
{
    return {source.table,
            [&layout, &source](const FieldName& field, qsizetype column) {
                checkField(layout, source, field, column);
                return source.slotOf(field);
            },
            [&layout](const FieldName& name, qsizetype column) {
                return nameListOf(layout, name, column);
            }};
}

} // namespace norvane::reports
