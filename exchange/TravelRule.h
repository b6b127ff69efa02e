// Which differences between a customer and a register a send would leave as they are.
#pragma once

#include "programme/PartWalk.h"
#include "records/FileProcedures.h"
#include "records/RecordEcho.h"

#include <QHash>

#include <optional>

namespace norvane::exchange
{

/// For the fields of one table. Some travel in one direction only, and some values do not come back as they
/// were sent.
class TravelRule
{
public:
    /// @param here the customer's database; @p there what was fetched. All must outlive this.
    TravelRule(const records::RegisterFile& file, store::Database& here, store::Database& there,
               const records::ProcedureContext& context);

    /// Why a send would not change @p field at the register, in words; empty if it would.
    /// @throws RuntimeFailure as RecordEcho
    [[nodiscard]] QString reason(const programme::DifferentField& field);
    /// Whether a send would change @p field at the register to another value than the one here, and to which.
    /// For the fields of the record that reason() was asked about last.
    [[nodiscard]] bool hasArrival(const QString& field) const { return m_arrivals.contains(field); }
    [[nodiscard]] QString arrival(const QString& field) const { return m_arrivals.value(field); }

private:
    /// What is the same for all records.
    struct Known {
        QString oneWay;
        store::FieldDefinition field;
    };
    [[nodiscard]] const Known& known(const QString& field);

    const records::RegisterFile& m_file;
    store::Database& m_here;
    store::Database& m_there;
    const records::ProcedureContext& m_context;
    store::TableDefinition m_table;
    QHash<QString, Known> m_known;
    std::optional<records::RecordEcho> m_echo; ///< made for the first difference
    QHash<QString, QString> m_arrivals;
    store::Value m_key; ///< of the record with these arrivals
};

} // namespace norvane::exchange
