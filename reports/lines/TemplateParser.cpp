// See TemplateParser.h.
#include "reports/lines/TemplateParser.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

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

} // namespace

TextTemplate parseTemplate(QStringView text, const FieldSlots& fields)
{
    return TemplateParser(text, fields).part(0, text.size());
}

} // namespace norvane::reports
