// The kinds of tax as a register holds them, in the words of the screen.
#include "tests/road/Shop.h"

namespace norvane
{
namespace
{

constexpr int vatBox = 5;

TEST(VatKinds, TheScreenNamesEachRateByItsKind)
{
    test::Shop shop(2, 1);
    EXPECT_TRUE(shop.upload({vatBox}).isEmpty());
    QWidget& screen = shop.openForm("VatMenu");
    QStringList rates;
    for (qint64 rate = 0; rate < shop.rowsOf("TAXRATES"); ++rate) {
        rates += screen.findChild<QLineEdit*>(u"DecimalNumberControl_1"_s)->text() + u' ' +
                 screen.findChild<QComboBox*>(u"ComboControl_1"_s)->currentText();
        test::press(screen, "NextRecord");
    }
    EXPECT_EQ(rates.join(u'|'),
              u"20.000 VAT|5.000 VAT|0.000 VAT|6.250 Tax table|12.500 Tax table|0.000 Added tax"_s);
}

} // namespace
} // namespace norvane
