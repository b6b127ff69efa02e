// The entries for logo images. They cannot be chosen in the menu, so the test calls what stands behind them.
#include "shell/Openers.h"
#include "tests/shell/ShellFixture.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

class LogoImagesTest : public ShellFixture
{
protected:
    LogoImagesTest() { m_values.appPath = m_folder.path("my app"); }

    QStringList notices(const QString& entry)
    {
        const auto openers = makeOpeners(m_values, m_boxes);
        FrmMain main(m_values, m_boxes, openers);
        const MenuEntry* const chosen = menuEntry(QLatin1StringView(entry.toLatin1()));
        openers.value(chosen->target)(main, *chosen);
        QStringList texts;
        for (const auto& box : std::exchange(m_boxes.shown, {})) {
            EXPECT_EQ(box.title, applicationTitle());
            texts.append(box.text);
        }
        return texts;
    }
};

TEST_F(LogoImagesTest, BothTellTheRulesAndOnlyTheFirstRunsTheConverterToItsEnd)
{
    const QString rules = u"This utility converts the bitmap's you have created into a single DAT file ready "
                          u"for downloading to "
                          "the cash register\n\nYou MUST ensure that non of the images you are converting "
                          "are greater than 432 X "
                          "144 pixels\n\n"_s;
    const QStringList first{rules + u"Please note this conversion works with SRP350 printers only"_s};
    EXPECT_EQ(notices(u"Convert350"_s), first) << "and nothing more where there is no converter";

    m_folder.write("my app/conv_nv.exe", "#!/bin/sh\nsleep 0.2\necho made > \"$(dirname \"$0\")/made\"\n");
    const QString converter = m_folder.path("my app/conv_nv.exe");
    ASSERT_TRUE(QFile::setPermissions(converter, QFile::permissions(converter) | QFile::ExeOwner));
    EXPECT_EQ(notices(u"convert550"_s),
              QStringList{rules + u"Please note this conversion works for SRP500 printers only"_s});
    EXPECT_FALSE(QFile::exists(m_folder.path("my app/made")));
    EXPECT_EQ(notices(u"Convert350"_s), first);
    EXPECT_EQ(m_folder.read("my app/made"), "made\n");
}

} // namespace
} // namespace norvane::shell
