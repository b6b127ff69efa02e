// See CustomerFile.h.
#include "fuzz/CustomerFile.h"

#include "fuzz/Target.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/CommitOnExit.h"

#include <map>

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{

namespace
{

ApplicationValues customerHolding(const QVector<store::TableDefinition>& tables, const QString& databaseName)
{
    const QString& folder = scratchFolder();
    const QString path = folder + u'/' + databaseName;
    store::Database::create(path, tables);
    return {folder, u"SHOP"_s, folder, path, {}};
}

} // namespace

const ApplicationValues& customer()
{
    static const ApplicationValues values = customerHolding(store::catalogue(), u"velmar.mdb"_s);
    return values;
}

const ApplicationValues& customerWith(const QString& table)
{
    static std::map<QString, ApplicationValues> customers;
    auto found = customers.find(table);
    if (found == customers.end()) {
        auto made = customerHolding({*store::catalogueTable(table)}, table + u".mdb"_s);
        found = customers.emplace(table, std::move(made)).first;
    }
    return found->second;
}

store::Database& customerDatabase()
{
    static store::Database database(customer().databasePath);
    return database;
}

void undone(const std::function<void()>& work)
{
    store::CommitOnExit transaction(customerDatabase());
    work();
    transaction.rollBack();
}

void setModel(int model)
{
    static int set = -1;
    if (set != model)
        scratchFile(u"setup.ini"_s, "[SetupOption]\r\nECRModel=" + std::to_string(model) + "\r\n");
    set = model;
}

} // namespace norvane::fuzz
