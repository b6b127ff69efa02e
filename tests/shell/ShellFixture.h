// A program folder with templates and one customer, made for each test.
#pragma once

#include "base/ApplicationValues.h"
#include "base/SharedRoutines.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "tests/platform/TestFolder.h"
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
        m_values.customerName = QLatin1StringView("Cafe");
        m_values.customerPath = m_folder.path("app/Cafe");
        m_values.databasePath = m_folder.path("app/Cafe/velmar.mdb");
    }

    template <typename Object>
    static Object& child(const QObject& parent, const char* name)
    {
        return *parent.findChild<Object*>(QLatin1String(name));
    }
    void makeCustomerDatabase() const { store::Database::create(m_values.databasePath, store::catalogue()); }
    void setModel(const QByteArray& model) const
    {
        m_folder.write("app/Cafe/setup.ini", "[SetupOption]\r\nECRModel=" + model + "\r\n");
    }

    test::TestFolder m_folder;
    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
};

} // namespace norvane::shell
