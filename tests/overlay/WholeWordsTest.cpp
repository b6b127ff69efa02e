// How texts are set in whole words on one key, and what is remembered beside a document.
#include "overlay/WholeWords.h"

#include "overlay/DocumentEditor.h"
#include "overlay/NotesFile.h"
#include "tests/platform/TestFolder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace norvane::overlay
{
namespace
{

using namespace Qt::Literals::StringLiterals;

/// The key of cells 0 to 2 of a Velmar before and after, and what it is called in the programme.
struct SetKey {
    const char* why;
    QStringList lines;
    QString programme;
    QStringList expected;
    float size = 8;
};

// clang-format off
const SetKey setKeys[] = {
    {"cut in a word", {u"HAMBURG"_s, u"ER "_s, u"CHEESE"_s}, u"HAMBURGER CHEESE"_s, {u"HAMBURGER"_s, u"CHEESE"_s, {}}, 6},
    {"cut at the end", {u"DOUBLE "_s, u"CHEESEB"_s, u"URGER "_s}, u"DOUBLE CHEESEBURGER BUN"_s, {u"DOUBLE"_s, u"CHEESEBURGER"_s, u"BUN"_s}, 4.5F},
    {"a line that is only a blank", {u"CHICKEN"_s, u" "_s, u"SALAD"_s}, u"CHICKEN SALAD"_s, {u"CHICKEN"_s, u" "_s, u"SALAD"_s}},
    {"changed by the user", {u"BIG"_s, u"MAX"_s, {}}, u"HAMBURGER"_s, {u"BIG"_s, u"MAX"_s, {}}},
    {"set before, in other lines", {u"HAMBURGER CHEESE"_s, {}, {}}, u"HAMBURGER CHEESE"_s, {u"HAMBURGER"_s, u"CHEESE"_s, {}}, 6},
    {"a soft hyphen", {u"INCOMPR"_s, u"EHENSIB"_s, u"LY"_s}, u"INCOMPRE\u00adHENSIBLY"_s, {u"INCOMPRE-"_s, u"HENSIBLY"_s, {}}, 7},
    {"a soft hyphen that is not needed", {u"TEA\u00adPOT"_s, {}, {}}, {}, {u"TEA\u00adPOT"_s, {}, {}}},
    {"a soft hyphen broken before", {u"INCOMPRE-"_s, u"HENSIBLY"_s, {}}, u"INCOMPRE\u00adHENSIBLY"_s, {u"INCOMPRE-"_s, u"HENSIBLY"_s, {}}, 7},
    {"a hyphen of the user's", {u"COCA-COLA ZERO"_s, {}, {}}, {}, {u"COCA-"_s, u"COLA"_s, u"ZERO"_s}},
};
// clang-format on

TEST(WholeWordsTest, SetsTheLinesOfAKey)
{
    for (const SetKey& each : setKeys) {
        SCOPED_TRACE(each.why);
        Document document(Keyboard::Velmar);
        for (int line = 0; line < 3; ++line)
            document.cell(line).text = each.lines[line];
        ProgrammeTexts programme(document.layout().keys().size());
        programme[0] = {u"another level"_s, each.programme};
        const auto result = setWholeWords(document, {0}, programme, 4);
        for (int line = 0; line < 3; ++line)
            EXPECT_EQ(document.cell(line).text, each.expected[line]) << line;
        EXPECT_EQ(document.cell(0).font.size, each.size);
        EXPECT_TRUE(result.unfit.empty());
    }
}

TEST(WholeWordsTest, LeavesFontsAsOddAsTheyAre)
{
    const ProgrammeTexts none(layoutOf(Keyboard::Velmar).keys().size());
    for (const float size : {0.0F, -3.0F, 1e30F, 5.0F, std::nextafter(8.0F, 9.0F)}) {
        Document document(Keyboard::Velmar);
        document.cell(0) = {u"HAMBURGERS"_s, white, black, {u"No Such Font"_s, size, true, false}};
        const auto result = setWholeWords(document, {0}, none, 6);
        const bool fits = result.unfit.empty();
        EXPECT_EQ(document.cell(fits && size > 6 ? 1 : 0).text, u"HAMBURGERS"_s) << size;
        EXPECT_LE(document.cell(0).font.size, size) << "letters are never made larger";
    }
}

const std::pair<const char*, DocumentNotes> notesFiles[] = {
    {"", {}},
    {"[Overlay]\nKeyboard=Dorvik\nLevel=2\n", {}},
    {"[Overlay]\nKeyboard=Velmar\nLevel=9\n[Group x]\nBackGround=1\nTextColour=2\n", {}},
    {"[Overlay]\nKeyboard=Velmar\nLevel=2\n[Group 3]\nBackGround=1\nTextColour=2\n[Group "
     "4]\nBackGround=red\n",
     {2, {{3, {{1}, {2}}}}}},
};

TEST(NotesFileTest, ReadsWhatIsThereAndNothingElse)
{
    const test::TestFolder folder;
    EXPECT_EQ(readNotes(folder.path("a.Velmar"), Keyboard::Velmar), DocumentNotes()) << "no file";
    for (const auto& [content, expected] : notesFiles) {
        folder.write("a.Velmar.notes", content);
        EXPECT_EQ(readNotes(folder.path("a.Velmar"), Keyboard::Velmar), expected) << content;
    }
}

TEST(NotesFileTest, NotesAreUndoneWithTheirStep)
{
    DocumentEditor editor(Keyboard::Velmar);
    editor.change(u"Colour"_s, [](Document& document) { document.notes().groups[3] = {{255}, black}; });
    EXPECT_FALSE(editor.history().isClean()) << "they are saved with the document";
    editor.history().undo();
    EXPECT_EQ(editor.document().notes(), DocumentNotes());
    editor.history().redo();
    EXPECT_EQ(editor.document().notes().groups.size(), 1U);
}

} // namespace
} // namespace norvane::overlay
