// The records of the register files: read into the customer's tables, written back and read once more.
// Input: number of the file, kind of register (bit 0 narrow printer, bit 1 newer firmware), number of the
// first record; then lines as the converter writes them.
#include "fuzz/CustomerFile.h"
#include "fuzz/FileChoice.h"
#include "fuzz/Target.h"
#include "records/RecordLines.h"
#include "records/RecordReader.h"
#include "records/RecordWriter.h"
#include "records/RegisterFiles.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"

#include <map>

namespace norvane::fuzz
{
namespace
{

using records::RegisterFile;
using Row = std::vector<store::Value>;

/// Records of an input beyond these teach nothing new.
constexpr int mostLines = 2;
/// The last record with special columns is 264, of the function keys.
constexpr int highestRecord = 270;

struct Choice {
    const RegisterFile& file;
    unsigned kind;
    int record; ///< number of the first, from 1
};

Choice takeChoice(std::string_view& input)
{
    const auto& file = chosenFile(takeByte(input));
    const auto kind = takeByte(input);
    const int record = takeByte(input);
    return {file, kind, std::min(1 + record + record / 16, highestRecord)};
}

/// The columns in which each field is sent, and those from which it is read, by their places.
class Places
{
public:
    explicit Places(const records::RecordLayout& layout)
    {
        for (const auto& set : layout.sets) {
            for (const auto& column : set.columns) {
                std::visit([this](const auto& form) { add(form); }, column);
                ++m_place;
            }
        }
    }
    /// The register returns some fields in another column or form than they are sent, and its option digits
    /// cannot represent every combination: such a field need not come back.
    [[nodiscard]] bool comesBack(const std::string& field) const
    {
        const auto sent = m_sent.find(field);
        const auto read = m_read.find(field);
        return sent != m_sent.end() && read != m_read.end() && sent->second == read->second;
    }

private:
    using Columns = std::map<std::string, std::vector<int>>;
    static constexpr int nowhere = -1; ///< of what is read in another form than it was sent

    void add(const records::NumberColumn& column)
    {
        if (column.written)
            m_sent[column.field].push_back(m_place);
        const bool isRead = !column.rereads && !column.firstCharacter && column.cut == std::string::npos &&
                            column.tail.empty() && column.usual.empty();
        m_read[column.readField].push_back(isRead ? m_place : nowhere);
    }
    void add(const records::OptionsColumn& column)
    {
        m_read[column.numberField].push_back(nowhere);
        for (const auto& parts : column.digits) {
            for (const auto& part : parts)
                m_read[part.readField].push_back(nowhere);
        }
    }
    void add(const records::TextColumn& column)
    {
        m_sent[column.field].push_back(m_place);
        m_read[column.field].push_back(column.withheldTexts.empty() ? m_place : nowhere);
    }
    void add(const records::SpareColumn& /*column*/) {}
    template <typename Column>
    void add(const Column& column)
    {
        m_sent[column.field].push_back(m_place);
        m_read[column.field].push_back(m_place);
    }

    Columns m_sent;
    Columns m_read;
    int m_place = 0;
};

/// One table of the customer, opened for one register file.
class Table
{
public:
    explicit Table(const RegisterFile& file)
        : m_file(file), m_records(customerDatabase().openTable(QLatin1StringView(file.table))),
          m_reader(file.layout(), m_records, {})
    {
        const Places places(file.layout());
        for (int i = 0; i < m_records.fieldCount(); ++i)
            m_comesBack.push_back(places.comesBack(m_records.field(i).name.toStdString()));
        m_records.setIndex(QLatin1StringView(file.index));
    }

    /// @return whether the line became a record.
    bool add(std::string_view line, int number)
    {
        return succeeds({Failure::TypeMismatch, Failure::Overflow, Failure::TextTooLong, Failure::Conversion,
                         Failure::DuplicateKey},
                        [&] {
                            m_records.addNew();
                            m_reader.read(line, number);
                            m_records.update();
                        });
    }

    /// The current record as it is in the file.
    Row row()
    {
        m_records.edit();
        Row values;
        for (int i = 0; i < m_records.fieldCount(); ++i)
            values.push_back(m_records.value(i));
        m_records.cancelUpdate();
        return values;
    }

    /// The line that is sent to the register for the current record, without its line end; nothing if it has
    /// a number that no register accepts.
    std::optional<std::string> line(const Choice& choice, int number)
    {
        std::string line;
        const bool isWritten = succeeds({Failure::Overflow}, [&] {
            m_kind = choice.kind;
            if (!m_writer || isNumbered())
                m_writer.emplace(m_file.layout(), m_records, traits());
            for (int i = isNumbered() ? 1 : number; i <= number; ++i) {
                line.clear();
                m_writer->appendLine(line);
            }
        });
        if (!isWritten)
            return std::nullopt;
        require(line.ends_with("\r\n"), "a record ends its line");
        line.resize(line.size() - 2);
        require(line.find_first_of("\r\n") == std::string::npos, "a record is one line");
        return line;
    }

    /// Whether some records have special columns: the writer then counts the records.
    [[nodiscard]] bool isNumbered() const { return m_file.layout().sets.size() > 1; }
    [[nodiscard]] bool comesBack(std::size_t field) const { return m_comesBack[field]; }
    void remove() { m_records.deleteRecord(); }
    [[nodiscard]] const store::FieldDefinition& field(std::size_t at) const
    {
        return m_records.field(static_cast<int>(at));
    }

private:
    records::RegisterTraits traits()
    {
        return {[this] { return m_kind % 2 == 1 ? std::size_t{32} : std::size_t{40}; },
                [this] {
                    return m_kind / 2 % 2 == 1 ? 3 : 2;
                }};
    }

    const RegisterFile& m_file;
    store::Recordset m_records;
    records::RecordReader m_reader;
    std::vector<bool> m_comesBack;
    unsigned m_kind = 0; ///< of the register that a line is for
    std::optional<records::RecordWriter> m_writer;
};

Table& tableOf(const RegisterFile& file)
{
    static const store::CommitOnExit neverKept(customerDatabase());
    static std::map<int, Table> tables;
    return tables.try_emplace(file.number, file).first->second;
}

void requireSame(const Choice& choice, const Table& table, const Row& before, const Row& after)
{
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (table.comesBack(i) && before[i] != after[i]) {
            report(QStringLiteral("%1.%2 was \"%3\", written and read again \"%4\"")
                       .arg(QLatin1StringView(choice.file.table), table.field(i).name, before[i].toText(),
                            after[i].toText()));
        }
    }
}

/// What was sent once is the same, however often it is read and sent again.
void tryLine(const Choice& choice, std::string_view line, int number)
{
    Table& table = tableOf(choice.file);
    if (!table.add(line, number))
        return;
    const auto sent = table.line(choice, number);
    table.remove();
    if (!sent)
        return;
    require(table.add(*sent, number), "a record that was sent can be read");
    const Row row = table.row();
    const auto again = table.line(choice, number);
    table.remove();
    require(again && table.add(*again, number), "a record that was read and sent can be read");
    const Row rowAgain = table.row();
    table.remove();
    requireSame(choice, table, row, rowAgain);
}

} // namespace

void tryInput(std::string_view input)
{
    const Choice choice = takeChoice(input);
    records::Lines lines(input);
    for (int i = 0; i < mostLines && !lines.atEnd(); ++i)
        tryLine(choice, lines.next(), choice.record + i);
}

} // namespace norvane::fuzz
