// The arrows of docs/architecture.md, compared with the tree as it is; and the checks themselves, over a
// small tree in which each rule is broken.
#include "tests/architecture/Rules.h"
#include "tests/platform/TestFolder.h"

namespace norvane::test
{

namespace
{

TEST(TheTree, KeepsWidgetsToFormsAndArrowsDown)
{
    QFile file(QString::fromUtf8(BUILD_MAP));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString root = QString::fromUtf8(SOURCE_ROOT);
    const BuildMap map(QString::fromUtf8(file.readAll()), root);
    EXPECT_TRUE(map.reach(u"norvane"_s).contains(u"Qt6::Widgets"_s)) << "the map has missed the links";
    EXPECT_EQ(misplacedWidgets(map) + folderCycles(map) + partialTools(map), QStringList());
    EXPECT_EQ(undeclaredIncludes(map, root).join(u'\n').toStdString(), "");
}

// Each floor above base breaks a rule; base itself breaks one once low is in its folder.
constexpr const char* broken =
    "target STATIC_LIBRARY base ROOT/base\n"
    "target STATIC_LIBRARY top_forms ROOT/top\n"
    "LINK_LIBRARIES base\nINTERFACE_LINK_LIBRARIES base\nLINK_LIBRARIES Qt6::Widgets\n"
    "target EXECUTABLE tool ROOT/tools\nLINK_LIBRARIES top_forms\n"
    "target INTERFACE_LIBRARY paper ROOT/paper\n"
    "INTERFACE_LINK_LIBRARIES Qt6::Widgets\n"
    "target STATIC_LIBRARY sheet ROOT/sheet\nLINK_LIBRARIES paper\n"
    "target STATIC_LIBRARY engine ROOT/store/engine\n"
    "target STATIC_LIBRARY totals ROOT/store/totals\nLINK_LIBRARIES engine\n";

TEST(PlantedTree, NamesWhatBreaksARule)
{
    const TestFolder folder;
    const auto map = [&folder](const char* text) {
        return BuildMap(QString::fromLatin1(text).replace("ROOT"_L1, folder.path()), folder.path());
    };
    folder.write("top/deep/Form.cpp", "#include \"base/Value.h\"\n#include \"Form.h\"\n#include <vector>\n");
    folder.write("base/Value.h", "\n  #  include \"top/Plan.h\"\n");
    folder.write("store/engine/Row.h", "#include \"store/totals/Total.h\"\n");
    folder.write("store/totals/Total.h", "#include \"store/engine/Row.h\"\n");
    const BuildMap tree = map(broken);
    QStringList wrong = undeclaredIncludes(tree, folder.path());
    wrong.sort();
    EXPECT_EQ(wrong, (QStringList{u"base/Value.h includes top/Plan.h"_s,
                                  u"store/engine/Row.h includes store/totals/Total.h"_s}));
    EXPECT_EQ(partialTools(tree), QStringList{u"tool"_s});
    EXPECT_EQ(misplacedWidgets(tree), QStringList{u"sheet"_s});
    EXPECT_EQ(folderCycles(tree), QStringList());
    const std::string cycle =
        std::string(broken) + "target STATIC_LIBRARY low ROOT/base\nLINK_LIBRARIES top_forms\n";
    EXPECT_EQ(folderCycles(map(cycle.c_str())), QStringList{u"base and top reach each other"_s});
}
} // namespace

} // namespace norvane::test
