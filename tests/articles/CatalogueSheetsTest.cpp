// What the sheets of tables accept besides PLUs.
#include "articles/SheetUpdate.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Recordset.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

namespace norvane::articles
{
namespace
{

struct TableCase {
    const char* name;
    const char* table;
    QByteArray content;
    const char* outcome; ///< the mistakes, or the fields that were stored
    QString fields = {};
};
void PrintTo(const TableCase& row, std::ostream* out)
{
    *out << row.name;
}

class SheetOfTable : public testing::TestWithParam<TableCase>
{
protected:
    SheetOfTable() { store::Database::create(m_path, store::catalogue()); }

    /// A record with the number 1 and the values of a new record.
    void addRecord(store::Database& database, const QString& table) const
    {
        auto records = database.openTable(table);
        records.addNew();
        records.setValue(0, store::Value::whole(1));
        if (table == u"EMPLOYEE"_s)
            records.setValue(u"dallaskey"_s, store::Value::text(u"00000000000000"_s));
        records.update();
    }
    [[nodiscard]] std::string outcome() const
    {
        const TableCase& row = GetParam();
        store::Database database(m_path);
        for (const QString& table : {QString::fromUtf8(row.table), u"AUTHORITYLEVEL"_s})
            addRecord(database, table);
        const TableSheet sheet = tableSheet(*store::catalogueTable(QString::fromUtf8(row.table)), 32);
        const SheetReading reading{{}, {{u"name"_s, u"DESCRIPTION"_s}, {u"remark"_s, {}}}};
        const SheetComparison comparison(database, sheet, row.content, reading);
        std::string mistakes;
        for (const auto& mistake : comparison.mistakes().first())
            mistakes += (mistake.place + u": "_s + mistake.reason).toStdString();
        if (!mistakes.empty())
            return mistakes;
        applySheetChanges(database, comparison);
        return test::rowsOf(m_path, u"select %1 from %2"_s.arg(row.fields, QString::fromUtf8(row.table)),
                            u"\n");
    }

private:
    test::TestFolder m_folder;
    QString m_path = m_folder.path("velmar.mdb");
};

TEST_P(SheetOfTable, StoresOrRefusesAsItsScreenDoes)
{
    EXPECT_EQ(outcome(), GetParam().outcome);
}

const TableCase tableCases[] = {
    {"flags", "GROUPS", "GROUPNO,tax1,tax2,tax3\n1,yes,0,\n", "True|null|null", u"tax1, tax2, tax3"_s},
    {"no_flag", "GROUPS", "GROUPNO,tax1\n1,x\n", "line 2: \"x\" is neither Yes nor No"},
    {"mapped", "GROUPS", "GROUPNO,Remark,NAME\n1,new,Tea\n", "Tea", u"description"_s},
    {"further_record", "GROUPS", "GROUPNO\n1\n2\n",
     "line 3: there is no record 2, and the registers take no further ones"},
    {"key", "EMPLOYEE", "ID,AUTHORITYLEVEL\n1,1\n", "1", u"authoritylevel"_s},
    {"no_key", "EMPLOYEE", "ID,AUTHORITYLEVEL,JOB1CODE\n1,2,0\n",
     "line 2: there is no AUTHORITYLEVEL record 2"},
    {"hexadecimal", "EMPLOYEE", "ID,dallaskey\n1,12\n", "line 2: \"12\" does not have 14 hexadecimal digits"},
    {"long_number", "EMPLOYEE", "ID,SOCIAL\n1,999999999999\n", "999999999999", u"social"_s},
    {"longer_number", "EMPLOYEE", "ID,SOCIAL\n1,1000000000000\n",
     "line 2: a number is from 0 to 999999999999"},
    {"whole_number", "PRODUCTMIX", "PRODUCTNO;units\n1;2,5\n", "line 2: a number has no decimal places"},
    {"time", "TIMEPERIOD", "id,STARTTIME,ENDTIME\n1,930,2400\n", "0930|2400", u"starttime, endtime"_s},
    {"late", "TIMEPERIOD", "id,STARTTIME\n1,2500\n", "line 2: a number is from 0 to 2400"},
    {"choice", "GENERALFUNCTIONS", "ID,DEFAULTDESTINATION\n1,4\n", "line 2: a number is from 0 to 3"},
    {"three_places", "TAXRATES", "ID,taxrate\n1,17.125\n", "17.125", u"taxrate"_s},
    {"link", "PLUSTATUS", "STATUSNO,LINKEDPLU\n1,123456789012345678\n", "123456789012345678", u"linkedplu"_s},
    {"message", "LOGOMESSAGE", "ID,PREAMBLE1\n1,123456789012345678901234567890123\n",
     "line 2: \"123456789012345678901234567890123\" is longer than 32 characters"},
};
INSTANTIATE_TEST_SUITE_P(Tables, SheetOfTable, testing::ValuesIn(tableCases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace norvane::articles
