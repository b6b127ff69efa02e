// The procedures that use the records: a whole text file replaces a table, and the table is written to a
// file. Input: number of the file, 52 for the memory allocation; kind of register, bit 7 for an older memory
// file; then the text.
#include "fuzz/CustomerFile.h"
#include "fuzz/FileChoice.h"
#include "fuzz/Target.h"
#include "platform/FilePaths.h"
#include "records/FileProcedures.h"
#include "records/MemoryFile.h"
#include "records/RegisterFiles.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

constexpr unsigned char memoryFile = 52;

/// What the text of a register can be refused for.
template <typename Import>
bool imports(Import import)
{
    return succeeds({Failure::TypeMismatch, Failure::Overflow, Failure::TextTooLong, Failure::Conversion,
                     Failure::DuplicateKey},
                    import);
}

/// The converter left the text that is there.
bool converted(const records::Conversion& /*conversion*/)
{
    return true;
}

void setRegister(unsigned kind)
{
    constexpr unsigned olderBit = 0x80;
    constexpr std::size_t olderLength = 77;
    setModel(static_cast<int>(kind % 4));
    scratchFile(u"mem.dat"_s, std::string((kind & olderBit) != 0 ? olderLength : olderLength + 1, 'm'));
}

void tryMemory(std::string_view text)
{
    SilentBoxes boxes;
    const ApplicationValues& values = customerWith(u"memoryallocation"_s);
    scratchFile(u"52.txt"_s, text);
    imports([&] { records::FileMemory({values, boxes, converted}); });
}

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
        return imports([&] { records::importRegisterFile(m_file.number, m_context); });
    }

    /// @return what is sent to the registers; nothing for an empty table or a number that no register
    /// accepts.
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
    const records::RegisterFile& m_file;
    QString m_text;
    SilentBoxes m_boxes;
    records::ProcedureContext m_context;
};

/// Whether two lines have the same first column. Numbers of fewer digits are sent with zeros, so "0" and
/// "00", which no register writes, become one number.
bool repeatsNumber(const QByteArray& sent)
{
    QSet<QByteArray> numbers;
    for (const QByteArray& line : sent.split('\n')) {
        const QByteArray number = line.left(line.indexOf(','));
        if (numbers.contains(number))
            return true;
        numbers.insert(number);
    }
    return false;
}

void tryFile(const records::RegisterFile& file, std::string_view text)
{
    Procedures procedures(file);
    scratchFile(procedures.text(), text);
    if (!procedures.import() || !records::hasExporter(file.number))
        return;
    const QByteArray sent = procedures.exported();
    if (sent.isEmpty())
        return;
    if (!procedures.import()) {
        require(repeatsNumber(sent), "a file that was sent can be fetched");
        return;
    }
    require(procedures.exported().size() == sent.size(), "a file that was fetched is sent in the same form");
}

} // namespace

void tryInput(std::string_view input)
{
    const auto number = takeByte(input);
    setRegister(takeByte(input));
    if (number == memoryFile) {
        tryMemory(input);
    } else {
        tryFile(chosenFile(number), input);
    }
}

} // namespace norvane::fuzz
