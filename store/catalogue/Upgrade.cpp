// The steps that upgrade an older customer database to the current layout, and the engine that runs them.
#include "store/catalogue/Upgrade.h"

#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"
#include "store/engine/ShortWait.h"

#include <array>
#include <functional>
#include <optional>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

enum class Action {
    AddFields,     ///< the named fields of the catalogue
    CreateTable,   ///< the whole table of the catalogue
    AddTableAgain, ///< always fails, since the table is there
};

constexpr std::size_t mostFields = 18;

struct Step {
    Action action = Action::AddFields;
    const char* table = nullptr;
    std::array<const char*, mostFields> fields{};
    /// The type in upgraded databases where it is not the one of the current layout.
    std::optional<FieldType> type = std::nullopt;
};

// clang-format off
constexpr Step steps[] = {
    {Action::AddFields, "AUTHORITYLEVEL", {"disallowaddinx", "disallowoverrideinx", "disallowsubtractinx"}},
    {Action::AddFields, "EMPLOYEE", {"dallaskey"}},
    {Action::AddFields, "KITCHENPRINTOPTIONS", {"REDIRECTTORCPT"}},
    {Action::AddFields, "PLUDATA", {"PRINTNV"}},
    // Old databases got it as a flag. completeDatabase() makes it the number of the current layout.
    {Action::AddFields, "PLUSTATUS", {"LINKEDNVIMAGE"}, FieldType::YesNo},
    {Action::AddFields, "GENERALFUNCTIONS",
     {"redeemcash", "redeemcheck", "redeemmisc1", "redeemmisc2", "redeemmisc3", "redeemmisc4", "redeemmisc5",
      "redeemmisc6", "redeemmisc7", "redeemmisc8", "redeemmisc9", "redeemmisc10", "redeemmisc11",
      "redeemmisc12", "redeemmisc13", "redeemmisc14", "redeemmisc15", "redeemmisc16"}},
    {Action::AddFields, "GeneralPrintOption",
     {"turnoffautocutter", "prelogoimagercpt", "postlogoimagercpt", "prelogoimagegc", "postlogoimagegc"}},
    {Action::AddFields, "GeneralPrintOption", {"STOPINTERNALPRINT"}},
    {Action::CreateTable, salestable::times},
    {Action::CreateTable, "ClerkSales"}, // spelled so in upgraded databases
    {Action::CreateTable, salestable::plus},
    {Action::CreateTable, salestable::mixes},
    {Action::CreateTable, salestable::groups},
    {Action::CreateTable, salestable::financials},
    {Action::AddFields, "EJDETAILPRINT",
     {"EJPOINTPAYMENT", "EJSUBTRACTPOINT", "EJADDPOINT", "EJSUBTRACTVALUE", "EJREDEEM", "EJPRINTCARD",
      "EJCARDSALE", "EJHOTLIST", "EJREMOVECARD", "CONDENSEDPRINT", "PRINTNEGLINES", "DISABLEREGDETAIL"}},
    {Action::AddFields, "trackingfileoptions", {"DISABLEGCONRECEIPT"}},
    {Action::AddTableAgain, "trackingfileoptions"},
};
// clang-format on

/// The catalogue's definition under the name as spelled in the step.
FieldDefinition fieldOf(const Step& step, const QString& name)
{
    FieldDefinition field = *fieldNamed(*catalogueTable(QLatin1StringView(step.table)), name);
    field.name = name;
    field.type = step.type.value_or(field.type);
    return field;
}

void addFields(Database& database, const Step& step)
{
    for (const char* name : step.fields) {
        if (name != nullptr)
            database.addField(QLatin1StringView(step.table), fieldOf(step, QLatin1StringView(name)));
    }
}

void createTable(Database& database, const Step& step)
{
    TableDefinition table = *catalogueTable(QLatin1StringView(step.table));
    table.name = QLatin1StringView(step.table);
    database.addTable(table);
}

void run(Database& database, const Step& step)
{
    switch (step.action) {
    case Action::AddFields:
        addFields(database, step);
        break;
    case Action::CreateTable:
        createTable(database, step);
        break;
    case Action::AddTableAgain:
        database.addTable(database.table(QLatin1StringView(step.table)));
        break;
    }
    database.refresh();
}

/// Whether the first step would fail because its field exists already.
bool isCurrent(const Database& database)
{
    const TableDefinition table = database.table(QLatin1StringView(steps[0].table));
    return fieldNamed(table, QString::fromLatin1(steps[0].fields[0])) != nullptr;
}

/// A customer is opened whatever the state of the database, so no failure is passed on. A field that already
/// exists is the usual one: it shows the current layout.
void workQuietly(const QString& path, const std::function<void(Database&)>& work)
{
    try {
        Database database(path);
        work(database);
    } catch (const RuntimeFailure&) {
        return;
    }
}

} // namespace

void UpgradeDatabase(const QString& path)
{
    workQuietly(path, [](Database& database) {
        // Even an empty transaction waits at its end for a program that reads.
        if (isCurrent(database))
            return;
        // Work done before a failure is kept, but a power cut in between leaves the old layout: a partly
        // upgraded layout would never be completed by a later start.
        const CommitOnExit transaction(database);
        for (const Step& step : steps)
            run(database, step);
    });
}

void UpgradeUnitDescription(const QString& path)
{
    workQuietly(path, [](Database& database) {
        database.addField(u"productmix"_s, {u"unitdescription"_s, FieldType::Text, 10, QString(), false});
    });
}

void completeDatabase(const QString& path)
{
    workQuietly(path, [](Database& database) {
        const ShortWait wait(database); // nothing is lost until the next call
        database.complete(catalogue());
    });
}

} // namespace norvane::store
