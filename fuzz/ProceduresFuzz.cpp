// The procedures around the records: a whole text file replaces a table, and the table is written to a file.
// Input: number of the file, kind of register, then the text.
#include "fuzz/CustomerFile.h"
#include "fuzz/FileChoice.h"
#include "fuzz/Target.h"
#include "platform/FilePaths.h"
#include "records/FileProcedures.h"
#include "records/RegisterFiles.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

/// The text file of one register file, and the two procedures that read and write it.
class Procedures
{
public:
    explicit Procedures(const records::RegisterFile& file)
        : m_file(file),
          m_text(u"%1.txt"_s.arg(file.number)), m_context{customerWith(QLatin1StringView(file.table)),
                                                          m_boxes, converted}
    {
    }

    bool import()
    {
        return succeeds({Failure::TypeMismatch, Failure::Overflow, Failure::TextTooLong, Failure::Conversion,
                         Failure::DuplicateKey},
                        [&] { records::importRegisterFile(m_file.number, m_context); });
    }

    /// @return what goes to the registers; nothing for an empty table or a number that no register takes.
    QByteArray exported()
    {
        auto result = records::Exported::Nothing;
        const bool isWritten = succeeds({Failure::NoCurrentRecord, Failure::Overflow}, [&] {
            result = records::exportRegisterFile(m_file.number, m_context);
        });
        return isWritten && result == records::Exported::File ? readWholeFile(m_text) : QByteArray();
    }

    [[nodiscard]] const QString& text() const { return m_text; }

private:
    static bool converted(const records::Conversion& /*conversion*/) { return true; }

    const records::RegisterFile& m_file;
    QString m_text;
    SilentBoxes m_boxes;
    records::ProcedureContext m_context;
};

} // namespace

void tryInput(std::string_view input)
{
    const auto& file = chosenFile(takeByte(input));
    setModel(takeByte(input) % 4);
    scratchFile(u"mem.dat"_s, "m");
    Procedures procedures(file);
    scratchFile(procedures.text(), input);
    if (!procedures.import() || !records::hasExporter(file.number))
        return;
    const QByteArray sent = procedures.exported();
    if (sent.isEmpty())
        return;
    require(procedures.import(), "a file that was sent can be fetched");
    require(procedures.exported().size() == sent.size(), "a file that was fetched is sent in the same form");
}

} // namespace norvane::fuzz
