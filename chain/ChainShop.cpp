// See ChainShop.h.
#include "chain/ChainShop.h"

#include "chain/ChainSchema.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"

#include <QUuid>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

const auto idFile = u"norvane-chain.ini"_s;
const auto section = u"Chain"_s;
const auto idKey = u"Shop"_s;

struct Shop {
    int number;
    QString name;
};

QString readId(const ShopFolder& folder)
{
    const ProfileFile file(existingPath(joinPath(folder.customerPath, idFile)));
    return QUuid::fromString(file.value(section, idKey)).toString(QUuid::WithoutBraces);
}

void writeId(const ShopFolder& folder, const QString& id)
{
    const QString path = joinPath(folder.customerPath, idFile);
    if (!ProfileFile::write(existingPath(path), section, idKey, id))
        throw ChainError(ChainFailure::Unwritable, u"%1 could not be written."_s.arg(path));
}

std::string folded(const QString& name)
{
    return name.toCaseFolded().toStdString();
}

std::optional<Shop> shopBy(pqxx::work& work, const char* column, const std::string& value)
{
    const auto rows =
        work.exec_params("SELECT shop, name FROM shops WHERE " + std::string(column) + "::text = $1", value);
    if (rows.empty())
        return std::nullopt;
    return Shop{rows[0][0].as<int>(), QString::fromUtf8(rows[0][1].c_str())};
}

[[noreturn]] void failOther(const QString& text)
{
    throw ChainError(ChainFailure::OtherShop, text);
}

/// The shop of the folder's id has another name: the folder was renamed, or is a copy.
[[noreturn]] void failRenamed(const ShopFolder& folder, const Shop& shop)
{
    failOther(u"\"%1\" was published as \"%2\": if the folder was renamed, publish it with --adopt; if it "
              "is a copy for another shop, remove %3 from it."_s.arg(folder.name, shop.name, idFile));
}

void rename(pqxx::work& work, const ShopFolder& folder, const Shop& shop)
{
    work.exec_params0("UPDATE shops SET name = $1, folded_name = $2 WHERE shop = $3",
                      folder.name.toStdString(), folded(folder.name), shop.number);
}

/// The folder's own id, a new one for a folder that has none. It is stored first: if it were lost, the next
/// run would treat the shop as another.
std::string ownId(const ShopFolder& folder, QString id)
{
    if (QUuid::fromString(id).isNull()) {
        id = QUuid::createUuid().toString(QUuid::WithoutBraces);
        writeId(folder, id);
    }
    return id.toStdString();
}

/// The shop of the folder's name has another id: it belongs to another machine, or the folder was recreated.
[[noreturn]] void failElsewhere(const Shop& shop, const Server& server)
{
    failOther(u"The shop \"%1\" was published from another folder (%2): rename one of the two, or, if this "
              "folder continues that shop, publish it with --adopt."_s.arg(shop.name, server.where()));
}

/// From now on the shop has the id of this folder, so that the former folder cannot overwrite its days.
void takeOver(pqxx::work& work, const ShopFolder& folder, const QString& id, const Shop& shop)
{
    work.exec_params0("UPDATE shops SET folder_id = $1 WHERE shop = $2", ownId(folder, id), shop.number);
}

/// Also after the last shop was removed by hand and its sales were not.
int nextNumber(pqxx::work& work)
{
    int last = 0;
    for (const char* table : {"shops", "published_days"}) {
        last = std::max(last,
                        work.exec1(std::string("SELECT coalesce(max(shop), 0) FROM ") + table)[0].as<int>());
    }
    return last + 1;
}

int addShop(pqxx::work& work, const QString& name, const std::string& id)
{
    const int number = nextNumber(work);
    work.exec_params0("INSERT INTO shops (shop, name, folded_name, folder_id) VALUES ($1, $2, $3, $4)",
                      number, name.toStdString(), folded(name), id);
    return number;
}

/// The login of a shop sees its own shop only, so others are new to it.
void requireAdder(pqxx::work& work, const ShopFolder& folder, const Server& server)
{
    if (work.exec1("SELECT has_table_privilege('shops', 'INSERT')")[0].as<bool>())
        return;
    throw ChainError(
        ChainFailure::NoRights,
        u"%1 may not publish \"%2\" (%3): it is not the shop of this user, or the owner of the "
        "chain has not added it with chain add-shop."_s.arg(server.user(), folder.name, server.where()));
}

