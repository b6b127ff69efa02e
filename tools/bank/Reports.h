// The sales reports of a register: open totals, what is consolidated for collection, and the collected files.
//
// totals/NNN.txt and consolidated/NNN.txt hold one line of comma-separated numbers for each item; those of
// report 194 begin with the PLU number. An absent line counts as zeros.
#pragma once

#include "tools/bank/Bank.h"
#include "tools/bank/RegisterFile.h"

#include <QByteArray>
#include <QList>

#include <map>
#include <vector>

namespace bank
{

/// Numbers are thousandths, so that weights and money add up exactly.
using Numbers = std::vector<qint64>;

/// The five reports in the order in which they are asked for.
[[nodiscard]] const std::vector<int>& reportFiles();

/// Items of the financial report, and of each clerk's block.
constexpr int financialItems = 118;

/// Moves the open totals over to be collected.
/// @return false when those of an earlier run still wait; they and the open totals then stay as they are.
[[nodiscard]] bool consolidateReports(const Register& target);

/// Forgets the consolidated totals. @throws ToolFailure 15 when they cannot be removed
void clearReports(const Register& target);

/// The consolidated totals of several registers, added up.
class Collection
{
public:
    /// @throws ToolFailure when the register's files or totals cannot be read
    void add(const Register& source);
    [[nodiscard]] std::vector<RegisterFile> files() const;

private:
    void addPlus(const Register& source);

    struct Plu {
        QByteArray description;
        Numbers numbers;
    };

    bool m_first = true;
    Model m_model = Model::Velmaro;
    quint8 m_stamp = 0;
    std::map<int, std::vector<Numbers>> m_byPlace;
    std::map<QByteArray, Plu> m_plus;
};

/// The text form of a collected file, a line for each record. @throws ToolFailure for what is none
[[nodiscard]] QByteArray reportText(const RegisterFile& file);

} // namespace bank
