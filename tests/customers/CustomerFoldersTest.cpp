// Customers as folders: what a typed name leads to, and where it never leads.
#include "customers/CustomerFolders.h"

#include "tests/shell/ShellFixture.h"

namespace norvane::customers
{
namespace
{

class CustomerFoldersTest : public shell::ShellFixture
{
};

/// The copies that a customer in @p folder needs.
void expectTemplates(const QString& folder)
{
    for (const char* const name : {"velmar.mdb", "setup.ini"})
        EXPECT_TRUE(QFileInfo(folder, QLatin1StringView(name)).isFile()) << name;
}

TEST_F(CustomerFoldersTest, FoldersAreListedInUpperCaseAndFoundWhenChosen)
{
    m_folder.write("app/aroma/x", "");
    m_folder.write("app/Straße ı/x", "");
    m_folder.write("app/.com shop/x", "");
    const QStringList listed = customerFolders(m_values.appPath);
    EXPECT_EQ(listed, (QStringList{u".COM SHOP"_s, u"AROMA"_s, u"CAFE"_s, u"STRAßE ı"_s}));
    for (const QString& name : listed)
        EXPECT_NE(chooseCustomer(m_values, name), CustomerChoice::Failed) << name.toStdString();
    EXPECT_EQ(customerFolders(m_values.appPath), listed) << "nothing was made";
}

TEST_F(CustomerFoldersTest, ANewNameMakesAFolderWithCopiesOfTheTemplates)
{
    const struct {
        QString typed;
        CustomerChoice choice;
        QByteArray folder;
    } rows[] = {{u"New Shop"_s, CustomerChoice::Created, "app/New Shop"},
                {u"CAFE\\Bar"_s, CustomerChoice::Created, "app/Cafe/Bar"},
                {u"cafe\\bar"_s, CustomerChoice::Taken, "app/Cafe/Bar"},
                {u"  "_s, CustomerChoice::InvalidEntry, "app/Cafe/Bar"},
                {u"cafe/Grill"_s, CustomerChoice::Created, "app/Cafe/Grill"},
                {u"Cafe "_s, CustomerChoice::Created, "app/Cafe "}};
    for (const auto& [typed, choice, folder] : rows) {
        SCOPED_TRACE(typed.toStdString());
        EXPECT_EQ(chooseCustomer(m_values, typed), choice);
        EXPECT_EQ(m_values.customerName, typed);
        EXPECT_EQ(m_values.customerPath.toLower(), m_folder.path(folder).toLower());
        EXPECT_EQ(m_folder.read(folder + "/velmar.mdb"), "template");
        EXPECT_EQ(m_folder.read(folder + "/setup.ini"), m_folder.read("app/setup.ini"));
    }
    EXPECT_EQ(m_values.databasePath, m_folder.path("app/Cafe/velmar.mdb"))
        << "the start sets it, not the choice";
}

TEST_F(CustomerFoldersTest, ACustomerThatIsOnlyPartlyMadeIsCompletedWhenChosen)
{
    const QByteArray settings = m_folder.read("app/setup.ini");
    store::Database::create(m_folder.path("app/velmar.mdb"), store::catalogue());
    QFile::remove(m_folder.path("app/setup.ini"));
    EXPECT_EQ(chooseCustomer(m_values, u"Half"_s), CustomerChoice::Failed);
    EXPECT_TRUE(m_folder.read("app/Half/velmar.mdb") == m_folder.read("app/velmar.mdb"));
    m_folder.write("app/setup.ini", settings);
    QDir().mkpath(m_folder.path("app/Empty"));
    m_folder.write("app/Killed/qt_temp.Xy12Zw", "tem");
    m_folder.write("app/Lost/67.dat", "kept");
    m_folder.write("app/Lost/exchange.ini", "[Registers]\r\nPLUs=2\r\n");
    for (const char* const name : {"Half", "EMPTY", "Killed", "Lost", "Cafe"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(chooseCustomer(m_values, QLatin1StringView(name)), CustomerChoice::Created);
        expectTemplates(m_values.customerPath);
        EXPECT_EQ(chooseCustomer(m_values, QLatin1StringView(name)), CustomerChoice::Taken);
    }
    EXPECT_EQ(m_folder.read("app/Lost/67.dat"), "kept");
    EXPECT_EQ(m_folder.read("app/Cafe/setup.ini"), "[SetupOption]\r\nECRModel= 0\r\n")
        << "existing files are kept";
    EXPECT_FALSE(QFile::exists(m_folder.path("app/Killed/qt_temp.Xy12Zw")));
}

TEST_F(CustomerFoldersTest, OnlyADatabaseWithoutRecordsIsNew)
{
    makeCustomerDatabase();
    execute(u"insert into GROUPS (GROUPNO) values (1)"_s);
    m_folder.write("app/Old/velmar.mdb", "of a former version");
    for (const char* const name : {"Cafe", "Old"}) {
        QFile::remove(m_folder.path("app/Cafe/setup.ini"));
        EXPECT_EQ(chooseCustomer(m_values, QLatin1StringView(name)), CustomerChoice::NewSettings) << name;
        expectTemplates(m_values.customerPath);
        EXPECT_EQ(chooseCustomer(m_values, QLatin1StringView(name)), CustomerChoice::Taken) << name;
    }
}

TEST_F(CustomerFoldersTest, AFolderWithOtherFilesIsLeftUnchanged)
{
    m_folder.write("app/docs/guide.html", "text");
    m_folder.write("app/Chain/North/velmar.mdb", "template");
    m_folder.write("app/other/setup.ini", "of an installer");
    m_folder.write("app/other/setup.exe", "");
    for (const char* const name : {"docs", "Chain", "other"}) {
        const auto before = QDir(m_folder.path("app/") + QLatin1StringView(name)).entryList();
        EXPECT_EQ(chooseCustomer(m_values, QLatin1StringView(name)), CustomerChoice::Taken) << name;
        EXPECT_EQ(QDir(m_values.customerPath).entryList(), before) << name;
    }
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

} // namespace
} // namespace norvane::customers
