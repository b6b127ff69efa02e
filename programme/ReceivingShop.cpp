// See ReceivingShop.h.
#include "programme/ReceivingShop.h"

#include "base/CustomerSettings.h"
#include "customers/CustomerFolders.h"
#include "platform/FilePaths.h"
#include "platform/SilentBoxes.h"
#include "programme/PartCopy.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

/// Keeps the text of a message, which is reported with the name of the shop.
class NotingBoxes : public SilentBoxes
{
public:
    void message(const QString& text, const QString& /*title*/, BoxIcon /*icon*/) override { m_text = text; }
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};

bool canReceive(const QString& folder)
{
    try {
        const store::Database opened(customers::customerDatabase(folder));
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

} // namespace

QStringList receivingShops(const QString& appPath, const QString& own)
{
    QStringList names = customers::customerFolders(appPath);
    const QString ownFolder = QFileInfo(own).canonicalFilePath();
    names.removeIf([&](const QString& name) {
        const QString folder = existingPath(joinPath(appPath, name));
        return QFileInfo(folder).canonicalFilePath() == ownFolder || !canReceive(folder);
    });
    return names;
}

ReceivingShop::ReceivingShop(ApplicationValues shop)
    : m_values(std::move(shop)), m_database(m_values.databasePath), m_model(registerModel(m_values))
{
}

void ReceivingShop::lock()
{
    NotingBoxes boxes;
    m_lock = FolderLock::take(folder(), boxes);
    if (m_lock != nullptr)
        return;
    const bool isWritable = QFileInfo(folder()).isWritable();
    throw RuntimeFailure(isWritable ? Failure::DatabaseLocked : Failure::PathOrFileAccess, boxes.text());
}

void ReceivingShop::compare(const ShopData& from, const ChosenParts& parts, const KeepGoing& keepGoing)
{
    m_comparison.emplace(from, ShopData{m_database, m_model}, parts, keepGoing);
}

QString ReceivingShop::copy(const QString& from, const KeepGoing& keepGoing) const
{
    return copyParts(*m_comparison, from, m_values, keepGoing);
}

} // namespace norvane::programme
