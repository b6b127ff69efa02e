// Every window behind the menu, read as a screen reader does it.
#include "tests/road/SpokenForms.h"

#include "shell/MenuTree.h"
#include "tests/road/Shop.h"

namespace norvane
{
namespace
{

using shell::Opens, test::Shop;

class SpokenFormsTest : public testing::TestWithParam<int>
{
};

/// Those of "Utilities" begin their work at once.
bool opensForm(const shell::MenuEntry& entry)
{
    const bool isForm =
        entry.opens != Opens::Menu && entry.opens != Opens::Nothing && entry.opens != Opens::Separator;
    return isForm && entry.choosable == shell::Choosable::Yes && entry.parent != "Utils"_L1 &&
           entry.name != "Exit"_L1;
}

TEST_P(SpokenFormsTest, EveryControlHasNameWordsRoleStateAndValue)
{
    Shop shop(GetParam(), 1);
    shop.upload();
    shop.boxes().answers = {true}; // to leave the customer dialog
    test::SpokenForms reader;
    const auto look = [&reader](QWidget& form) {
        reader.read(form);
        form.close();
    };
    QTimer modalForms;
    QObject::connect(&modalForms, &QTimer::timeout, [&look] {
        if (QWidget* const modal = QApplication::activeModalWidget())
            look(*modal);
    });
    modalForms.start(0);
    QStringList opened;
    for (const shell::MenuEntry& entry : shell::menuTree()) {
        if (!opensForm(entry) || opened.contains(entry.target))
            continue;
        if (entry.opens == Opens::Form)
            opened += entry.target;
        shop.choose(entry.name.data());
        if (QWidget* const form = shop.front())
            look(*form);
        EXPECT_FALSE(test::takeFailure().has_value()) << entry.name.data();
    }
    EXPECT_GT(reader.controlsRead(), 1000);
    EXPECT_EQ(reader.complaints().join(u'\n').toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Models, SpokenFormsTest, testing::Values(2, 3));

} // namespace
} // namespace norvane
