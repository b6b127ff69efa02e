// The whole programme of a register on its way into the database and out to a second register. What the
// second register holds then is what the first one held, but for the differences that are listed here.
#include "platform/FilePaths.h"
#include "records/RegisterFiles.h"
#include "tests/road/Shop.h"

#include <map>

namespace norvane
{
namespace
{

constexpr int descriptorFile = 19;
constexpr int memoryFile = 52;
constexpr int imageFile = 83;
constexpr int lastFile = 86;

/// What becomes of one column: the text to change, the record that was sent, its line from 1, its column.
struct Travelling {
    QByteArray& text;
    const QByteArrayList& sent;
    qsizetype line;
    qsizetype column;

    [[nodiscard]] QByteArray sentIn(qsizetype other) const { return sent.at(other - 1); }
    /// A number of another column at this one's width.
    void becomes(const QByteArray& number) const
    {
        text = number.right(text.size()).rightJustified(text.size(), '0');
    }
    void isNamed(const char* name) const
    {
        if (text.trimmed().isEmpty())
            text = (name + QByteArray::number(line)).left(text.size()).leftJustified(text.size());
    }
};

using Change = std::function<void(const Travelling&)>;

/// One difference between what a register sends and what it gets back.
struct Difference {
    int file;
    int firstModel; ///< on the models from this index on
    qsizetype column;
    Change change;
    qsizetype every = 0;      ///< again in each so many columns
    qsizetype lastColumn = 0; ///< for the repetition
};

/// An option digit, 0 is the left one.
Change digit(qsizetype place, char sent, char back)
{
    return [=](const Travelling& here) {
        if (here.text[place] == sent)
            here.text[place] = back;
    };
}

/// A bit of an option digit.
void setBit(QByteArray& options, qsizetype place, int weight, bool on)
{
    const int others = (options[place] - '0') & ~weight;
    options[place] = static_cast<char>('0' + others + (on ? weight : 0));
}

bool hasBit(const QByteArray& options, qsizetype place, int weight)
{
    return ((options[place] - '0') & weight) != 0;
}

Change text(const char* sent, const char* back)
{
    return [=](const Travelling& here) {
        if (here.text == sent)
            here.text = back;
    };
}

// clang-format off
const Difference differences[] = {
    // A function key's text is the one text whose "^" goes out as it is, not as the register's mark.
    {2, 0, 1, [](const Travelling& here) { here.text.replace('\xFD', '^'); }},
    // Newer firmware keeps the texts of its card keys: blanks, as no key without a text called for a default.
    {2, 2, 1, [](const Travelling& here) { if (here.line >= 257) here.text.fill(' '); }},
    // Destination 2 beside the eat-in question is the digit of destination 3.
    {3, 0, 1, digit(1, '5', '7')},
    // The start cursor is sent at weight 2 and returned at weight 1; sign-on method 3 reads as 2.
    {3, 0, 7, digit(0, '5', '6')},
    {3, 0, 7, digit(1, '3', '2')},
    // The default price level is sent with a zero after it: ten times as much each time.
    {7, 0, 4, text("001", "010")},
    // That check 4 holds check 3 is sent in the left digit and returned in the right one.
    {8, 0, 2, digit(0, '7', '6')},
    // The port is the first digit after the zeros, and is sent as the left one.
    {10, 0, 2, text("05", "50")},
    // A receipt after an interrupt is always asked for.
    {11, 0, 2, [](const Travelling& here) { setBit(here.text, 0, 4, true); }},
    // A receipt at the time clock is sent in two places and returned in the second.
    {11, 0, 2, [](const Travelling& here) { setBit(here.text, 1, 4, hasBit(here.sentIn(3), 0, 1)); }},
    // How the date is printed is only ever read.
    {11, 0, 4, [](const Travelling& here) { setBit(here.text, 0, 3, false); }},
    // A currency symbol is one character.
    {11, 0, 11, text("Fr ", "F  ")},
    // The question before a reset is answered at the place of the omitted tax totals.
    {13, 0, 2, [](const Travelling& here) { setBit(here.text, 1, 1, hasBit(here.text, 1, 4)); }},
    // Three decimal places are sent as 6, which reads as two.
    {15, 0, 1, [](const Travelling& here) { setBit(here.text, 0, 2, false); }},
    // Texts lose the blanks in front of them, message lines their zeros too.
    {25, 0, 5, [](const Travelling& here) { here.text = here.text.trimmed().leftJustified(here.text.size()); }},
    {26, 0, 10, [](const Travelling& here) { if (here.text.startsWith('0')) here.text = here.text.sliced(1) + ' '; }},
    // Each number of a tax table comes from the column after it, all reserves and the end from the first
    // reserve.
    {29, 0, 4, [](const Travelling& here) { here.becomes(here.sentIn(here.column + 1)); }, 1, 7},
    {29, 0, 9, [](const Travelling& here) { here.becomes(here.sentIn(8)); }, 1, 30},
    // Negative sales are sent in column 2 and overwritten by the detail option of column 3, which is lost
    // itself.
    {36, 0, 2, [](const Travelling& here) { setBit(here.text, 1, 4, hasBit(here.sentIn(3), 0, 4)); }},
    {36, 0, 3, [](const Travelling& here) { setBit(here.text, 0, 4, false); }},
    // Added points give way to the removed card in the same way.
    {36, 0, 4, [](const Travelling& here) { setBit(here.text, 1, 1, hasBit(here.sentIn(5), 1, 1)); }},
    {36, 0, 5, [](const Travelling& here) { setBit(here.text, 1, 1, false); }},
    // Product mixes and recipes without a name get one.
    {58, 0, 1, [](const Travelling& here) { here.isNamed("Prod Mix "); }},
    {60, 0, 1, [](const Travelling& here) { here.isNamed("Recipe "); }},
    // The kinds of a recipe's items go down by one, and the quantity sent is the item's number.
    {60, 0, 2, text("20", "00"), 3, 61},
    {60, 0, 2, text("40", "20"), 3, 61},
    {60, 0, 4, [](const Travelling& here) { here.becomes(here.sentIn(here.column - 1)); }, 3, 61},
    // The grill number is read into the flag before it and is never sent.
    {65, 0, 9, [](const Travelling& here) { setBit(here.text, 0, 4, here.sentIn(12) != "00"); }},
    {65, 0, 12, [](const Travelling& here) { here.text = "00"; }},
    // A price without a level has the level of its position.
    {67, 0, 22, text("00", "05")},
};
// clang-format on

/// Applies a difference to a record. @return whether it changed anything.
bool apply(const Difference& difference, const QByteArrayList& sent, qsizetype line, QByteArrayList& expected)
{
    const QByteArrayList before = expected;
    qsizetype column = difference.column;
    do {
        difference.change({expected[column - 1], sent, line, column});
        column += difference.every;
    } while (column <= difference.lastColumn);
    return expected != before;
}

QList<QByteArrayList> expectedOf(int file, int model, const QList<QByteArrayList>& sent)
{
    QList<QByteArrayList> expected = sent;
    for (const Difference& difference : differences) {
        if (difference.file != file || model < difference.firstModel)
            continue;
        bool seen = false;
        for (qsizetype line = 1; line <= sent.size(); ++line)
            seen = apply(difference, sent[line - 1], line, expected[line - 1]) || seen;
        EXPECT_TRUE(seen) << "file " << file << ", column " << difference.column
                          << ": a listed difference that did not come up";
    }
    return expected;
}

/// All boxes at once, from the first of two registers to both.
class RoundTrip : public testing::TestWithParam<int>
{
protected:
    static constexpr int first = 1;
    static constexpr int second = 2;

