// Customers as folders: what a typed name leads to, and where it never leads.
#include "shell/CustomerFolders.h"

#include "tests/shell/ShellFixture.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using CustomerFoldersTest = ShellFixture;

TEST_F(CustomerFoldersTest, FoldersAreListedInUpperCaseAndStillMeetWhenTheyArePicked)
{
    m_folder.write("app/aroma/x", "");
    m_folder.write("app/Straße ı/x", "");
    m_folder.write("app/.com shop/x", "");
    const QStringList listed = customerFolders(m_values.appPath);
    EXPECT_EQ(listed, (QStringList{u".COM SHOP"_s, u"AROMA"_s, u"CAFE"_s, u"STRAßE ı"_s}));
    for (const QString& name : listed)
        EXPECT_EQ(chooseCustomer(m_values, name), CustomerChoice::Taken) << name.toStdString();
    EXPECT_EQ(customerFolders(m_values.appPath), listed) << "nothing was made";
}

TEST_F(CustomerFoldersTest, ANewNameMakesAFolderWithCopiesOfTheTemplates)
{
    EXPECT_EQ(chooseCustomer(m_values, u"New Shop"_s), CustomerChoice::Created);
    EXPECT_EQ(m_values.customerName, u"New Shop");
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/New Shop"));
    EXPECT_EQ(m_folder.read("app/New Shop/velmar.mdb"), "template");
    EXPECT_EQ(m_folder.read("app/New Shop/setup.ini"), m_folder.read("app/setup.ini"));
    EXPECT_EQ(m_values.databasePath, m_folder.path("app/Cafe/velmar.mdb"))
        << "the start sets it, not the choice";
}

TEST_F(CustomerFoldersTest, AnExistingFolderIsTakenWhateverItsCaseAndBroughtUpToDate)
{
    store::TableDefinition old = *store::catalogueTable(u"AUTHORITYLEVEL"_s);
    old.fields.removeIf(
        [](const auto& field) { return field.name.startsWith(u"disallow", Qt::CaseInsensitive); });
    store::Database::create(m_values.databasePath, {old});

    EXPECT_EQ(chooseCustomer(m_values, u"cAFE"_s), CustomerChoice::Taken);
    EXPECT_EQ(m_values.customerName, u"cAFE") << "as typed";
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe")) << "as it is on disk";
    const auto fields = store::Database(m_values.databasePath).table(old.name).fields;
    EXPECT_TRUE(std::ranges::any_of(fields, [](const auto& field) {
        return field.name.compare(u"disallowaddinx", Qt::CaseInsensitive) == 0;
    }));
}

TEST_F(CustomerFoldersTest, ASeparatorLeadsIntoAFolderThatExists)
{
    for (const auto& [typed, made] :
         {std::pair{u"CAFE\\Bar"_s, "app/Cafe/Bar"}, {u"cafe/Grill"_s, "app/Cafe/Grill"}}) {
        EXPECT_EQ(chooseCustomer(m_values, typed), CustomerChoice::Created);
        EXPECT_EQ(m_values.customerPath.toLower(), m_folder.path(made).toLower());
        EXPECT_EQ(m_folder.read((QByteArray(made) + "/velmar.mdb").constData()), "template");
    }
    EXPECT_EQ(chooseCustomer(m_values, u"cafe\\bar"_s), CustomerChoice::Taken);
}

TEST_F(CustomerFoldersTest, ABlankNameIsInvalidAndStandsInTheNameAllTheSame)
{
    EXPECT_EQ(chooseCustomer(m_values, u"  "_s), CustomerChoice::InvalidEntry);
    EXPECT_EQ(m_values.customerName, u"  ");
    EXPECT_EQ(chooseCustomer(m_values, u"Cafe "_s), CustomerChoice::Created) << "a trailing blank is kept";
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe "));
}

TEST_F(CustomerFoldersTest, ARefusedNameChangesNothingOnDisk)
{
    QStringList names =
        u"..;../Out;..\\Out;Cafe/../../Out;Cafe\\..\\..\\Out;.;.. ;...; ../Out;/tmp;\\Out;C:\\Out;C:Out;"
        "Cafe:x;velmar.mdb;SETUP.INI;None/Shop;velmar.mdb/Shop"_s.split(u';');
    names << QString(300, u'x') << m_folder.path("Out");
    for (const QString& name : std::as_const(names)) {
        EXPECT_EQ(chooseCustomer(m_values, name), CustomerChoice::Failed) << name.toStdString();
        EXPECT_EQ(m_values.customerName, name);
        EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe")) << name.toStdString();
    }
    EXPECT_EQ(m_folder.names(), QStringList{u"app"_s});
    EXPECT_EQ(customerFolders(m_values.appPath), QStringList{u"CAFE"_s});
}

TEST_F(CustomerFoldersTest, AMissingTemplateFailsAndLeavesTheFolderToBeTakenNextTime)
{
    QFile::remove(m_folder.path("app/setup.ini"));
    EXPECT_EQ(chooseCustomer(m_values, u"Half"_s), CustomerChoice::Failed);
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Half"));
    EXPECT_EQ(m_folder.read("app/Half/velmar.mdb"), "template");
    EXPECT_EQ(chooseCustomer(m_values, u"Half"_s), CustomerChoice::Taken);
}

} // namespace
} // namespace norvane::shell
