// The grammar of VELMARCOMM's command line; see Order.h.
//   speed port [N<name>] -U|-u <file>              program exchange, fetch or opening
//   speed F1 <n>T port N<name> -D|-d <file> | -a   program exchange, send
//   rate [F1 <n>T] ...                             sales lines, without a port word
#include "tools/velmarcomm/Order.h"

#include "tools/bank/ToolFailure.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

/// Each file accepts one letter for upload and one for download.
struct FileLetters {
    int file;
    char fetch;
    char send; ///< 'a' has no number; blank: the file is never sent
};

constexpr std::array fileLetters{
    FileLetters{1, 'U', 'D'},  FileLetters{2, 'U', 'D'},  FileLetters{3, 'U', 'D'},
    FileLetters{4, 'U', 'd'},  FileLetters{5, 'U', 'd'},  FileLetters{6, 'U', 'd'},
    FileLetters{7, 'U', 'd'},  FileLetters{8, 'U', 'd'},  FileLetters{9, 'U', 'd'},
    FileLetters{10, 'U', 'd'}, FileLetters{11, 'U', 'd'}, FileLetters{12, 'U', 'd'},
    FileLetters{13, 'U', 'd'}, FileLetters{14, 'U', 'd'}, FileLetters{15, 'U', 'd'},
    FileLetters{16, 'u', 'D'}, FileLetters{17, 'u', 'D'}, FileLetters{18, 'u', 'D'},
    FileLetters{20, 'U', 'D'}, FileLetters{21, 'U', 'D'}, FileLetters{22, 'U', 'D'},
    FileLetters{23, 'U', 'd'}, FileLetters{24, 'U', 'D'}, FileLetters{25, 'U', 'D'},
    FileLetters{26, 'U', 'D'}, FileLetters{27, 'u', 'D'}, FileLetters{28, 'u', 'D'},
    FileLetters{29, 'U', 'd'}, FileLetters{30, 'u', 'D'}, FileLetters{32, 'u', 'D'},
    FileLetters{33, 'u', 'D'}, FileLetters{34, 'u', 'D'}, FileLetters{35, 'u', 'D'},
    FileLetters{36, 'U', 'd'}, FileLetters{37, 'u', 'D'}, FileLetters{38, 'u', 'D'},
    FileLetters{39, 'u', 'D'}, FileLetters{40, 'u', 'D'}, FileLetters{41, 'u', 'D'},
    FileLetters{42, 'u', 'D'}, FileLetters{43, 'u', 'D'}, FileLetters{44, 'u', 'D'},
    FileLetters{45, 'u', 'D'}, FileLetters{46, 'u', 'D'}, FileLetters{47, 'u', 'D'},
    FileLetters{48, 'u', 'D'}, FileLetters{49, 'u', 'D'}, FileLetters{50, 'u', 'D'},
    FileLetters{51, 'u', 'D'}, FileLetters{52, 'U', ' '}, FileLetters{57, 'u', 'D'},
    FileLetters{58, 'u', 'D'}, FileLetters{59, 'u', 'D'}, FileLetters{60, 'u', 'D'},
    FileLetters{61, 'u', 'D'}, FileLetters{62, 'u', 'D'}, FileLetters{63, 'u', 'D'},
    FileLetters{64, 'u', 'D'}, FileLetters{65, 'U', 'd'}, FileLetters{67, 'U', 'a'},
    FileLetters{68, 'u', 'D'}, FileLetters{69, 'u', 'D'}, FileLetters{70, 'u', 'D'},
    FileLetters{71, 'u', 'D'}, FileLetters{81, 'u', 'D'}, FileLetters{83, 'u', 'D'},
    FileLetters{85, 'u', 'D'}, FileLetters{86, 'u', 'D'},
};

constexpr int memoryFileNumber = 52;

enum Use : unsigned { Program = 1, Sales = 2, OneRegister = 4, AllRegisters = 8 };

/// The words after speed, range and port, and the lines on which they are allowed.
struct Suffix {
    QString words;
    Order::Kind kind;
    int file;
    QString name;
    unsigned uses;
};

QString fileName(int file)
{
    return file == memoryFileNumber ? u"mem.DAT"_s : u"%1.DAT"_s.arg(file);
}

