// The sales reports of the registers: consolidated for collection, added up into one set of files, cleared.
#pragma once

#include "tools/bank/Bank.h"
#include "tools/bank/RegisterFile.h"
#include "tools/bank/Totals.h"

#include <QByteArray>

#include <map>
#include <vector>

namespace bank
{

/// The five reports in the order in which they are asked for.
[[nodiscard]] const std::vector<int>& reportFiles();

/// Moves the open totals to the consolidated ones.
/// @return false if those of an earlier run still wait; they and the open totals are then unchanged.
[[nodiscard]] bool consolidateReports(const Register& target);

/// Deletes the consolidated totals. @throws ToolFailure 15 if they cannot be removed
void clearReports(const Register& target);

/// The consolidated totals of several registers, added up. The first register defines the layout of the PLU
/// report; price levels of the others beyond it are counted with its last one.
class Collection
{
public:
    /// @throws ToolFailure when the register's files or totals cannot be read
    void add(const Register& source);
    [[nodiscard]] std::vector<RegisterFile> files() const;

private:
    void addByPlace(const Register& source, const Totals& totals);
    void addPlus(const Register& source, const Totals& totals);
    [[nodiscard]] RegisterFile fileByPlace(int report, std::size_t numbers) const;
    [[nodiscard]] RegisterFile fileOfPlus() const;

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

/// The text form of a collected file, a line for each record. @throws ToolFailure for anything else
[[nodiscard]] QByteArray reportText(const RegisterFile& file);

} // namespace bank
