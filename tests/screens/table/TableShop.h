// A shop with PLUs, and the screen file that shows them.
#pragma once

#include "base/ApplicationValues.h"
#include "screens/table/TableColumns.h"
#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

#include <gtest/gtest.h>

#include <memory>

namespace norvane::test
{
using namespace Qt::Literals::StringLiterals;

inline const QByteArray pluScreen =
    "[Database]\ntable=PLUDATA\nIndex1=plunumber\n[FormName]\nName=PLUs\n"
    "[visiblekeys]\nShownextrecord=YES\n"
    "[Field1]\nControlType=LabelControl\nDescription=Number\nVisible=True\nX=100\nY=100\nWidth=900\n"
    "[Field2]\nControlType=TextControl\nVisible=True\nX=1100\nY=100\nMaxvalue=18\nCharacters=NUMERIC\n"
    "Datafield=PLUNUMBER\n"
    "[Field3]\nControlType=LabelControl\nDescription=Name\nVisible=True\nX=100\nY=600\nWidth=900\n"
    "[Field4]\nControlType=TextControl\nVisible=True\nX=1100\nY=600\nMaxvalue=16\nDatafield=DESCRIPTION\n"
    "[Field5]\nControlType=LabelControl\nDescription=Group\nVisible=True\nX=100\nY=1100\nWidth=900\n"
    "[Field6]\nControlType=ComboControl\nVisible=True\nX=1100\nY=1100\nDataField=GROUPNO\nValuecol=0\n"
    "SQLCriteria=select GROUPNO, DESCRIPTION from GROUPS order by GROUPNO\n"
    "[Field7]\nControlType=LabelControl\nDescription=Price\nVisible=True\nX=100\nY=1600\nWidth=900\n"
    "[Field8]\nControlType=DecimalNumberControl\nVisible=True\nX=1100\nY=1600\nMaxvalue=999999.99\n"
    "DecimalNumbers=2\nDatafield=PRICE1\n"
    "[Field9]\nControlType=LabelControl\nDescription=Pieces\nVisible=True\nX=100\nY=2100\nWidth=900\n"
    "[Field10]\nControlType=IntegerNumberControl\nVisible=True\nX=1100\nY=2100\nMaxvalue=9999\n"
    "Datafield=PIECECOUNT\n"
    "[Field11]\nControlType=CheckControl\nDescription=Inactive\nVisible=True\nX=100\nY=2600\n"
    "Datafield=INactive\n"
    "[Field12]\nControlType=DecimalNumberControl\nX=100\nY=2600\nDatafield=PRICE2\n"
    "[Field13]\nControlType=IntegerNumberControl\nVisible=True\nX=4000\nY=100\nReadOnly=True\n"
    "Datafield=MODIFIER\n";

/// Four PLUs, of which the second is on a key and the third was sold lately.
class TableShop : public testing::Test
{
protected:
    TableShop()
    {
        m_values.appPath = m_folder.path();
        m_values.customerPath = m_folder.path("SHOP");
        m_values.customerName = u"SHOP"_s;
        m_folder.write("SHOP/setup.ini", "[ECR]\r\n");
        m_values.databasePath = m_folder.path("SHOP/velmar.mdb");
        store::Database::create(m_values.databasePath, store::catalogue());
        execute("insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Bar'), (3, 'Drinks')");
        addPlu("5, 'Lager', 3, '2.5', 0, 0");
        addPlu("9, 'Coke Zero', 3, '10', 12, -1");
        addPlu("30, 'Café', 1, '9.8', 0, 0");
        addPlu("1001, 'Menu', 0, '0.00', 0, 0");
        execute("insert into KEYLINK (ID, KEYLINK) values (1, '1'), (2, '0')");
        execute("insert into NLU (ID, NLU) values (1, '000000000000000030'), (2, '000000000000000009')");
        for (const char* sale :
             {"'000000000000000005', '2026-06-01', 1", "'000000000000000030', '2026-11-01', 2",
              "'000000000000001001', '2026-11-01', 0"}) {
            execute(
                QByteArray("insert into PLUSALES (ID, SALESDATE, COUNT1, PROMO, WASTE, VALUE1) values (") +
                sale + ", 0, 0, 0)");
        }
        m_folder.write("test.scn", QByteArray(pluScreen).replace("\n", "\r\n"));
    }

    /// @p plu is number, description, group, price, pieces, and whether it is inactive.
    void addPlu(const QByteArray& plu) const
    {
        const auto comma = plu.indexOf(',');
        execute(
            "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PIECECOUNT, INactive, MODIFIER)"
            " values ('" +
            plu.left(comma).rightJustified(18, '0') + "'" + plu.mid(comma) + ", 7)");
    }
    void execute(const QByteArray& sql) const
    {
        test::execute(m_values.databasePath, QString::fromUtf8(sql));
    }
    [[nodiscard]] std::string rows(const char* sql) const
    {
        return rowsOf(m_values.databasePath, QString::fromUtf8(sql));
    }
    [[nodiscard]] std::shared_ptr<store::Database> database() const
    {
        return std::make_shared<store::Database>(m_values.databasePath);
    }
    /// The columns of the screen, called as their fields.
    [[nodiscard]] screens::TableSource source() const
    {
        store::Database database(m_values.databasePath);
        return screens::tableSource(database, screens::ScreenReader(m_folder.path("test.scn")), m_values,
                                    [](const QString& field) { return field; });
    }

    TestFolder m_folder;
    ApplicationValues m_values;
};

} // namespace norvane::test
