// A program folder with templates and one customer, made for each test.
#pragma once

#include "base/ApplicationValues.h"
#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane::shell
{

/// The program's folder is "app"; a test must find nothing new beside it.
class ShellFixture : public testing::Test
{
protected:
    ShellFixture()
    {
        m_folder.write("app/setup.ini", "; shipped\r\n[SetupOption]\r\nECRModel= 2\r\nNoOfECRs=2\r\n");
        m_folder.write("app/velmar.mdb", "template");
        m_folder.write("app/Cafe/setup.ini", "[SetupOption]\r\nECRModel= 0\r\n");
        m_values.appPath = m_folder.path("app");
        m_values.customerName = u"Cafe"_s;
        m_values.customerPath = m_folder.path("app/Cafe");
        m_values.databasePath = m_folder.path("app/Cafe/velmar.mdb");
    }

    template <typename Object>
    static Object& child(const QObject& parent, const char* name)
    {
        return *parent.findChild<Object*>(QLatin1String(name));
    }
    void makeCustomerDatabase() const { store::Database::create(m_values.databasePath, store::catalogue()); }
    void execute(const QString& sql) const { test::execute(m_values.databasePath, sql); }
    void setModel(const QByteArray& model) const
    {
        m_folder.write("app/Cafe/setup.ini", "[SetupOption]\r\nECRModel=" + model + "\r\n");
    }

    test::TestFolder m_folder;
    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
};

} // namespace norvane::shell
