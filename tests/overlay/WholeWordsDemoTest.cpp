// Level 1 of the shop to look at, as a dealer prints it: no word is broken.
#include "overlay/KeyFont.h"
#include "overlay/LevelImport.h"
#include "overlay/SheetPainter.h"
#include "overlay/WholeWords.h"
#include "tests/support/FormTest.h"
#include "tests/support/ProgramFolder.h"

#include <QProcess>

#include <numeric>

namespace norvane::overlay
{
namespace
{

QStringList wordsOnKey(const Document& document, const OverlayKey& key)
{
    QStringList words;
    for (int cell = key.firstCell; cell <= key.lastCell(); ++cell)
        words += document.cell(cell).text.split(u' ', Qt::SkipEmptyParts);
    return words;
}

TEST(WholeWordsDemoTest, LevelOneOfTheDemoShopHasNoBrokenWord)
{
    const test::ProgramFolder folder{2, 1};
    const test::TestFolder scratch;
    ASSERT_EQ(
        QProcess::execute(QStringLiteral(DEMO_SHOP),
                          {folder.appPath(), u"--tools"_s, QStringLiteral(TOOLS_FOLDER), u"--scratch"_s,
                           scratch.path(), u"--first"_s, u"2025-12-24"_s, u"--last"_s, u"2025-12-24"_s}),
        0);
    const QString database = folder.appFile(u"DEMO CAFE/velmar.mdb"_s);
    Document document(Keyboard::Velmar);
    importdata(document, 1, database);
    const auto& keys = document.layout().keys();
    const auto programme = keysOfLevel(Keyboard::Velmar, 1, database);
    const auto brokenKeys = [&] {
        int broken = 0;
        for (std::size_t key = 0; key < keys.size(); ++key) {
            if (programme[key].use != KeyUse::Number &&
                wordsOnKey(document, keys[key]) != programme[key].text.split(u' ', Qt::SkipEmptyParts))
                ++broken;
        }
        return broken;
    };
    EXPECT_GT(brokenKeys(), 30) << "the import cuts at seven characters";
    std::vector<int> all(keys.size());
    std::iota(all.begin(), all.end(), 0);
    const auto texts = readProgrammeTexts(Keyboard::Velmar, database);
    const auto result = setWholeWords(document, all, texts, usualSmallestSize);
    EXPECT_GT(result.changedKeys, 30);
    EXPECT_TRUE(result.unfit.empty()) << qPrintable(result.unfit.front().text);
    EXPECT_EQ(brokenKeys(), 0);
    EXPECT_EQ(cutCells(document), std::vector<int>());
    for (const TextCell& cell : document.cells()) {
        EXPECT_GE(cell.font.size, usualSmallestSize);
        EXPECT_LE(KeyFont(cell.font).width(cell.text).inMillimetres(), 14.7) << qPrintable(cell.text);
    }
    const Document once = document;
    setWholeWords(document, all, texts, usualSmallestSize);
    EXPECT_EQ(document, once) << "what is right remains";
}

} // namespace
} // namespace norvane::overlay
