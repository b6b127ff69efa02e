// See KeyDatabase.h.
#include "keys/KeyDatabase.h"

#include "platform/FilePaths.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{

std::shared_ptr<store::Database> openCustomerDatabase(ApplicationValues& values)
{
    values.databasePath = joinPath(values.customerPath, u"velmar.mdb"_s);
    return std::make_shared<store::Database>(values.databasePath);
}

} // namespace norvane::keys
