// The arrows of docs/architecture.md, held against the tree as it is; and the checks themselves, over a small
// tree in which each rule is broken.
#include "tests/architecture/Rules.h"
#include "tests/platform/TestFolder.h"

namespace norvane::test
{

namespace
{
std::string sentences(const QStringList& list)
{
    return list.join(u'\n').toStdString();
}

class TheTree : public testing::Test
{
protected:
    static QString mapText()
    {
        QFile file(QString::fromUtf8(BUILD_MAP));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    const QString m_root = QString::fromUtf8(SOURCE_ROOT);
    const BuildMap m_map{mapText(), m_root};
};

TEST_F(TheTree, IncludesOnlyWhatItLinks)
{
    const IncludeReport report = checkIncludes(m_map, m_root);
    EXPECT_EQ(sentences(report.wrong), "");
    EXPECT_GT(report.includes, 500) << "the walk has missed the sources";
}

TEST_F(TheTree, KeepsWidgetsToFormsAndArrowsDown)
{
    EXPECT_TRUE(m_map.reach(u"norvane"_s).contains(u"Qt6::Widgets"_s)) << "the map has missed the links";
    EXPECT_EQ(sentences(misplacedWidgets(m_map)), "");
    EXPECT_EQ(sentences(folderCycles(m_map)), "");
    EXPECT_EQ(sentences(partialTools(m_map)), "");
}

// Two floors: top_forms stands on top, and top on base.
class PlantedTree : public testing::Test
{
protected:
    [[nodiscard]] static BuildMap map(const QString& root, const QString& more = {})
    {
        QString text =
            u"target STATIC_LIBRARY base ROOT/base\nSOURCES ROOT/base/Value.cpp\n"
            "target STATIC_LIBRARY top ROOT/top\nSOURCES ROOT/top/Plan.cpp\nLINK_LIBRARIES base\n"
            "INTERFACE_LINK_LIBRARIES base\n"
            "target STATIC_LIBRARY top_forms ROOT/top\nSOURCES ROOT/top/Form.cpp\nLINK_LIBRARIES top\n"
            "LINK_LIBRARIES Qt6::Widgets\n"_s +
            more;
        return {text.replace("ROOT"_L1, root), root};
    }
    /// What is told of a tree with these files.
    static std::string wrongIncludes(std::initializer_list<std::pair<const char*, const char*>> files,
                                     const QString& more = {})
    {
        const TestFolder folder;
        for (const auto& [file, text] : files)
            folder.write(file, text);
        return sentences(checkIncludes(map(folder.path(), more), folder.path()).wrong);
    }
};

TEST_F(PlantedTree, LetsIncludesRunDown)
{
    EXPECT_EQ(wrongIncludes({{"base/Value.cpp", "#include \"base/Value.h\"\n#include <vector>\n"},
                             {"top/Plan.cpp", "#include \"base/Value.h\"\n"},
                             {"top/Form.cpp", "#include \"top/Plan.h\"\n#include \"base/Words.h\"\n"}}),
              "");
}

constexpr const char* wrongIncludesTold[][3] = {
    {"base/Value.cpp", "\n#include \"top/Plan.h\"\n",
     "base/Value.cpp:2 includes top/Plan.h of top, which base does not link"},
    // A header without a source is of the lowest library.
    {"base/Words.h", "  #  include \"top/Words.h\"\n",
     "base/Words.h:1 includes top/Words.h of top, which base does not link"},
    {"top/Plan.cpp", "#include \"Form.h\"\n",
     "top/Plan.cpp:1 includes top/Form.h of top_forms, which top does not link"},
    {"tests/top/PlanTest.cpp", "#include \"tests/top/Shared.h\"\n",
     "tests/top/Shared.h:2 includes top/Plan.h of top, which top_test does not link"},
    {"top/Forgotten.cpp", "", "top/Forgotten.cpp belongs to no target"}};

TEST_F(PlantedTree, TellsWrongIncludesWithFileAndLine)
{
    const QString test = u"target EXECUTABLE top_test ROOT/tests/top\nSOURCES ROOT/tests/top/PlanTest.cpp\n"
                         "LINK_LIBRARIES base\n"_s;
    for (const auto& [file, text, told] : wrongIncludesTold)
        EXPECT_EQ(wrongIncludes({{file, text}, {"tests/top/Shared.h", "\n#include \"top/Plan.h\"\n"}}, test),
                  told);
    const QString second = u"target STATIC_LIBRARY second ROOT/base\nSOURCES ROOT/base/Second.cpp\n"_s;
    EXPECT_EQ(wrongIncludes({{"base/Words.h", ""}}, second),
              "base/Words.h could belong to several libraries: list it in the SOURCES of one");
}

TEST_F(PlantedTree, NamesLinksThatBreakARule)
{
    const QString root = u"/tree"_s;
    const BuildMap sound = map(root);
    EXPECT_EQ(misplacedWidgets(sound) + folderCycles(sound) + partialTools(sound), QStringList());
    const BuildMap broken =
        map(root, u"target STATIC_LIBRARY low ROOT/base\nLINK_LIBRARIES top_forms\n"
                  "target EXECUTABLE tool ROOT/tools\nLINK_LIBRARIES base\n"
                  "target INTERFACE_LIBRARY paper ROOT/paper\nINTERFACE_LINK_LIBRARIES Qt6::Widgets\n"
                  "target STATIC_LIBRARY sheet ROOT/sheet\nLINK_LIBRARIES paper\n"_s);
    EXPECT_EQ(folderCycles(broken), QStringList{u"base and top reach each other"_s});
    EXPECT_EQ(partialTools(broken), QStringList{u"tool"_s});
    EXPECT_EQ(misplacedWidgets(broken), QStringList{u"sheet"_s});
}
} // namespace

} // namespace norvane::test
