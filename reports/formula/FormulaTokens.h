// Cuts selection formulas and the expressions of layouts into tokens.
#pragma once

#include "platform/TextError.h"
#include "reports/formula/FieldName.h"

#include <QString>

namespace norvane::reports
{

/// A mistake in a formula. Columns count from 1.
class FormulaError : public TextError
{
public:
    /// The text becomes "column 12: ...".
    FormulaError(qsizetype column, const QString& mistake);
};

/// Kinds of tokens.
enum class TokenKind {
    End,
    Field,  ///< {TABLE.FIELD}; the text is without the braces
    Number, ///< digits with at most one point
    Text,   ///< the text is without the quotes, single or double
    Word,   ///< letters and digits
    Symbol  ///< brackets, comma and operators
};

/// A token of a formula.
struct FormulaToken {
    TokenKind kind = TokenKind::End;
    QStringView text;
    qsizetype column = 1;
};

/// Reads a formula from left to right, one token at a time. The formula must outlive it.
class FormulaTokens
{
public:
    /// @param own the table of fields named without a table. @throws FormulaError for a character that no
    /// token begins with, and for a brace or quote that is not closed; so do all functions that take a token.
    explicit FormulaTokens(QStringView formula, const store::TableDefinition* own = nullptr);

    [[nodiscard]] const FormulaToken& current() const { return m_current; }
    [[nodiscard]] bool isSymbol(QStringView symbol) const;
    [[nodiscard]] bool isWord(QStringView word) const; ///< without regard to case
    FormulaToken take();
    /// Takes the symbol or word if it is the current token.
    bool takeSymbol(QStringView symbol);
    bool takeWord(QStringView word);
    /// @throws FormulaError if it is not the current token.
    void expectSymbol(QStringView symbol);
    void expectEnd();
    /// The field at the current token. @throws FormulaError also for one that is not in the catalogue.
    FieldName takeField();
    /// @throws FormulaError with what is expected at the current token and what was found.
    [[noreturn]] void failExpecting(const QString& what) const;

private:
    friend class Nesting;
    [[nodiscard]] qsizetype lengthWhile(bool (*belongs)(QChar)) const;
    void read();
    void readEnclosed(TokenKind kind, QChar end, const QString& what);
    void readPlain(TokenKind kind, qsizetype length);

    QStringView m_formula;
    const store::TableDefinition* m_own;
    qsizetype m_at = 0;
    FormulaToken m_current;
    int m_depth = 0;
};

/// Counts how deep a parser is inside brackets: it makes one for each pair that it enters.
class Nesting
{
public:
    /// @throws FormulaError when the brackets are nested deeper than anybody writes by hand.
    explicit Nesting(FormulaTokens& tokens);
    ~Nesting() { --m_tokens.m_depth; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

private:
    FormulaTokens& m_tokens;
};

} // namespace norvane::reports
