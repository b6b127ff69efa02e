// A customer's database and text files for the tests of the register records, with a converter that leaves
// what a test chooses.
#pragma once

#include "records/FileProcedures.h"
#include "records/RegisterFiles.h"
#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane::records::test
{

using norvane::test::FieldValue, norvane::test::text;

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
        norvane::test::addRecord(database, table, fields);
    }

    [[nodiscard]] std::string column(const char* table, const char* field) const
    {
        return norvane::test::columnOf(values.databasePath, table, field);
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

/// The fields without which a record of the file cannot be stored.
inline std::vector<FieldValue> emptyRecord(int file, int number)
{
    std::vector<FieldValue> record;
    if (const auto& counted = registerFile(file)->layout().lineNumberField; !counted.empty())
        record.emplace_back(counted.c_str(), store::Value::whole(number));
    if (file == 63)
        record.emplace_back("dallaskey", text(""));
    if (file == 67)
        record.emplace_back("PLUNUMBER", store::Value::text(std::to_string(number)));
    return record;
}

} // namespace norvane::records::test
