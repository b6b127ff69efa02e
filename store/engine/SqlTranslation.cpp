// Splits a statement into words, changes those that differ and puts it together again; see SqlTranslation.h.
#include "store/engine/SqlTranslation.h"

#include <QDate>
#include <QRegularExpression>
#include <QVector>

#include <algorithm>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

enum class SqlKind { Word, Name, Text, Blank, Sign };

struct SqlToken {
    SqlKind kind;
    QString text; ///< of a text: its characters without the quotes

    [[nodiscard]] bool isWord(const char* word) const
    {
        return kind == SqlKind::Word && text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    }
    [[nodiscard]] bool isSign(char sign) const
    {
        return kind == SqlKind::Sign && text.size() == 1 && text.at(0) == QLatin1Char(sign);
    }
};

using SqlTokens = QVector<SqlToken>;

class Splitter
{
public:
    explicit Splitter(const QString& sql) : m_sql(sql) {}

    SqlTokens tokens()
    {
        SqlTokens tokens;
        while (m_at < m_sql.size())
            tokens.append(next());
        return tokens;
    }

private:
    static bool isWordPart(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

    SqlToken next()
    {
        const QChar c = m_sql.at(m_at);
        if (c.isSpace())
            return {SqlKind::Blank, takeWhile([](QChar each) { return each.isSpace(); })};
        if (c.isDigit())
            return {SqlKind::Word, takeWhile([](QChar each) { return isWordPart(each) || each == u'.'; })};
        if (isWordPart(c))
            return {SqlKind::Word, takeWhile(isWordPart)};
        if (c == u'[')
            return {SqlKind::Name, takeThrough(u']')};
        if (c == u'\'' || c == u'"')
            return {SqlKind::Text, takeText(c)};
        return c == u'#' ? dayOrSign() : takeSign();
    }

    SqlToken takeSign()
    {
        SqlToken sign{SqlKind::Sign, m_sql.mid(m_at, 1)};
        ++m_at;
        return sign;
    }

    SqlToken dayOrSign()
    {
        static const QRegularExpression day(u"\\G#\\s*(\\d{1,2}/\\d{1,2}/\\d{4})\\s*#"_s);
        const auto match = day.match(m_sql, m_at);
        if (!match.hasMatch())
            return takeSign();
        m_at = match.capturedEnd();
        // Days in statements have the month first, whatever the machine's locale.
        const QDate date = QDate::fromString(match.captured(1), u"M/d/yyyy"_s);
        return {SqlKind::Text, date.toString(Qt::ISODate)};
    }

    template <typename Test>
    QString takeWhile(Test test)
    {
        const auto begin = m_at;
        while (m_at < m_sql.size() && test(m_sql.at(m_at)))
            ++m_at;
        return m_sql.mid(begin, m_at - begin);
    }

    QString takeThrough(QChar end)
    {
        const auto begin = m_at;
        const auto found = m_sql.indexOf(end, m_at);
        m_at = found < 0 ? m_sql.size() : found + 1;
        return m_sql.mid(begin, m_at - begin);
    }

    /// A doubled quote means one.
    QString takeText(QChar quote)
    {
        QString text;
        for (++m_at; m_at < m_sql.size(); ++m_at) {
            if (m_sql.at(m_at) == quote) {
                if (m_at + 1 >= m_sql.size() || m_sql.at(m_at + 1) != quote)
                    break;
                ++m_at;
            }
            text += m_sql.at(m_at);
        }
        ++m_at;
        return text;
    }

    const QString& m_sql;
    qsizetype m_at = 0;
};

/// The next token after @p at that is not a blank; the number of tokens when there is none.
qsizetype nextAfter(const SqlTokens& tokens, qsizetype at)
{
    do {
        ++at;
    } while (at < tokens.size() && tokens.at(at).kind == SqlKind::Blank);
    return at;
}

void dropEnd(SqlTokens& tokens)
{
    while (!tokens.isEmpty() && (tokens.last().kind == SqlKind::Blank || tokens.last().isSign(';')))
        tokens.removeLast();
    while (!tokens.isEmpty() && tokens.first().kind == SqlKind::Blank)
        tokens.removeFirst();
}

/// "delete * from x" and "delete x.* from x".
void dropStarOfDelete(SqlTokens& tokens)
{
    if (tokens.isEmpty() || !tokens.first().isWord("delete"))
        return;
    const auto from =
        std::find_if(tokens.begin(), tokens.end(), [](const SqlToken& t) { return t.isWord("from"); });
    if (from == tokens.end())
        return;
    tokens.erase(tokens.begin() + 1, from);
    tokens.insert(1, {SqlKind::Blank, u" "_s});
}

void moveTopToLimit(SqlTokens& tokens)
{
    const auto top = nextAfter(tokens, 0);
    const auto count = nextAfter(tokens, top);
    if (tokens.isEmpty() || !tokens.first().isWord("select") || count >= tokens.size() ||
        !tokens.at(top).isWord("top"))
        return;
    const QString limit = tokens.at(count).text;
    tokens.erase(tokens.begin() + top, tokens.begin() + count + 1);
    tokens.append({SqlKind::Word, u" LIMIT "_s + limit});
}

void changeWords(SqlTokens& tokens)
{
    struct Replacement {
        const char* word;
        const char* instead;
    };
    static constexpr Replacement replacements[] = {
        {"true", "-1"}, {"yes", "-1"}, {"false", "0"}, {"no", "0"}, {"distinctrow", ""}};
    for (auto& token : tokens) {
        for (const auto& each : replacements) {
            if (token.isWord(each.word))
                token.text = QString::fromLatin1(each.instead);
        }
        if (token.isSign('&')) {
            token.text = u"||"_s;
        } else if (token.isSign('!')) {
            token.text = u"."_s;
        }
    }
}

void changeWildcards(SqlTokens& tokens)
{
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const auto pattern = nextAfter(tokens, i);
        if (tokens.at(i).isWord("like") && pattern < tokens.size() &&
            tokens.at(pattern).kind == SqlKind::Text)
            tokens[pattern].text.replace(u'*', u'%').replace(u'?', u'_');
    }
}

