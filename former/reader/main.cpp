// Writes the tables of a former database to standard output, for the program that started it. Files come from
// strangers and the library is old: what crashes, loops or eats memory here ends this process alone.
//
//   norvane-former FILE
//
// Lines, with tabs between their parts (see FieldText.h for values):
//   format  2000
//   table   PLUDATA  267             the records that its definition promises
//   field   PLUNUMBER  text          the words of typeWord()
//   row     000000000000001001  Espresso  1  ...
//   tableend  267                    the records that were read
//   end
// The exit code is a Refusal.
#include "former/reader/FormerFile.h"

#include <cstdio>
#include <sys/resource.h>

namespace
{

using namespace norvane::former;

/// A file of 2 GB, the largest there is, needs far less.
constexpr rlim_t mostMemory = rlim_t{1} << 30;
constexpr rlim_t mostSeconds = 600;

// AddressSanitizer takes terabytes of addresses for itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool limitsMemory = false;
#elif defined(__has_feature)
constexpr bool limitsMemory = !__has_feature(address_sanitizer);
#else
constexpr bool limitsMemory = true;
#endif

void limitThisProcess()
{
    const rlimit time{mostSeconds, mostSeconds};
    setrlimit(RLIMIT_CPU, &time);
    const rlimit memory{mostMemory, mostMemory};
    if (limitsMemory)
        setrlimit(RLIMIT_AS, &memory);
}

/// Lines for the parent. The library may print what it likes to standard output, so it gets none.
class Lines
{
public:
    Lines() : m_file(fdopen(dup(STDOUT_FILENO), "wb"))
    {
        if (std::freopen("/dev/null", "w", stdout) == nullptr)
            std::perror("norvane-former");
    }
    ~Lines() { std::fclose(m_file); }
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;

    void begin(std::string_view word) { m_line = word; }
    void add(std::string_view part)
    {
        m_line += '\t';
        m_line += part;
    }
    void end()
    {
        m_line += '\n';
        std::fwrite(m_line.data(), 1, m_line.size(), m_file);
    }

private:
    FILE* m_file;
    std::string m_line;
};

void writeDefinition(Lines& lines, const TableShape& table)
{
    lines.begin("table");
    lines.add(table.name);
    lines.add(std::to_string(table.recordCount));
    lines.end();
    for (const FieldShape& field : table.fields) {
        lines.begin("field");
        lines.add(field.name);
        lines.add(typeWord(field.type));
        lines.end();
    }
}

void writeTable(Lines& lines, const FormerFile& file, const std::string& name)
{
    std::size_t count = 0;
    bool isKnown = false;
    file.readTable(
        name,
        [&](const TableShape& table) {
            isKnown = true;
            writeDefinition(lines, table);
        },
        [&](std::span<const std::string> row) {
            ++count;
            lines.begin("row");
            for (const std::string& text : row)
                lines.add(text);
            lines.end();
        });
    lines.begin(isKnown ? "tableend" : "unreadable");
    lines.add(isKnown ? std::to_string(count) : name);
    lines.end();
}

} // namespace

int main(int count, char* arguments[])
{
    if (count != 2) {
        std::fputs("usage: norvane-former FILE\n", stderr);
        return 2;
    }
    limitThisProcess();
    Lines lines;
    const FormerFile file(arguments[1]);
    if (file.refusal() != Refusal::None)
        return static_cast<int>(file.refusal());
    lines.begin("format");
    lines.add(file.format());
    lines.end();
    for (const std::string& name : file.tableNames())
        writeTable(lines, file, name);
    lines.begin("end");
    lines.end();
    return 0;
}