void addFile(std::vector<Suffix>& table, const FileLetters& row)
{
    const QString name = fileName(row.file);
    const auto number = QString::number(row.file);
    const auto words = [&name](char letter, const QString& last) {
        return u"N%1 -%2%3"_s.arg(name, QString(QLatin1Char(letter)), last);
    };
    const unsigned fetchUses = OneRegister | Program | (row.file == memoryFileNumber ? Sales : 0U);
    table.push_back({words(row.fetch, u' ' + number), Order::Kind::Fetch, row.file, name, fetchUses});
    if (row.send != ' ') {
        table.push_back({words(row.send, row.send == 'a' ? QString() : u' ' + number), Order::Kind::Send,
                         row.file, name, AllRegisters | Program});
    }
}

std::vector<Suffix> makeSuffixes()
{
    std::vector<Suffix> table{
        {u"-U 250"_s, Order::Kind::Open, 250, {}, OneRegister | Program | Sales},
        {u"P0001010100010000000000000000000000000000000000000000000100 -Z"_s,
         Order::Kind::Consolidate,
         0,
         {},
         AllRegisters | Sales},
        {u"-P 190 191 192 194 218"_s, Order::Kind::Collect, 0, {}, AllRegisters | Sales},
        {u"-C"_s, Order::Kind::Clear, 0, {}, AllRegisters | Sales},
    };
    for (const auto& row : fileLetters)
        addFile(table, row);
    return table;
}

ToolFailure badArgument(const QString& text)
{
    return {BadArgument, text};
}

/// Why @p words are not a known suffix: a command that does not exist differs from a mistyped argument.
ToolFailure refusal(const QStringList& words)
{
    const QString all = words.join(u' ');
    const auto command =
        std::find_if(words.begin(), words.end(), [](const QString& word) { return word.startsWith(u'-'); });
    if (command == words.end())
        return badArgument(u"no command in \"%1\""_s.arg(all));
    bool isNumber = true;
    if (command + 1 != words.end())
        (command + 1)->toInt(&isNumber);
    if (!isNumber)
        return {ArgumentConversionError, u"no number in \"%1\""_s.arg(all)};
    return {UnknownCommand, u"unknown command \"%1\""_s.arg(all)};
}

/// @param use what the line is, all of which the suffix must serve
const Suffix& suffixOf(const QStringList& words, unsigned use)
{
    static const auto table = makeSuffixes();
    const QString joined = words.join(u' ');
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&joined](const Suffix& each) { return each.words == joined; });
    if (found == table.end())
        throw refusal(words);
    if ((found->uses & use) != use)
        throw badArgument(u"\"%1\" is not allowed on such a line"_s.arg(found->words));
    return *found;
}

/// The leading words, taken one by one.
class Front
{
public:
    explicit Front(QStringList words) : m_words(std::move(words)) {}

    [[nodiscard]] const QStringList& rest() const { return m_words; }

    bool take(const QString& word)
    {
        const bool there = !m_words.isEmpty() && m_words.first() == word;
        if (there)
            m_words.removeFirst();
        return there;
    }
    bool takeOneOf(const QStringList& words)
    {
        return std::any_of(words.begin(), words.end(), [this](const QString& word) { return take(word); });
    }
    /// A speed word begins a program exchange, a rate a line of the sales.
    unsigned takeLineUse()
    {
        if (takeOneOf({u"s2"_s, u"s4"_s, u"s9"_s, u"s1"_s}))
            return Program;
        if (takeOneOf({u"1200"_s, u"2400"_s, u"9600"_s, u"19200"_s}))
            return Sales;
        throw badArgument(u"no speed word and no rate"_s);
    }
    int takePort()
    {
        for (int port = 1; port <= 4; ++port) {
            if (take(u"c%1"_s.arg(port)))
                return port;
        }
        throw badArgument(u"no port word c1 to c4"_s);
    }
    int takeLastRegister()
    {
        for (int last = 1; last <= 32; ++last) {
            if (take(u"%1T"_s.arg(last)))
                return last;
        }
        throw badArgument(u"no last register 1T to 32T after F1"_s);
    }

private:
    QStringList m_words;
};

} // namespace

QString Order::kindWord() const
{
    static const QStringList words{u"open"_s,        u"fetch"_s,   u"send"_s,
                                   u"consolidate"_s, u"collect"_s, u"clear"_s};
    return words.at(static_cast<int>(kind));
}

Order parseOrder(const QStringList& words)
{
    Front front(words);
    Order order;
    const unsigned line = front.takeLineUse();
    const bool range = front.take(u"F1"_s);
    if (range)
        order.registers = front.takeLastRegister();
    if (line == Program)
        order.port = front.takePort();

    const auto& suffix = suffixOf(front.rest(), line | (range ? AllRegisters : OneRegister));
    order.kind = suffix.kind;
    order.file = suffix.file;
    order.name = suffix.name;
    return order;
}

} // namespace bank
