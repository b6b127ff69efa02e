// The arrows of docs/architecture.md, held against the tree as it is; and the checks themselves, over a small
// tree in which each rule is broken.
#include "tests/architecture/IncludeCheck.h"
#include "tests/architecture/LinkCheck.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

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
    void plant(const QString& file, const QByteArray& text)
    {
        const QString path = m_folder.filePath(file);
        QDir().mkpath(folderOf(path));
        QFile planted(path);
        ASSERT_TRUE(planted.open(QIODevice::WriteOnly) && planted.write(text) == text.size());
    }

    [[nodiscard]] BuildMap map(const QString& more = {}) const
    {
        QString text =
            u"target STATIC_LIBRARY base ROOT/base\nSOURCES ROOT/base/Value.cpp\n"
            "target STATIC_LIBRARY top ROOT/top\nSOURCES ROOT/top/Plan.cpp\nLINK_LIBRARIES base\n"
            "INTERFACE_LINK_LIBRARIES base\n"
            "target STATIC_LIBRARY top_forms ROOT/top\nSOURCES ROOT/top/Form.cpp\nLINK_LIBRARIES top\n"
            "LINK_LIBRARIES Qt6::Widgets\n"_s +
            more;
        return {text.replace("ROOT"_L1, m_folder.path()), m_folder.path()};
    }

    std::string wrongIncludes(const QString& more = {}) const
    {
        return sentences(checkIncludes(map(more), m_folder.path()).wrong);
    }

    QTemporaryDir m_folder;
};

TEST_F(PlantedTree, LetsIncludesRunDown)
{
    plant(u"base/Value.cpp"_s, "#include \"base/Value.h\"\n#include <vector>\n");
    plant(u"top/Plan.cpp"_s, "#include \"base/Value.h\"\n");
    plant(u"top/Form.cpp"_s, "#include \"top/Plan.h\"\n#include \"base/Words.h\"\n");
    EXPECT_EQ(wrongIncludes(), "");
}

struct Wrong {
    const char* name;
    const char* file;
    const char* text;
    const char* sentence;
};

class WrongIncludes : public PlantedTree, public testing::WithParamInterface<Wrong>
{
};

TEST_P(WrongIncludes, AreToldWithFileAndLine)
{
    plant(QString::fromLatin1(GetParam().file), GetParam().text);
    const QString test = u"target EXECUTABLE top_test ROOT/tests/top\nSOURCES ROOT/tests/top/PlanTest.cpp\n"
                         "LINK_LIBRARIES base\n"_s;
    plant(u"tests/top/Shared.h"_s, "\n#include \"top/Plan.h\"\n");
    EXPECT_EQ(wrongIncludes(test), GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(
    Each, WrongIncludes,
    testing::Values(Wrong{"Upwards", "base/Value.cpp", "\n#include \"top/Plan.h\"\n",
                          "base/Value.cpp:2 includes top/Plan.h of top, which base does not link"},
                    Wrong{"HeaderWithoutSourceIsOfTheLowestLibrary", "base/Words.h",
                          "  #  include \"top/Words.h\"\n",
                          "base/Words.h:1 includes top/Words.h of top, which base does not link"},
                    Wrong{"LogicKnowsNoForm", "top/Plan.cpp", "#include \"Form.h\"\n",
                          "top/Plan.cpp:1 includes top/Form.h of top_forms, which top does not link"},
                    Wrong{"SharedHeaderOfTests", "tests/top/PlanTest.cpp",
                          "#include \"tests/top/Shared.h\"\n",
                          "tests/top/Shared.h:2 includes top/Plan.h of top, which top_test does not link"},
                    Wrong{"OfNoTarget", "top/Forgotten.cpp", "", "top/Forgotten.cpp belongs to no target"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(PlantedTree, AsksForTheLibraryOfAHeaderThatSeveralCouldOwn)
{
    plant(u"base/Words.h"_s, "");
    EXPECT_EQ(wrongIncludes(u"target STATIC_LIBRARY second ROOT/base\nSOURCES ROOT/base/Second.cpp\n"_s),
              "base/Words.h could belong to several libraries: list it in the SOURCES of one");
}

TEST_F(PlantedTree, NamesLinksThatBreakARule)
{
    EXPECT_EQ(misplacedWidgets(map()) + folderCycles(map()) + partialTools(map()), QStringList());
    const BuildMap broken =
        map(u"target STATIC_LIBRARY low ROOT/base\nLINK_LIBRARIES top_forms\n"
            "target EXECUTABLE tool ROOT/tools\nLINK_LIBRARIES base\n"
            "target INTERFACE_LIBRARY paper ROOT/paper\nINTERFACE_LINK_LIBRARIES Qt6::Widgets\n"
            "target STATIC_LIBRARY sheet ROOT/sheet\nLINK_LIBRARIES paper\n"_s);
    EXPECT_EQ(folderCycles(broken), QStringList{u"base and top reach each other"_s});
    EXPECT_EQ(partialTools(broken), QStringList{u"tool"_s});
    EXPECT_EQ(misplacedWidgets(broken), QStringList{u"sheet"_s});
}
} // namespace

} // namespace norvane::test
