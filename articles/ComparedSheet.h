// A file of records beside the table that it is for.
#pragma once

#include "articles/SheetComparison.h"
#include "articles/SheetContent.h"

#include <QDate>

#include <memory>
#include <optional>

namespace norvane::articles
{

/// The day on which a file is to be stored.
struct StoreDay {
    QDate day;
    QString customerPath; ///< of the lists that are planned until then
    int messageWidth;     ///< characters of a message line on the customer's registers
};

/// Owns all that a comparison needs: the file, which is read once, the sheet and the database. It may be
/// compared again, in another way or because records have changed meanwhile.
class ComparedSheet
{
public:
    /// @throws RuntimeFailure as the database reports.
    ComparedSheet(const QString& databasePath, TableSheet sheet, SheetContent content)
        : m_sheet(std::move(sheet)), m_content(std::move(content)), m_database(databasePath)
    {
    }
    ComparedSheet(const ComparedSheet&) = delete;
    ComparedSheet& operator=(const ComparedSheet&) = delete;

    [[nodiscard]] const TableSheet& sheet() const { return m_sheet; }
    [[nodiscard]] const SheetContent& content() const { return m_content; }
    [[nodiscard]] store::Database& database() { return m_database; }

    /// From now on compares with the records as they will be on @p day; nothing for those that are stored.
    void setDay(std::optional<StoreDay> day) { m_day = std::move(day); }
    /// Compares in the way of @p reading, whose format is that of the file. The former comparison remains if
    /// this one fails. @throws RuntimeFailure as SheetComparison.
    void compare(SheetReading reading, const KeepGoing& keepGoing = {});
    /// Compares again in the same way. @return whether the file would change the same as before.
    [[nodiscard]] bool isStillTrue(const KeepGoing& keepGoing = {});
    /// Only after compare().
    [[nodiscard]] const SheetComparison& comparison() const { return *m_comparison; }

private:
    [[nodiscard]] std::unique_ptr<SheetComparison> compared(const SheetReading& reading,
                                                            const KeepGoing& keepGoing);

    TableSheet m_sheet;
    SheetContent m_content;
    store::Database m_database;
    SheetReading m_reading;
    std::optional<StoreDay> m_day;
    std::unique_ptr<SheetComparison> m_comparison;
};

} // namespace norvane::articles
