// Choosing a customer of the former program in the dialog.
#include "shell/FrmCustomer.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormerWriter.h"

#include <QLineEdit>
#include <QPushButton>

namespace norvane::shell
{
namespace
{

using test::FormerType, test::FormerWriter;

class FormerCustomerTest : public ShellFixture
{
protected:
    FormerCustomerTest()
    {
        QFile::copy(QStringLiteral(READER), m_folder.path("app/norvane-former"));
        FormerWriter writer;
        const QVariantList row{u"000000000000001001"_s, u"Tea"_s};
        writer.add({u"PLUDATA"_s,
                    {{u"PLUNUMBER"_s, FormerType::Text, 18}, {u"DESCRIPTION"_s, FormerType::Text, 16}},
                    {row, row},
                    3});
        m_former = writer.content();
        m_folder.write("app/Cafe/velmar.mdb", m_former);
    }
    /// The dialog's result after the customer was chosen; -1 while it is still open.
    int choose()
    {
        FrmCustomer dialog(m_values, m_boxes);
        dialog.show();
        child<QLineEdit>(dialog, "text1").setText(u"Cafe"_s);
        child<QPushButton>(dialog, "CSCmdBtn1").click();
        return dialog.isVisible() ? -1 : dialog.result();
    }

    QByteArray m_former;
};

TEST_F(FormerCustomerTest, NoIsPresetAndLeavesTheFolderAsItWas)
{
    EXPECT_EQ(choose(), -1);
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(m_boxes.shown[0].title, u"Please Check"_s);
    EXPECT_EQ(m_boxes.shown[0].preset, BoxAnswer::No);
    EXPECT_TRUE(m_boxes.shown[0].text.contains(u"Format of 2000, 1 table, 2 records\rNo sales"_s))
        << m_boxes.shown[0].text.toStdString();
    EXPECT_TRUE(m_boxes.shown[0].text.contains(u"The table PluData has 3 records, and 2 can be read."_s,
                                               Qt::CaseInsensitive));
    EXPECT_EQ(m_folder.read("app/Cafe/velmar.mdb"), m_former);
    EXPECT_EQ(QDir(m_folder.path("app/Cafe")).entryList(QDir::Files, QDir::Name),
              (QStringList{u"setup.ini"_s, u"velmar.mdb"_s}));
}

TEST_F(FormerCustomerTest, YesConvertsAndOpensIt)
{
    m_boxes.answers = {true};
    EXPECT_EQ(choose(), QDialog::Accepted);
    ASSERT_EQ(m_boxes.shown.size(), 2U);
    EXPECT_TRUE(m_boxes.shown[1].text.startsWith(u"1 record was left out: it has the key"_s));
    EXPECT_EQ(test::rowsOf(m_folder.path("app/Cafe/velmar.mdb"), u"select description from pludata"_s),
              "Tea");
    EXPECT_EQ(m_folder.read("app/Cafe/velmar.former.mdb"), m_former);
    EXPECT_TRUE(m_folder.read("app/Cafe/norvane.log").contains("conversion"));
}

} // namespace
} // namespace norvane::shell
