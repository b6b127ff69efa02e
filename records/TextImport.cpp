// See TextImport.h.
#include "records/TextImport.h"

#include "base/CustomerSettings.h"
#include "platform/CommaValues.h"
#include "platform/FailurePlace.h"
#include "platform/FilePaths.h"
#include "records/ImportTransaction.h"
#include "records/RecordReader.h"
#include "register/Firmware.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

/// Stores the lines of a text file one by one.
class Import
{
public:
    Import(const RegisterFile& file, store::Recordset& records, const ProcedureContext& context)
        : m_file(file), m_records(records), m_context(context),
          m_reader(file.layout(), records, traitsOf(context))
    {
    }

    void storeAll(std::string_view text)
    {
        Lines lines(text);
        for (; !lines.atEnd(); ++m_stored)
            storeLine(lines.next(), m_stored + 1);
    }
    /// Lines that are in the table.
    [[nodiscard]] qint64 stored() const { return m_stored; }

private:
    void storeLine(std::string_view line, qint64 number)
    {
        const auto store =
            m_file.upload == Upload::ReplacesTable ? &Import::addRecord : &Import::updateRecord;
        atPlace([&](const QString& text) { return u"%1: %2"_s.arg(placeOf(number), text); },
                [&] { (this->*store)(line, number); });
    }

    /// Where a failure happened, for the user. A record that could not be stored names no column.
    [[nodiscard]] QString placeOf(qint64 line) const
    {
        const QString place = u"%1, line %2"_s.arg(textName(m_file)).arg(line);
        const int column = m_reader.column();
        return column == 0 ? place : u"%1, column %2"_s.arg(place).arg(column);
    }

    void addRecord(std::string_view line, qint64 number)
    {
        m_records.addNew();
        readRecord(line, number);
    }

    void updateRecord(std::string_view line, qint64 number)
    {
        auto rest = line;
        if (!m_records.seek(store::Seek::Equal, store::Value::text(plainFromRegister(takeField(rest)))))
            return;
        m_records.edit();
        readRecord(line, number);
    }

    void readRecord(std::string_view line, qint64 number)
    {
        m_reader.read(line, number);
        m_records.update();
        m_context.recordRead(m_records);
    }

    const RegisterFile& m_file;
    store::Recordset& m_records;
    const ProcedureContext& m_context;
    RecordReader m_reader;
    qint64 m_stored = 0;
};

} // namespace

QString textName(const RegisterFile& file)
{
    return u"%1.txt"_s.arg(file.number);
}

RegisterTraits traitsOf(const ProcedureContext& context)
{
    return {[&context] { return static_cast<std::size_t>(registerModel(context.values).messageWidth); },
            [&context] {
                return GetFirmwareGeneration(context.values.appPath, context.boxes);
            }};
}

void importText(const RegisterFile& file, store::Database& database, const ProcedureContext& context,
                ImportCounts& counts)
{
    store::Recordset records = database.openTable(QLatin1String(file.table));
    if (file.index != nullptr)
        records.setIndex(QLatin1String(file.index));
    // The table is emptied before the text file is opened, so it stays empty if that file is missing.
    if (file.upload == Upload::ReplacesTable)
        counts.former = database.execute(u"delete * from %1"_s.arg(QLatin1String(file.table)));
    const QByteArray content = readWholeFile(joinPath(context.folder, textName(file)));
    Import import(file, records, context);
    const auto count = qScopeGuard([&] { counts.read = import.stored(); });
    import.storeAll(withoutEndMark({content.constData(), static_cast<std::size_t>(content.size())}));
}

QString keepQuestion(const RegisterFile& file, const ImportCounts& counts)
{
    if (file.upload == Upload::ReplacesTable)
        return keepRecordsQuestion(textName(file), counts.read, counts.former);
    return u"%1 was read only in part. Keep what was read, %2 lines?\rNo puts the table back as it was."_s
        .arg(textName(file))
        .arg(counts.read);
}

} // namespace norvane::records
