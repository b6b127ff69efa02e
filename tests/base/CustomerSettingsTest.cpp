// What the customer's settings say of the register.
#include "base/CustomerSettings.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

TEST(CustomerSettingsTest, ModelIndexesGiveTheConvertersWords)
{
    test::TestFolder folder;
    ApplicationValues values;
    values.customerPath = folder.path();
    EXPECT_EQ(GetModelCode(values), u"Velmaro") << "without a settings file";
    for (const auto& [model, code] : {std::pair{" 0", u"Velmaro"},
                                      {"1", u"Velmaro"},
                                      {"2", u"Velmarn"},
                                      {"3", u"Dorvik"},
                                      {"-1", u"Dorvik"}}) {
        folder.write("setup.ini", QByteArray("[SetupOption]\r\nECRModel=") + model);
        EXPECT_EQ(GetModelCode(values), code) << model;
    }
}

} // namespace
} // namespace norvane
