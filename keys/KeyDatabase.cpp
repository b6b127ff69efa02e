// See KeyDatabase.h.
#include "keys/KeyDatabase.h"

#include "platform/FilePaths.h"

namespace norvane::keys
{

std::shared_ptr<store::Database> openCustomerDatabase(ApplicationValues& values)
{
    values.databasePath = joinPath(values.customerPath, databaseFileName);
    return std::make_shared<store::Database>(values.databasePath);
}

} // namespace norvane::keys
