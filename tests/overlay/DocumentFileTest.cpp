// Overlay documents and their files: the contents of a new one, what is read and which files are written.
#include "overlay/DocumentFile.h"

#include "overlay/KeyLines.h"
#include "tests/platform/FullDisk.h"
#include "tests/platform/TestFolder.h"

namespace norvane::test
{
namespace
{

using namespace overlay;

/// Seven lines of a cell.
QByteArray cellLines(const QByteArray& text, const QByteArray& rest = "16777215,0,Arial,8,True,False")
{
    return text + "\r\n" + QByteArray(rest).replace(",", "\r\n") + "\r\n";
}

TEST(DocumentTest, BeginsWithTheDigitsAndFeedsOfItsKeyboard)
{
    std::map<Keyboard, QStringList> texts;
    for (const Keyboard keyboard : {Keyboard::Dorvik, Keyboard::Velmar, Keyboard::Quelmont}) {
        const Document document(keyboard);
        for (int cell = 0; cell < document.cellCount(); ++cell) {
            if (!document.cell(cell).text.isEmpty())
                texts[keyboard] << u"%1:%2"_s.arg(cell).arg(document.cell(cell).text);
        }
        texts[keyboard] << QString::number(document.cellCount());
    }
    EXPECT_EQ(
        texts[Keyboard::Dorvik].join(u'|').toStdString(),
        "0: RECEIPT|1: FEED|30: JOURNAL|31: FEED|378: 7|379: 4|380: 1|381: 0|400: 8|401: 5|402: 2|403:00|"
        "422: 9|423: 6|424: 3|425:  .|456");
    EXPECT_EQ(texts[Keyboard::Velmar].join(u'|').toStdString(),
              "378: 7|379: 4|380: 1|381: 0|409: 8|410: 5|411: 2|412:00|440: 9|441: 6|442: 3|443:  .|483");
    EXPECT_EQ(texts[Keyboard::Quelmont].join(u'|').toStdString(), "183");
}

TEST(DocumentFileTest, HasSevenPlainLinesForEachCellAndKeepsEveryAttribute)
{
    const TestFolder folder;
    Document written(Keyboard::Quelmont);
    written.cell(0) = {
        u"  Tö\r\nffee €"_s, {-2147483643}, {255 + 256 * 128}, {u"Courier New"_s, 8.3F, false, true}};
    writeDocument(folder.path("a.ky4"), written);
    const QByteArray bytes = folder.read("a.ky4");
    EXPECT_TRUE(bytes.startsWith(
        cellLines("  T\xF6  ffee \x80", "-2147483643,33023,Courier New,8.3,False,True") + cellLines("")));
    EXPECT_EQ(bytes.count("\r\n"), 183 * 7);
    EXPECT_EQ(bytes.count('\n'), 183 * 7);
    Document read(Keyboard::Quelmont);
    readDocument(folder.path("A.KY4"), read);
    written.cell(0).text = u"  Tö  ffee €"_s;
    EXPECT_EQ(read, written);
}

std::string described(const TextCell& cell)
{
    return u"%1|%2,%3|%4 %5%6%7"_s.arg(cell.text.size() > 10 ? QString::number(cell.text.size()) : cell.text)
        .arg(cell.background.number)
        .arg(cell.textColour.number)
        .arg(cell.font.name)
        .arg(cell.font.size)
        .arg(cell.font.isBold ? u" bold"_s : QString(), cell.font.isItalic ? u" italic"_s : QString())
        .toStdString();
}

TEST(DocumentFileTest, ABadFileFailsAndKeepsWhatWasReadBefore)
{
    const QByteArray one = cellLines("1");
    const struct {
        const char* what;
        QByteArray content;
        int failure;
        const char* second; ///< what the second cell is afterwards
    } files[] = {
        {"empty", "", 62, "|16777215,0|Arial 8 bold"},
        {"cut off between lines", one + "2\r\n  255 \r\n", 62, "2|255,0|Arial 8 bold"},
        {"cut off in a word", one + cellLines("2", "1,2,X,9,False,Tru").chopped(2), 13, "2|1,2|X 9"},
        {"colour is none", one + cellLines("2", "red,0,X,9,False,True"), 13, "2|16777215,0|Arial 8 bold"},
        {"colour is empty", one + cellLines("2", "1,,X,9,False,True"), 13, "2|1,0|Arial 8 bold"},
        {"colour is too large", one + cellLines("2", "1,4294967296,X,9,False,True"), 6, "2|1,0|Arial 8 bold"},
        {"highest bit", one + cellLines("2", "2147483653,0,X,-9,False,True"), 62,
         "2|-2147483643,0|X -9 italic"},
        {"size is none", one + cellLines("2", "1,2,X,large,False,True"), 13, "2|1,2|X 8 bold"},
        {"size is too large", one + cellLines("2", "1,2,X,1e39,False,True"), 6, "2|1,2|X 8 bold"},
        {"line is too long", one + QByteArray(200000, '\xFF'), 3163, "|16777215,0|Arial 8 bold"},
        {"longer than needed", one + cellLines("2").repeated(482), 0, "2|16777215,0|Arial 8 bold"},
        {"longest text", one + QByteArray(cellTextLimit, 'x') + "\r\n", 62, "32767|16777215,0|Arial 8 bold"}};
    const TestFolder folder;
    for (const auto& [what, content, failure, second] : files) {
        folder.write("a.ky4", content);
        Document document(Keyboard::Quelmont);
        EXPECT_EQ(failureOf([&] { readDocument(folder.path("a.ky4"), document); }), failure) << what;
        EXPECT_EQ(described(document.cell(1)), second) << what;
    }
}

TEST(DocumentFileTest, SavesCompletelyOrKeepsTheOldFile)
{
    const TestFolder folder;
    folder.write("a.ky4", "old");
    const Document document(Keyboard::Quelmont);
    {
        const FullDisk disk(2000);
        EXPECT_EQ(failureOf([&] { writeDocument(folder.path("a.ky4"), document); }), 61);
    }
    EXPECT_EQ(folder.read("a.ky4"), "old");
    EXPECT_EQ(folder.names(), QStringList{u"a.ky4"_s});
    EXPECT_EQ(failureOf([&] { writeDocument(folder.path("none/a.ky4"), document); }), 75);
    Document read(Keyboard::Quelmont);
    EXPECT_EQ(failureOf([&] { readDocument(folder.path("b.ky4"), read); }), 53);
    EXPECT_EQ(failureOf([&] { readDocument(folder.path(), read); }), 75);
}

TEST(KeyLinesTest, IsSplitAtBlanksOrAtSevenCharacters)
{
    const std::map<QString, QString> lines = {{u"  Coffee "_s, u"|Coffee|"_s},
                                              {u""_s, u"||"_s},
                                              {u"Lattes."_s, u"Lattes.||"_s},
                                              {u"ABCDEFG HIJ"_s, u"ABCDEFG| |HIJ"_s},
                                              {u"Chocolate"_s, u"Chocola|te|"_s},
                                              {u"Black Forest Cake to go"_s, u"Black |Forest |Cake "_s},
                                              {u"a b c d e"_s, u"a |b |c "_s},
                                              {u"Sevenss Twelve"_s, u"Sevenss| |Twelve"_s},
                                              {u"Latte Macchiato"_s, u"Latte |Macchia|to"_s}};
    for (const auto& [text, expected] : lines) {
        const auto cut = CUTTEXTUP(text);
        EXPECT_EQ((cut[0] + u'|' + cut[1] + u'|' + cut[2]).toStdString(), expected.toStdString());
    }
}

} // namespace
} // namespace norvane::test