/// The owner can add a shop before there is a folder.
bool hasPublished(pqxx::work& work, const Shop& shop)
{
    return work
        .exec_params1("SELECT EXISTS (SELECT FROM published_names WHERE shop = $1) OR "
                      "EXISTS (SELECT FROM published_days WHERE shop = $1)",
                      shop.number)[0]
        .as<bool>();
}

/// The shops of a folder's id and of its name, which usually are one.
struct Candidates {
    QString id;
    std::optional<Shop> byId;
    std::optional<Shop> byName;
};

Candidates candidates(pqxx::work& work, const ShopFolder& folder, const Server& server, bool adopt)
{
    const QString id = readId(folder);
    Candidates found{id, shopBy(work, "folder_id", id.toStdString()),
                     shopBy(work, "folded_name", folded(folder.name))};
    if (found.byId && found.byName && found.byId->number != found.byName->number) {
        failOther(
            u"\"%1\" was published as \"%2\", and there is another shop \"%3\" (%4): rename the folder."_s
                .arg(folder.name, found.byId->name, found.byName->name, server.where()));
    }
    if (found.byId && !found.byName && !adopt)
        failRenamed(folder, *found.byId);
    if (found.byName && !found.byId && !adopt && hasPublished(work, *found.byName))
        failElsewhere(*found.byName, server);
    return found;
}

int numberOf(const Candidates& found)
{
    if (found.byId)
        return found.byId->number;
    return found.byName ? found.byName->number : 0;
}

int shopOf(pqxx::work& work, const ShopFolder& folder, const Candidates& found, const Server& server)
{
    if (found.byId && !found.byName)
        rename(work, folder, *found.byId);
    if (found.byName && !found.byId)
        takeOver(work, folder, found.id, *found.byName);
    if (const int number = numberOf(found); number != 0)
        return number;
    requireAdder(work, folder, server);
    return addShop(work, folder.name, ownId(folder, found.id));
}

} // namespace

int findShop(Server& server, const ShopFolder& folder, bool adopt)
{
    int shop = 0;
    server.transact([&](pqxx::work& work) {
        // Two simultaneous first publications would use a name twice.
        lockSchema(work);
        shop = shopOf(work, folder, candidates(work, folder, server, adopt), server);
    });
    return shop;
}

int findPublishedShop(Server& server, const ShopFolder& folder, bool adopt)
{
    int shop = 0;
    server.transact([&](pqxx::work& work) {
        shop = numberOf(candidates(work, folder, server, adopt));
        if (shop == 0)
            requireAdder(work, folder, server);
    });
    return shop;
}

int shopNamed(pqxx::work& work, const QString& name)
{
    lockSchema(work);
    const auto found = shopBy(work, "folded_name", folded(name));
    return found ? found->number
                 : addShop(work, name, QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString());
}

ShopLock::ShopLock(Server& server, int shop, const QString& name)
    : m_server(server), m_name(name), m_key(std::to_string(lockFamily) + ", " + std::to_string(shop))
{
    bool isHeld = false;
    server.transact([&](pqxx::work& work) {
        isHeld = work.exec1("SELECT pg_try_advisory_lock(" + m_key + ")")[0].as<bool>();
    });
    if (!isHeld)
        fail();
}

ShopLock::~ShopLock()
{
    try {
        m_server.transact(
            [this](pqxx::work& work) { work.exec1("SELECT pg_advisory_unlock(" + m_key + ")"); });
    } catch (const ChainError&) {
        // If the connection is lost, so is the lock.
    }
}

void ShopLock::holdIn(pqxx::work& work) const
{
    if (!work.exec1("SELECT pg_try_advisory_xact_lock(" + m_key + ")")[0].as<bool>())
        fail();
}

void ShopLock::fail() const
{
    throw ChainError(ChainFailure::Busy,
                     u"Another program is publishing the shop \"%1\" (%2)."_s.arg(m_name, m_server.where()));
}

} // namespace norvane::chain
