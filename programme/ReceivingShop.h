// The shops that parts of another shop's programme can be copied to.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/FolderLock.h"
#include "programme/PartComparison.h"

#include <QStringList>

#include <memory>
#include <optional>

namespace norvane::programme
{

/// The customers of the program's folder @p appPath whose database can be opened, without the one whose
/// folder is
/// @p own.
[[nodiscard]] QStringList receivingShops(const QString& appPath, const QString& own);

/// One of them. First lock() or not, then compare(), then copy().
class ReceivingShop
{
public:
    /// @param shop names the customer, its folder and database.
    /// @throws RuntimeFailure as Database and registerModel().
    explicit ReceivingShop(ApplicationValues shop);

    [[nodiscard]] const QString& name() const { return m_values.customerName; }
    [[nodiscard]] const QString& folder() const { return m_values.customerPath; }

    /// Keeps other runs away while this lives. @throws RuntimeFailure with Failure::DatabaseLocked if one is
    /// at work, Failure::PathOrFileAccess if the folder cannot be written.
    void lock();
    /// @param from must outlive this. @throws RuntimeFailure as PartComparison.
    void compare(const ShopData& from, const ChosenParts& parts, const KeepGoing& keepGoing);
    /// As of the last compare().
    [[nodiscard]] const PartComparison& comparison() const { return *m_comparison; }
    /// Copies from the shop named @p from, see copyParts(). @return what was done.
    QString copy(const QString& from, const KeepGoing& keepGoing) const;

private:
    ApplicationValues m_values;
    store::Database m_database;
    const RegisterModel& m_model;
    std::unique_ptr<FolderLock> m_lock;
    std::optional<PartComparison> m_comparison;
};

} // namespace norvane::programme