/// The name in a token; empty if it is not a name.
QString nameOf(const SqlToken& token)
{
    if (token.kind == SqlKind::Name)
        return token.text.mid(1, token.text.size() - 2);
    return token.kind == SqlKind::Word ? token.text : QString();
}

void noteDeletion(const SqlTokens& tokens, TranslatedSql& translated)
{
    if (tokens.isEmpty() || !tokens.first().isWord("delete"))
        return;
    const auto from =
        std::find_if(tokens.begin(), tokens.end(), [](const SqlToken& t) { return t.isWord("from"); });
    const auto table = nextAfter(tokens, from - tokens.begin());
    if (table >= tokens.size())
        return;
    translated.deletesFrom = nameOf(tokens.at(table));
    translated.deletesAll = table == tokens.size() - 1;
}

QString joined(const SqlTokens& tokens)
{
    QString sql;
    for (const auto& token : tokens) {
        if (token.kind == SqlKind::Text) {
            sql += u'\'' + QString(token.text).replace(u'\'', u"''"_s) + u'\'';
        } else {
            sql += token.text;
        }
    }
    return sql;
}

/// Where the chosen columns end: the first "from" outside of brackets.
qsizetype fromOf(const SqlTokens& tokens)
{
    int depth = 0;
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        depth += tokens.at(i).isSign('(') ? 1 : tokens.at(i).isSign(')') ? -1 : 0;
        if (depth == 0 && tokens.at(i).isWord("from"))
            return i;
    }
    return tokens.size();
}

bool isOneOf(const SqlToken& token, std::initializer_list<const char*> words)
{
    return std::any_of(words.begin(), words.end(), [&token](const char* word) { return token.isWord(word); });
}

bool joinsOrGroups(const SqlTokens& tokens, qsizetype from)
{
    const bool hasWord = std::any_of(tokens.begin(), tokens.end(), [](const SqlToken& token) {
        return isOneOf(token, {"distinct", "group", "having", "union", "join", "intersect", "except"});
    });
    // A second table or a query in the place of a table.
    const auto end = std::find_if(tokens.begin() + from, tokens.end(), [](const SqlToken& token) {
        return isOneOf(token, {"where", "order", "limit"});
    });
    return hasWord || std::any_of(tokens.begin() + from, end, [](const SqlToken& token) {
               return token.isSign(',') || token.isSign('(');
           });
}

QString withRowIdOf(const SqlTokens& tokens)
{
    const auto from = fromOf(tokens);
    if (tokens.isEmpty() || !tokens.first().isWord("select") || from == tokens.size() ||
        joinsOrGroups(tokens, from))
        return {};
    SqlTokens extended = tokens;
    extended.insert(from, {SqlKind::Word, u", _rowid_ "_s});
    return joined(extended);
}

} // namespace

TranslatedSql translateSql(const QString& statement)
{
    SqlTokens tokens = Splitter(statement).tokens();
    dropEnd(tokens);
    dropStarOfDelete(tokens);
    moveTopToLimit(tokens);
    changeWords(tokens);
    changeWildcards(tokens);
    const bool changes = !tokens.isEmpty() && isOneOf(tokens.first(), {"delete", "update", "insert"});
    TranslatedSql translated{joined(tokens), withRowIdOf(tokens), changes};
    noteDeletion(tokens, translated);
    return translated;
}

QString loneTableName(const QString& statement)
{
    SqlTokens tokens = Splitter(statement).tokens();
    dropEnd(tokens);
    if (tokens.size() != 1)
        return {};
    return nameOf(tokens.first());
}

} // namespace norvane::store
