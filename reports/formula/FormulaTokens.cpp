// See FormulaTokens.h.
#include "reports/formula/FormulaTokens.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr int mostNesting = 100;
/// The part of a token that a message repeats, in characters.
constexpr qsizetype longestShown = 40;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isOfNumber(QChar c)
{
    return isDigit(c) || c == u'.';
}

bool isOfWord(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

QString shown(const FormulaToken& token)
{
    if (token.kind == TokenKind::End)
        return u"the formula ends"_s;
    return u"\"%1\" was found"_s.arg(token.text.left(longestShown));
}

} // namespace

FormulaError::FormulaError(qsizetype column, const QString& mistake)
    : TextError(u"column %1: %2"_s.arg(column).arg(mistake))
{
}

FormulaTokens::FormulaTokens(QStringView formula, const store::TableDefinition* own)
    : m_formula(formula), m_own(own)
{
    read();
}

qsizetype FormulaTokens::lengthWhile(bool (*belongs)(QChar)) const
{
    const auto* begin = m_formula.begin() + m_at;
    return std::find_if_not(begin, m_formula.end(), belongs) - begin;
}

void FormulaTokens::readPlain(TokenKind kind, qsizetype length)
{
    m_current = {kind, m_formula.mid(m_at, length), m_at + 1};
    m_at += length;
}

void FormulaTokens::readEnclosed(TokenKind kind, QChar end, const QString& what)
{
    const qsizetype close = m_formula.indexOf(end, m_at + 1);
    if (close < 0)
        throw FormulaError(m_at + 1, u"%1 is not closed by %2"_s.arg(what, end));
    m_current = {kind, m_formula.mid(m_at + 1, close - m_at - 1), m_at + 1};
    m_at = close + 1;
}

void FormulaTokens::read()
{
    m_at += lengthWhile([](QChar c) { return c.isSpace(); });
    if (m_at == m_formula.size()) {
        m_current = {TokenKind::End, {}, m_at + 1};
        return;
    }
    const QChar first = m_formula.at(m_at);
    const QStringView two = m_formula.mid(m_at, 2);
    if (first == u'{') {
        readEnclosed(TokenKind::Field, u'}', u"a field's name"_s);
    } else if (first == u'"' || first == u'\'') {
        readEnclosed(TokenKind::Text, first, u"a text"_s);
    } else if (isOfNumber(first)) {
        readPlain(TokenKind::Number, lengthWhile(isOfNumber));
    } else if (isOfWord(first)) {
        readPlain(TokenKind::Word, lengthWhile(isOfWord));
    } else if (two == u"<>" || two == u"<=" || two == u">=") {
        readPlain(TokenKind::Symbol, 2);
    } else if (QStringView(u"(),+-*/=<>").contains(first)) {
        readPlain(TokenKind::Symbol, 1);
    } else {
        throw FormulaError(m_at + 1, u"\"%1\" belongs in no formula"_s.arg(first));
    }
}

bool FormulaTokens::isSymbol(QStringView symbol) const
{
    return m_current.kind == TokenKind::Symbol && m_current.text == symbol;
}

bool FormulaTokens::isWord(QStringView word) const
{
    return m_current.kind == TokenKind::Word && m_current.text.compare(word, Qt::CaseInsensitive) == 0;
}

FormulaToken FormulaTokens::take()
{
    const FormulaToken token = m_current;
    read();
    return token;
}

bool FormulaTokens::takeSymbol(QStringView symbol)
{
    const bool isHere = isSymbol(symbol);
    if (isHere)
        read();
    return isHere;
}

bool FormulaTokens::takeWord(QStringView word)
{
    const bool isHere = isWord(word);
    if (isHere)
        read();
    return isHere;
}

void FormulaTokens::expectSymbol(QStringView symbol)
{
    if (!takeSymbol(symbol))
        failExpecting(u"\"%1\""_s.arg(symbol));
}

void FormulaTokens::expectEnd()
{
    if (m_current.kind != TokenKind::End)
        failExpecting(u"the end"_s);
}

FieldName FormulaTokens::takeField()
{
    if (m_current.kind != TokenKind::Field)
        failExpecting(u"a field such as {PLUSALES.ID}"_s);
    const auto field = findField(m_current.text, m_own);
    if (!field) {
        throw FormulaError(m_current.column,
                           u"there is no field {%1}"_s.arg(m_current.text.left(longestShown)));
    }
    read();
    return *field;
}

void FormulaTokens::failExpecting(const QString& what) const
{
    throw FormulaError(m_current.column, u"%1 is expected, but %2"_s.arg(what, shown(m_current)));
}

Nesting::Nesting(FormulaTokens& tokens) : m_tokens(tokens)
{
    if (tokens.m_depth == mostNesting) {
        throw FormulaError(tokens.current().column,
                           u"brackets are nested more than %1 deep"_s.arg(mostNesting));
    }
    ++tokens.m_depth;
}

} // namespace norvane::reports
