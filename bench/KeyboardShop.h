// A shop with 100,000 PLUs and full keyboards.
#pragma once

#include "bench/Shop.h"
#include "keys/KeyGeometry.h"
#include "keys/lookups/LookUpLines.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"

namespace norvane::bench
{

inline constexpr int pluCount = 100000;
inline constexpr int functionCount = 266;
inline constexpr int lookUpCount = 99;

inline void addRow(store::Recordset& rows, const char* numberField, const store::Value& number,
                   const char* textField, const QString& text)
{
    rows.addNew();
    rows.setValue(QLatin1String(numberField), number);
    rows.setValue(QLatin1String(textField), store::Value::text(text));
    rows.update();
}

/// A PLU or a function on every key of all levels.
class KeyboardShop : public Shop
{
public:
    KeyboardShop()
    {
        store::Database open(database());
        const store::CommitOnExit all(open);
        fillItems(open);
        fillKeys(open);
        fillLookUps(open);
    }

    const keys::KeyGeometry& keyboard = keys::velmarKeyboard();

private:
    static void fillItems(store::Database& database)
    {
        store::Recordset plus = database.openTable(QStringLiteral("PLUDATA"));
        for (int plu = 1; plu <= pluCount; ++plu) {
            addRow(plus, "PLUNUMBER", store::Value::text(pluNumber(plu)), "DESCRIPTION",
                   QStringLiteral("Article %1").arg(plu % 977));
        }
        store::Recordset functions = database.openTable(QStringLiteral("FUNCTIONKEY"));
        for (int id = 1; id <= functionCount; ++id) {
            addRow(functions, "id", store::Value::whole(id), "DESCRIPTION",
                   QStringLiteral("FUNCTION %1").arg(id));
        }
    }
    void fillKeys(store::Database& database) const
    {
        store::Recordset links = database.openTable(QStringLiteral("KEYLINK"));
        store::Recordset numbers = database.openTable(QStringLiteral("NLU"));
        for (int row = 1; row <= keys::levelCount * keyboard.keysPerLevel; ++row) {
            const int function = row % 4 == 0 ? row % functionCount + 1 : 0;
            addRow(links, "ID", store::Value::whole(row), "KEYLINK", QString::number(function));
            addRow(numbers, "ID", store::Value::whole(row), "NLU",
                   QString::fromStdString(pluNumber(row * 100)));
        }
    }

    static void fillLookUps(store::Database& database)
    {
        store::Recordset memory = database.openTable(QStringLiteral("MEMORYALLOCATION"));
        addRow(memory, "WLU", store::Value::text(QString::number(lookUpCount)), "LINES/PLU",
               QString::number(keys::mostLookUpLines));
        store::Recordset lookUps = database.openTable(QStringLiteral("WLU"));
        for (int number = 1; number <= lookUpCount; ++number) {
            lookUps.addNew();
            lookUps.setValue(QStringLiteral("WLUno"), store::Value::whole(number));
            lookUps.setValue(QStringLiteral("Allowplu"), store::Value::yesNo(true));
            for (int line = 1; line <= keys::mostLookUpLines; ++line) {
                lookUps.setValue(QStringLiteral("wlutype%1").arg(line), store::Value::whole(0));
                lookUps.setValue(QStringLiteral("codenumber%1").arg(line),
                                 store::Value::text(QString::number(number * 1000 + line)));
            }
            lookUps.update();
        }
    }
};

} // namespace norvane::bench
