// Storing, and the exchange of the files; see Conversion.h.
#include "former/Conversion.h"

#include "base/ApplicationValues.h"
#include "former/ConversionReport.h"
#include "former/FormerValues.h"
#include "former/TablePlan.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "store/sales/RowAppend.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <filesystem>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::former
{
namespace
{

using store::Database;
using store::Recordset;
using store::Value;

const auto unfinishedName = u"velmar.converting"_s;

[[noreturn]] void failChanged(const QString& path)
{
    throw FormerError(FormerProblem::Changed,
                      u"%1 changed while it was read. Close the former program and try again."_s.arg(
                          QDir::toNativeSeparators(path)));
}

/// Stores table after table, each of which is added to the file when its definition is read.
class Storing : public FormerContents
{
public:
    Storing(Database& database, const store::CommitOnExit& open, Converted& done)
        : m_database(database), m_open(open), m_done(done)
    {
    }

    void setFormat(const QString& /*year*/) override {}

    void beginTable(const FormerTable& table) override
    {
        m_former = table;
        m_record = 0;
        if (!m_plans.plan(m_plan, table))
            return;
        m_database.addTable(m_plan.table);
        m_records.emplace(m_database.openTable(m_plan.table.name));
        if (!m_plan.table.searchedField.isEmpty())
            m_append.emplace(m_database, m_open, m_plan.table.name);
    }

    void takeRow(std::span<const std::string_view> values) override
    {
        ++m_record;
        if (!m_records)
            return;
        m_records->addNew();
        for (std::size_t field = 0; field < m_plan.columnOfField.size(); ++field)
            setField(static_cast<int>(field), values);
        store();
    }

    void endTable(qint64 /*read*/) override
    {
        m_append.reset();
        m_records.reset();
    }
    void takeUnreadableTable(const QString& /*name*/) override {}

private:
    void setField(int field, std::span<const std::string_view> values)
    {
        const int column = m_plan.columnOfField[static_cast<std::size_t>(field)];
        const auto& definition = m_plan.table.fields.at(field);
        (void)convertValue(m_value, values[static_cast<std::size_t>(column)], m_former.fields.at(column).kind,
                           definition, m_plan.table.name);
        // A field that may not be empty keeps what a new record holds.
        if (!m_value.isNull() || !definition.required)
            m_records->setValue(field, std::move(m_value));
    }

    void store()
    {
        try {
            m_records->update();
            ++m_done.records;
        } catch (const RuntimeFailure& failure) {
            if (failure.failure() != Failure::DuplicateKey &&
                failure.failure() != Failure::RequiredFieldIsNull)
                throw;
            const QString key = m_records->value(m_plan.table.indexes.constFirst().field).toText();
            m_done.leftOut << u"%1, record %2: %3"_s.arg(m_plan.table.name).arg(m_record).arg(key);
            m_records->cancelUpdate();
        }
    }

    Database& m_database;
    const store::CommitOnExit& m_open;
    Converted& m_done;
    TablePlans m_plans;
    TablePlan m_plan;
    FormerTable m_former;
    std::optional<Recordset> m_records;       ///< of a table that the catalogue knows
    std::optional<store::RowAppend> m_append; ///< of a table of sales
    Value m_value;
    qint64 m_record = 0;
};

/// In one transaction, which is fast; the caller removes a file that is not complete.
Converted storeAll(const QString& from, const QString& to, const QString& programFolder,
                   const ConversionProgress& progress)
{
    Converted done;
    Database::create(to, {});
    Database database(to);
    store::CommitOnExit transaction(database);
    Storing storing(database, transaction, done);
    readFormerFile(from, programFolder, storing,
                   [&] { return !progress || progress(done.records + done.leftOut.size()); });
    transaction.commit();
    return done;
}

/// A free name for the former database: an earlier conversion may have left one.
QString freeName(const QDir& folder)
{
    QString name = u"velmar.former.mdb"_s;
    for (int number = 2; folder.exists(name); ++number)
        name = u"velmar.former-%1.mdb"_s.arg(number);
    return name;
}

void failWith(const std::error_code& error, const QString& path)
{
    if (error) {
        throw RuntimeFailure(Failure::PathOrFileAccess,
                             u"Path/File access error: %1 (%2)"_s.arg(
                                 QDir::toNativeSeparators(path), QString::fromLocal8Bit(error.message())));
    }
}

std::filesystem::path nativePath(const QString& path)
{
    return std::filesystem::path(path.toStdU16String());
}

/// Gives the former database a second name. Where a file can have only one, a copy is made.
void keepFormer(const QString& path, const QString& kept)
{
    std::error_code error;
    std::filesystem::create_hard_link(nativePath(path), nativePath(kept), error);
    if (!error)
        return;
    std::filesystem::copy_file(nativePath(path), nativePath(kept), error);
    if (error)
        QFile::remove(kept);
    failWith(error, kept);
}

/// The name velmar.mdb goes from the old file to the new one in one step.
QString exchangeFiles(const QString& folder, const QString& former, const QString& made)
{
    QString kept = freeName(QDir(folder));
    const QString keptPath = joinPath(folder, kept);
    keepFormer(former, keptPath);
    std::error_code error;
    std::filesystem::rename(nativePath(made), nativePath(former), error);
    if (error)
        QFile::remove(keptPath);
    failWith(error, former);
    return kept;
}

} // namespace

Converted convertDatabase(const QString& customerPath, const QString& programFolder, const Examination& found,
                          const ConversionProgress& progress)
{
    const QString former = existingPath(joinPath(customerPath, databaseFileName));
    const QString made = joinPath(customerPath, unfinishedName);
    auto removeMade = qScopeGuard([&made] { QFile::remove(made); });
    Converted done = storeAll(former, made, programFolder, progress);
    if (QFileInfo(former).lastModified() != found.fileTime ||
        done.records + done.leftOut.size() != found.recordCount)
        failChanged(former);
    done.keptAs = exchangeFiles(customerPath, former, made);
    removeMade.dismiss();
    done.reportFile = writeConversionReport(customerPath, found, done);
    return done;
}

} // namespace norvane::former
