// Reads a whole database of the former program, in a process of its own.
#pragma once

#include "platform/KeepGoing.h"
#include "platform/TextError.h"

#include <QString>
#include <QVector>

#include <span>
#include <string_view>

namespace norvane::former
{

/// Why a former database is not converted.
enum class FormerProblem {
    NotReadable, ///< there is no such file, or it may not be read
    NotFormer,   ///< not a database of the former engine, or its first pages are damaged
    NewerFormat, ///< of 2007 or later
    Password,
    NotOurs,    ///< a database of another program
    Unreadable, ///< the reader crashed, hung or wrote nonsense
    NoReader,   ///< norvane-former is missing beside the program
    Cancelled,
    Changed, ///< the file changed while it was read
};

/// Ends reading or conversion; nothing was changed.
class FormerError : public TextError
{
public:
    /// @param text names the file and the reason.
    FormerError(FormerProblem problem, const QString& text) : TextError(text), m_problem(problem) {}
    [[nodiscard]] FormerProblem problem() const { return m_problem; }

private:
    FormerProblem m_problem;
};

/// Kinds of former fields, by what their values look like.
enum class FieldKind { YesNo, Whole, Number, Decimal, Date, Text, Other };

/// A field of a former table.
struct FormerField {
    QString name;
    FieldKind kind = FieldKind::Other;
};

/// A former table as its definition says.
struct FormerTable {
    QString name;
    qint64 recordCount = 0; ///< that the definition promises
    QVector<FormerField> fields;
};

/// Receives what a former database holds, table by table.
class FormerContents
{
public:
    virtual ~FormerContents() = default;
    virtual void setFormat(const QString& year) = 0;
    virtual void beginTable(const FormerTable& table) = 0;
    /// A record: the raw values of all fields (see FormerValues.h). They are valid during the call.
    virtual void takeRow(std::span<const std::string_view> values) = 0;
    /// @param read the records that were read, which may be fewer than the definition promises.
    virtual void endTable(qint64 read) = 0;
    /// The file lists a table whose definition is damaged.
    virtual void takeUnreadableTable(const QString& name) = 0;
};

/// Reads the file at @p path with norvane-former, which is in @p programFolder or beside the running program.
/// @throws FormerError, and what @p contents throws.
void readFormerFile(const QString& path, const QString& programFolder, FormerContents& contents,
                    const KeepGoing& keepGoing = {});

} // namespace norvane::former
