// What a register holds beside what a customer's tables hold.
#pragma once

#include "exchange/RegisterFetch.h"
#include "exchange/ScratchShop.h"
#include "platform/Boxes.h"
#include "platform/KeepGoing.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace norvane::store
{
class WorkHistory;
}
namespace norvane::records
{
struct RegisterFile;
}

namespace norvane::exchange
{

/// A field that is different, or a record or register file that is different or only in one of the two
/// places.
struct ComparedLine {
    QString table;  ///< empty for a file without a table
    QString record; ///< its key as users know it, or the name of the box
    QString key;    ///< as stored at the register; empty if the record is not there
    QString field;  ///< empty for a whole record or file
    QString here;
    QString there;
    QString remark; ///< for the user: "only here"
    /// The value travels in one direction only, so that a send would not change it.
    bool isOneWay = false;
};

/// Records of the register by table; without a key the only record of the table.
using RegisterRecords = QHash<QString, QStringList>;

/// A customer and what was fetched for it. Reads both databases whenever it is asked, and keeps neither open.
class RegisterComparison
{
public:
    /// @param customer whose settings, open database and kept files are compared.
    RegisterComparison(ApplicationValues customer, std::unique_ptr<ScratchShop> scratch,
                       FetchedFiles fetched);

    /// Calls @p take with each difference, table by table and by key, until it returns false.
    /// @throws RuntimeFailure with Failure::UserInterrupt when @p keepGoing returns false, and as the
    /// databases report.
    void forEach(const std::function<bool(const ComparedLine& line)>& take,
                 const KeepGoing& keepGoing = {}) const;
    /// What the user must know beside the differences: what did not come, and what is not compared.
    [[nodiscard]] QStringList notes() const;
    [[nodiscard]] const FetchedFiles& fetched() const { return m_fetched; }
    [[nodiscard]] const ApplicationValues& customer() const { return m_customer; }

    /// Stores the register's values of @p records in the customer's open database, all or none, except those
    /// that travel in one direction only. Locks the customer, makes a safety copy and writes a line of the
    /// log.
    /// @param history for undo; may be nullptr
    /// @return what was done, in words. Without lock or copy a message was shown and nothing is stored.
    /// @throws RuntimeFailure as the databases report; nothing is stored then.
    QString useRecords(const RegisterRecords& records, Boxes& boxes, store::WorkHistory* history) const;

private:
    [[nodiscard]] bool listTable(const records::RegisterFile& file,
                                 const std::function<bool(const ComparedLine& line)>& take,
                                 const KeepGoing& keepGoing) const;

    ApplicationValues m_customer;
    std::unique_ptr<ScratchShop> m_scratch;
    FetchedFiles m_fetched;
};

} // namespace norvane::exchange
