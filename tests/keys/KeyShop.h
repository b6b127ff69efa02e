// A customer with an empty database, and short ways to fill and read its tables, for the tests of the key
// editors.
#pragma once

#include "base/ApplicationValues.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/CommitOnExit.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

namespace norvane::keys::test
{

using norvane::test::addRecord, norvane::test::failureOf, norvane::test::failureTextOf,
    norvane::test::FieldValue, norvane::test::text, norvane::test::whole;

class KeyShop
{
public:
    explicit KeyShop(const QByteArray& model = "0")
    {
        values.appPath = values.customerPath = folder.path();
        values.databasePath = folder.path("velmar.mdb");
        store::Database::create(values.databasePath, store::catalogue());
        folder.write("setup.ini", "[SetupOption]\r\nECRModel=" + model + "\r\n");
    }

    [[nodiscard]] std::shared_ptr<store::Database> open() const
    {
        return std::make_shared<store::Database>(values.databasePath);
    }

    void add(const char* table, const std::vector<FieldValue>& fields) const
    {
        store::Database database(values.databasePath);
        addRecord(database, table, fields);
    }

    /// PLUs 1001 and 1002, function keys 5 and 6.
    void addItems() const
    {
        execute("insert into PLUDATA (PLUNUMBER, DESCRIPTION) values ('000000000000001001', 'Cola'), "
                "('000000000000001002', 'Lemonade')");
        execute("insert into FUNCTIONKEY (id, DESCRIPTION) values (5, 'CASH'), (6, 'CHECK')");
    }

    /// Five levels of @p keys keys: key 3 of level 2 does "2003" by its @c keylink and has that number.
    void addKeyboard(int keys, int levels = 5) const
    {
        const auto database = open();
        const store::CommitOnExit all(*database);
        for (int row = 0; row < keys * levels; ++row) {
            const QByteArray key = QByteArray::number((row / keys + 1) * 1000 + row % keys + 1);
            addRecord(*database, "KEYLINK", {{"ID", whole(row + 1)}, {"KEYLINK", text(key)}});
            addRecord(*database, "NLU", {{"ID", whole(row + 1)}, {"NLU", text(key.rightJustified(18, '0'))}});
        }
    }

    [[nodiscard]] std::string column(const char* table, const char* field) const
    {
        return norvane::test::columnOf(values.databasePath, table, field);
    }

    /// Runs a statement, as another program at the same file would.
    void execute(const char* sql) const { open()->execute(QLatin1String(sql)); }

    norvane::test::TestFolder folder;
    ApplicationValues values;
};

} // namespace norvane::keys::test
