// See CustomerFile.h.
#include "fuzz/CustomerFile.h"

#include "fuzz/Target.h"
#include "store/Catalogue.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{

const ApplicationValues& customer()
{
    static const ApplicationValues values = [] {
        const QString& folder = scratchFolder();
        ApplicationValues made{folder, u"SHOP"_s, folder, folder + u"/velmar.mdb"_s, {}};
        store::Database::create(made.databasePath, store::catalogue());
        return made;
    }();
    return values;
}

store::Database& customerDatabase()
{
    static store::Database database(customer().databasePath);
    return database;
}

void undone(const std::function<void()>& work)
{
    store::Transaction transaction(customerDatabase());
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
