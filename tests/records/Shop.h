// A customer's database and text files for the tests of the register records, with a converter that leaves
// what a test tells it to.
#pragma once

#include "records/FileProcedures.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/RecordingBoxes.h"

#include <utility>
#include <vector>

namespace norvane::records::test
{

using FieldValue = std::pair<const char*, store::Value>;

class Shop
{
public:
    Shop()
    {
        values.appPath = folder.path();
        values.customerPath = folder.path();
        values.databasePath = folder.path("velmar.mdb");
        store::Database::create(values.databasePath, store::catalogue());
        folder.write("setup.ini", "[SetupOption]\r\nECRModel= 0\r\n");
    }

    /// Uploads a file whose conversion leaves @p text.
    void import(int file, const QByteArray& text)
    {
        converter = [this, file, text] {
            folder.write(QByteArray::number(file).append(".txt").constData(), text);
        };
        importRegisterFile(file, context());
    }

    /// Downloads a file. @return the text that the converter finds.
    QByteArray exported(int file)
    {
        QByteArray text;
        converter = [&] {
            text = folder.read(QByteArray::number(file).append(".txt").constData());
        };
        exportRegisterFile(file, context());
        return text;
    }

    void add(const char* table, const std::vector<FieldValue>& fields) const
    {
        store::Database database(values.databasePath);
        auto records = database.openTable(QLatin1String(table));
        records.addNew();
        for (const auto& [name, value] : fields)
            records.setValue(QLatin1String(name), value);
        records.update();
    }

    /// The field in the records of a table, in the order of its first index, parted by "|"; null as "null".
    [[nodiscard]] std::string column(const char* table, const char* field) const
    {
        store::Database database(values.databasePath);
        auto records = database.openTable(QLatin1String(table));
        std::string shown;
        for (qint64 left = records.recordCount(); left > 0; --left, records.moveNext()) {
            const auto& value = records.value(QLatin1String(field));
            shown += (shown.empty() ? "" : "|") + (value.isNull() ? "null" : value.toUtf8());
        }
        return shown;
    }

    [[nodiscard]] qint64 rows(const char* table) const
    {
        store::Database database(values.databasePath);
        return database.openTable(QLatin1String(table)).recordCount();
    }

    [[nodiscard]] ProcedureContext context()
    {
        return {values, boxes, [this](const Conversion& conversion) {
                    commands << conversion.commandLine;
                    converter();
                    return true;
                }};
    }

    norvane::test::TestFolder folder;
    norvane::test::WorkingDirectory inFolder{folder.path()};
    ApplicationValues values;
    norvane::test::RecordingBoxes boxes;
    std::function<void()> converter = [] {
    };
    QStringList commands;
};

/// The number of a PLU as a register sends it.
inline QByteArray plu(int number)
{
    return QByteArray::number(number).rightJustified(18, '0');
}

inline store::Value text(const char* value)
{
    return store::Value::text(std::string(value));
}

} // namespace norvane::records::test