    [[nodiscard]] QString path(int machine, int file) { return m_shop.folder().registerFile(machine, file); }
    [[nodiscard]] static bool hasText(int file) { return records::registerFile(file) != nullptr; }

    /// Keeps what the first register holds and leaves nothing of the factory in the second one, so what that
    /// has later has come.
    void takeStock()
    {
        for (int file = 1; file <= lastFile; ++file) {
            if (!QFile::exists(path(first, file)))
                continue;
            if (hasText(file)) {
                m_texts[file] = m_shop.recordsOf(first, file);
            } else {
                m_bytes[file] = readWholeFile(path(first, file));
            }
            if (file != memoryFile) {
                EXPECT_TRUE(QFile::remove(path(second, file)));
            }
        }
        EXPECT_EQ(m_texts.erase(descriptorFile), 1U);
    }

    void moveEverything()
    {
        EXPECT_TRUE(m_shop.upload().isEmpty());
        // Nobody notices a conversion that fails and sends what is left of the upload: nothing is left.
        QDir app(m_shop.folder().appPath());
        for (const QString& file : app.entryList({u"*.dat"_s}))
            EXPECT_TRUE(app.remove(file));
        EXPECT_TRUE(m_shop.download().isEmpty());
        for (const auto& box : m_shop.boxes().shown)
            ADD_FAILURE() << box.text.toStdString();
        if (const auto failure = test::takeFailure())
            ADD_FAILURE() << failure->text().toStdString();
    }

    void compareText(int file, const QList<QByteArrayList>& sent)
    {
        SCOPED_TRACE(testing::Message() << "file " << file);
        const auto expected = expectedOf(file, GetParam(), sent);
        const auto back = m_shop.recordsOf(second, file);
        ASSERT_EQ(back.size(), expected.size());
        for (qsizetype line = 0; line < back.size(); ++line)
            ASSERT_STREQ(back[line].join(','), expected[line].join(',')) << "line " << line + 1;
    }

    test::Shop m_shop{GetParam(), 2};
    std::map<int, QList<QByteArrayList>> m_texts;
    std::map<int, QByteArray> m_bytes;
};

TEST_P(RoundTrip, BringsEverythingBackExceptForTheListedDifferences)
{
    takeStock();
    EXPECT_EQ(m_texts.size(), GetParam() == 0 ? 37U : 40U);
    EXPECT_EQ(m_bytes.size(), 28U);
    moveEverything();
    for (const auto& [file, sent] : m_texts)
        compareText(file, sent);
    for (const auto& [file, bytes] : m_bytes) {
        // A register without a picture has an empty image file, which is not sent.
        const bool arrives = file != imageFile || !bytes.isEmpty();
        ASSERT_EQ(QFile::exists(path(second, file)), arrives) << file;
        EXPECT_TRUE(!arrives || readWholeFile(path(second, file)) == bytes) << file;
    }
    EXPECT_EQ(readWholeFile(m_shop.values().customerPath + u"/MEM.dat"_s), m_bytes[memoryFile]);
    EXPECT_FALSE(QFile::exists(path(second, descriptorFile))) << "nobody moves the system descriptors";
}

INSTANTIATE_TEST_SUITE_P(Models, RoundTrip, testing::Range(0, 4));

} // namespace
} // namespace norvane
