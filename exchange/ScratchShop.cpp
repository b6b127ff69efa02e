// See ScratchShop.h.
#include "exchange/ScratchShop.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{

namespace
{

[[noreturn]] void failNoFolder(const QString& reason)
{
    throw RuntimeFailure(Failure::PathOrFileAccess,
                         u"There is no room for a temporary folder: %1"_s.arg(reason));
}

/// Never in the working directory, where every folder is a customer.
QString folderTemplate()
{
    if (QDir::tempPath().isEmpty())
        failNoFolder(u"TMPDIR does not name a folder"_s);
    return joinPath(QDir::tempPath(), u"norvane-compare-XXXXXX"_s);
}

} // namespace

ScratchShop::ScratchShop(const ApplicationValues& customer) : m_folder(folderTemplate()), m_values(customer)
{
    if (!m_folder.isValid())
        failNoFolder(m_folder.errorString());
    m_values.appPath = m_folder.path();
    m_values.customerPath = m_folder.path();
    m_values.databasePath = joinPath(m_folder.path(), databaseFileName);
    const QString settings = settingsPath(customer);
    if (pathExists(settings))
        writeWholeFile(settingsPath(m_values), readWholeFile(settings));
    store::Database::create(m_values.databasePath, store::catalogue());
}

} // namespace norvane::exchange
