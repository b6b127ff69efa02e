// The lines of norvane-former; see FormerReader.h and reader/main.cpp.
#include "former/FormerReader.h"

#include "former/ReaderMarks.h"
#include "platform/ChildProcess.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

#include <array>
#include <charconv>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::former
{
namespace
{

const auto readerProgram = u"norvane-former"_s;
/// Short enough to keep a window responsive.
constexpr int millisecondsBetweenLooks = 40;
/// A reader without output for so long hangs.
constexpr qint64 mostSilentMilliseconds = 30'000;
/// No record is longer: it has up to 255 fields, and all but memos are short.
constexpr qsizetype longestLine = 64 << 20;

QString shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

struct RefusedFile {
    Refusal refusal;
    FormerProblem problem;
    const char* reason;
};
constexpr RefusedFile refusals[] = {
    {Refusal::NotReadable, FormerProblem::NotReadable, "cannot be read"},
    {Refusal::NotFormer, FormerProblem::NotFormer,
     "is too short, damaged or not a database of the former program"},
    {Refusal::NewerFormat, FormerProblem::NewerFormat,
     "has a format newer than that of 2003, which the former program never wrote"},
    {Refusal::Password, FormerProblem::Password,
     "is protected with a password. Remove the password with the program that set it"},
};

[[noreturn]] void fail(FormerProblem problem, const QString& path, const QString& reason)
{
    throw FormerError(problem, shown(path) + u' ' + reason + u'.');
}

[[noreturn]] void failUnreadable(const QString& path, const QString& how)
{
    fail(FormerProblem::Unreadable, path, u"is damaged: "_s + how);
}

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

qint64 wholeOf(std::string_view text)
{
    qint64 number = -1;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number).ptr;
    return end == text.data() + text.size() ? number : -1;
}

FieldKind kindOf(std::string_view word)
{
    static constexpr std::array<std::pair<std::string_view, FieldKind>, 6> words{
        std::pair{"yesno", FieldKind::YesNo}, {"whole", FieldKind::Whole}, {"number", FieldKind::Number},
        {"decimal", FieldKind::Decimal},      {"date", FieldKind::Date},   {"text", FieldKind::Text}};
    for (const auto& [known, kind] : words) {
        if (word == known)
            return kind;
    }
    return FieldKind::Other;
}

/// Passes on what the reader's lines say. After a line that is out of place nothing in them can be trusted.
class Lines
{
public:
    Lines(const QString& path, FormerContents& contents) : m_path(path), m_contents(contents) {}

    /// Takes what has arrived; an unfinished line waits for its rest.
    void take(const QByteArray& arrived)
    {
        m_pending += arrived;
        qsizetype begin = 0;
        for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n', begin)) {
            takeLine({m_pending.constData() + begin, static_cast<std::size_t>(end - begin)});
            begin = end + 1;
        }
        m_pending.remove(0, begin);
        if (m_pending.size() > longestLine)
            failUnreadable(m_path, u"a record never ends"_s);
    }
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    void takeLine(std::string_view line)
    {
        split(line);
        const std::string_view word = m_parts.front();
        const std::span<const std::string_view> rest(m_parts.data() + 1, m_parts.size() - 1);
        if (word == "row" && m_state == State::Rows && rest.size() == fieldCount()) {
            m_contents.takeRow(rest);
        } else if (word == "row" && m_state == State::Fields && rest.size() == fieldCount()) {
            beginRows();
            m_contents.takeRow(rest);
        } else if (!takesDefinition(word, rest)) {
            failUnreadable(m_path, u"the reader wrote a line that is out of place"_s);
        }
    }

    bool takesDefinition(std::string_view word, std::span<const std::string_view> rest)
    {
        if (word == "format" && m_state == State::Start && rest.size() == 1) {
            m_contents.setFormat(fromUtf8(rest[0]));
            m_state = State::Tables;
        } else if (word == "table" && m_state == State::Tables && rest.size() == 2) {
            m_table = {fromUtf8(rest[0]), wholeOf(rest[1]), {}};
            m_state = State::Fields;
        } else if (word == "field" && m_state == State::Fields && rest.size() == 2) {
            m_table.fields.append({fromUtf8(rest[0]), kindOf(rest[1])});
        } else if (word == "tableend" && m_state >= State::Fields && rest.size() == 1) {
            if (m_state == State::Fields)
                beginRows();
            m_contents.endTable(wholeOf(rest[0]));
            m_state = State::Tables;
        } else if (word == "unreadable" && m_state == State::Tables && rest.size() == 1) {
            m_contents.takeUnreadableTable(fromUtf8(rest[0]));
        } else if (word == "end" && m_state == State::Tables && rest.empty()) {
            m_isComplete = true;
            m_state = State::Start;
        } else {
            return false;
        }
        return true;
    }

    void beginRows()
    {
        m_contents.beginTable(m_table);
        m_state = State::Rows;
    }

    void split(std::string_view line)
    {
        m_parts.clear();
        for (std::size_t tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t')) {
            m_parts.push_back(line.substr(0, tab));
            line.remove_prefix(tab + 1);
        }
        m_parts.push_back(line);
    }

    [[nodiscard]] std::size_t fieldCount() const { return static_cast<std::size_t>(m_table.fields.size()); }

    enum class State { Start, Tables, Fields, Rows };

    const QString& m_path;
    FormerContents& m_contents;
    QByteArray m_pending;
    std::vector<std::string_view> m_parts;
    FormerTable m_table;
    State m_state = State::Start;
    bool m_isComplete = false;
};

