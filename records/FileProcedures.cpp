// The one upload and the one download of all register files; see FileProcedures.h.
#include "records/FileProcedures.h"

#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "platform/CommaValues.h"
#include "platform/FailurePlace.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "records/ImportTransaction.h"
#include "records/RegisterFiles.h"
#include "records/RegisterLines.h"
#include "records/TextImport.h"
#include "register/Firmware.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

/// The file is written in blocks of this size.
constexpr std::size_t writeBlock = std::size_t{64} * 1024;

/// A smaller table may well lose half of its records, and is soon typed again.
constexpr qint64 fewestWorthAsking = 20;

QString importLine(const RegisterFile& file, const ApplicationValues& values)
{
    return u"convert w%1 f%2.dat t%2.txt %3"_s.arg(GetModelCode(values), QString::number(file.number),
                                                   QLatin1String(file.importOperation));
}

QString exportLine(const RegisterFile& file, const ApplicationValues& values)
{
    const RegisterModel& model = registerModel(values);
    const bool isDorvik = model.family == RegisterFamily::Dorvik;
    const char* operation =
        isDorvik && file.dorvikOperation != nullptr ? file.dorvikOperation : file.exportOperation;
    return u"convert w%1 f%2.txt t%2.dat %3"_s.arg(model.code, QString::number(file.number),
                                                   QLatin1String(operation));
}

/// The text file of a download; opening empties it.
class TextOutput
{
public:
    explicit TextOutput(const QString& path) : m_file(existingPath(path))
    {
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
            throw RuntimeFailure(Failure::PathOrFileAccess,
                                 u"Path/File access error: %1 (%2)"_s.arg(path, m_file.errorString()));
        }
    }

    /// A disk takes a part of the text until it is full. The reason comes with the next part.
    void write(const std::string& text)
    {
        for (std::string_view rest = text; !rest.empty();) {
            const qint64 written = m_file.write(rest.data(), static_cast<qint64>(rest.size()));
            if (written <= 0) {
                throw RuntimeFailure(Failure::DiskFull,
                                     u"Disk full: %1 (%2)"_s.arg(m_file.fileName(), m_file.errorString()));
            }
            rest.remove_prefix(static_cast<std::size_t>(written));
        }
    }

private:
    QFile m_file;
};

/// @return the first text that holds a comma.
std::string writeText(const RegisterFile& file, const ProcedureContext& context)
{
    TextOutput output(joinPath(context.values.appPath, textName(file)));
    store::Database database(context.values.databasePath);
    std::string text;
    std::string comma =
        forEachLine(file, database, traitsOf(context), [&](std::string_view line, const auto&) {
            context.lineWritten(line);
            text += line;
            if (text.size() >= writeBlock) {
                output.write(text);
                text.clear();
            }
        });
    output.write(text);
    return comma;
}

bool mayPartColumns(const RegisterFile& file, const std::string& textWithComma, Boxes& boxes)
{
    return textWithComma.empty() ||
           askBeforeLoss(
               boxes, u"The text \"%1\" contains a comma. Commas separate the columns of %2, so that what "
                      u"follows would "
                      u"reach the registers as another value, such as a price.\r\r"
                      u"To keep the registers as they are, answer No, take the comma out and send again.\r\r"
                      u"Send all the same?"_s.arg(QString::fromStdString(plainFromRegister(textWithComma)),
                                                  textName(file)));
}

bool isEmpty(const RegisterFile& file, const QString& databasePath)
{
    store::Database database(databasePath);
    return database.openTable(QLatin1String(file.table)).recordCount() == 0;
}

/// What a text holds, before it is read.
struct TextExtent {
    qint64 lines = 0;
    bool isCutOff = false; ///< the last line has no line end
};

TextExtent extentOf(std::string_view text)
{
    TextExtent extent{0, !text.empty() && text.back() != '\n' && text.back() != '\r'};
    for (Lines lines(text); !lines.atEnd(); ++extent.lines)
        (void)lines.next();
    return extent;
}

QString extentInWords(const TextExtent& extent)
{
    if (extent.lines == 0)
        return u"has no records"_s;
    const QString count = extent.lines == 1 ? u"has 1 record"_s : u"has %1 records"_s.arg(extent.lines);
    return extent.isCutOff ? count + u", and its last line is cut off"_s : count;
}

/// A register sends whole tables, so a text that is much shorter is more often a damaged one.
bool mayReplace(const RegisterFile& file, store::Database& database, const ProcedureContext& context)
{
    const QString path = joinPath(context.folder, textName(file));
    if (file.upload != Upload::ReplacesTable || !pathExists(path))
        return true;
    const qint64 former = database.openTable(QLatin1String(file.table)).recordCount();
    if (former < fewestWorthAsking)
        return true;
    const QByteArray content = readWholeFile(path);
    const TextExtent extent =
        extentOf(withoutEndMark({content.constData(), static_cast<std::size_t>(content.size())}));
    if (extent.lines * 2 >= former && !extent.isCutOff)
        return true;
    return askBeforeLoss(context.boxes,
                         u"%1 %2. It would replace the table %3, which has %4.\r\r"
                         u"No keeps the table as it is, so that the file can be uploaded again. Yes is right "
                         u"when the register itself has fewer records now.\r\r"
                         u"Replace the table?"_s.arg(textName(file), extentInWords(extent),
                                                     QLatin1String(file.table), QString::number(former)),
                         "accept-fewer"_L1);
}

const RegisterFile& knownFile(int number)
{
    const RegisterFile* file = registerFile(number);
    Q_ASSERT(file != nullptr);
    return *file;
}

} // namespace

bool hasImporter(int file)
{
    return registerFile(file) != nullptr;
}

bool hasExporter(int file)
{
    return hasImporter(file) && registerFile(file)->exporter != nullptr;
}

Imported importRegisterFile(int number, const ProcedureContext& context)
{
    const RegisterFile& file = knownFile(number);
    if (!context.convert({importLine(file, context.values), textName(file),
                          u"The customer's records would be read from it, though it may be an old file or "
                          u"another customer's."_s}))
        return Imported::Refused;

    store::Database database(context.values.databasePath);
    if (!mayReplace(file, database, context))
        return Imported::TooFew;
    store::CommitOnExit transaction(database);
    ImportCounts counts;
    const auto commit = [&] {
        context.store(number, [&] { transaction.commit(); });
    };
    importOrPutBack(
        transaction, context.boxes, [&] { return keepQuestion(file, counts); },
        [&] { importText(file, database, context, counts); }, commit);
    commit();
    return Imported::File;
}

Exported exportRegisterFile(int number, const ProcedureContext& context)
{
    const RegisterFile& file = knownFile(number);
    if (file.emptyTable == EmptyTable::Skips && isEmpty(file, context.values.databasePath))
        return Exported::Nothing;
    if (!mayPartColumns(file, writeText(file, context), context.boxes))
        return Exported::Refused;
    const bool mayBeSent = context.convert(
        {exportLine(file, context.values), u"%1.dat"_s.arg(file.number),
         u"The registers would get it, though it may be an old file or another customer's. The changes "
         u"made since would not reach them."_s});
    return mayBeSent ? Exported::File : Exported::Refused;
}

} // namespace norvane::records
