// See InstallationCheck.h.
#include "command/InstallationCheck.h"

#include "base/ApplicationValues.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "reports/lines/ReportRun.h"
#include "screens/ScreenReader.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

class FolderCheck
{
public:
    explicit FolderCheck(const QString& folder) : m_folder(folder)
    {
        store::Database::create(database(), store::catalogue());
    }

    InstallationCheck run()
    {
        const QStringList names = m_folder.entryList({u"*.rpt"_s, u"*.scn"_s}, QDir::Files, QDir::Name);
        for (const QString& name : names) {
            if (name.endsWith(u".rpt"_s, Qt::CaseInsensitive)) {
                checkLayout(m_folder.filePath(name));
            } else {
                attempt(m_folder.filePath(name), [&] { checkScreen(m_folder.filePath(name)); });
            }
        }
        m_found.files = static_cast<int>(names.size());
        return m_found;
    }

private:
    [[nodiscard]] QString database() const { return m_temporary.filePath(databaseFileName); }

    void addMistake(const QString& text) { m_found.mistakes.append(text); }

    void checkLayout(const QString& path)
    {
        reports::ReportRequest request;
        request.reportFile = path;
        request.dataFile = database();
        request.now = QDateTime::currentDateTime();
        try {
            (void)reports::runReport(request);
        } catch (const reports::ReportError& error) {
            addMistake(error.text());
        }
    }

    /// Runs @p act and prints the failure that it throws, if any.
    template <typename Act>
    void attempt(const QString& path, Act act)
    {
        try {
            act();
        } catch (const RuntimeFailure& failure) {
            addMistake(u"%1: %2"_s.arg(path, failure.text()));
        }
    }

    void checkScreen(const QString& path)
    {
        const screens::ScreenReader screen(path);
        const auto table = screen.table();
        store::Database opened(database());
        attempt(path, [&] {
            auto records = opened.openTable(table.table);
            attempt(path, [&] { records.setIndex(table.firstIndex); });
            if (table.secondIndex != table.firstIndex)
                attempt(path, [&] { records.setIndex(table.secondIndex); });
            for (const auto& control : screen.controls())
                checkControl(path, control, opened, records);
        });
        const auto report = screen.report();
        if (screen.buttons().print && !pathExists(m_folder.filePath(report.file))) {
            addMistake(u"%1, section [CrystalReport], key CrystalReportFile: there is no file %2"_s.arg(
                path, report.file));
        }
    }

    void checkControl(const QString& path, const screens::ControlDefinition& control, store::Database& opened,
                      const store::Recordset& records)
    {
        const QString place = u"%1, section [%2]"_s.arg(path, control.section);
        attempt(place, [&] {
            if (!control.dataField.isEmpty())
                (void)records.fieldOrdinal(control.dataField);
            if (!control.sqlCriteria.isEmpty())
                (void)opened.openQuery(control.sqlCriteria);
        });
    }

    QDir m_folder;
    QTemporaryDir m_temporary;
    InstallationCheck m_found;
};

} // namespace

InstallationCheck checkInstallation(const QString& folder)
{
    return FolderCheck(folder).run();
}

} // namespace norvane::command