/// In the program's folder, or beside the running program: a package keeps the two apart.
QString findReader(const QString& programFolder)
{
    const QString found = findProgram(readerProgram, programFolder);
    return found.isEmpty() ? findProgram(readerProgram, QCoreApplication::applicationDirPath()) : found;
}

/// Ends the reader, however the reading ends.
class Reader
{
public:
    Reader(const QString& path, const QString& programFolder)
    {
        const QString program = findReader(programFolder);
        if (program.isEmpty()) {
            fail(FormerProblem::NoReader, path,
                 u"cannot be read: the program %1 is missing"_s.arg(readerProgram));
        }
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(program, {path});
        if (!m_process.waitForStarted(-1)) {
            fail(FormerProblem::NoReader, path,
                 u"cannot be read: %1 does not start (%2)"_s.arg(readerProgram, m_process.errorString()));
        }
    }
    ~Reader()
    {
        m_process.kill();
        m_process.waitForFinished(-1);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    QProcess& process() { return m_process; }

private:
    QProcess m_process;
};

void readAll(QProcess& process, const QString& path, Lines& lines, const KeepGoing& keepGoing)
{
    QElapsedTimer silence;
    silence.start();
    // The last lines of a process that has ended are still to be read.
    while (process.waitForReadyRead(millisecondsBetweenLooks) || process.state() != QProcess::NotRunning) {
        if (process.bytesAvailable() > 0) {
            lines.take(process.readAllStandardOutput());
            silence.restart();
        }
        if (silence.elapsed() > mostSilentMilliseconds)
            failUnreadable(path, u"the reader hangs"_s);
        if (keepGoing && !keepGoing())
            throw FormerError(FormerProblem::Cancelled, u"The conversion was cancelled."_s);
    }
    lines.take(process.readAllStandardOutput());
}

} // namespace

void readFormerFile(const QString& path, const QString& programFolder, FormerContents& contents,
                    const KeepGoing& keepGoing)
{
    Reader reader(path, programFolder);
    QProcess& process = reader.process();
    Lines lines(path, contents);
    readAll(process, path, lines, keepGoing);
    if (process.exitStatus() != QProcess::NormalExit)
        failUnreadable(path, u"the reader crashed"_s);
    for (const RefusedFile& refused : refusals) {
        if (process.exitCode() == static_cast<int>(refused.refusal))
            fail(refused.problem, path, QString::fromLatin1(refused.reason));
    }
    if (process.exitCode() != 0 || !lines.isComplete())
        failUnreadable(path, u"the reader stopped early"_s);
}

} // namespace norvane::former
