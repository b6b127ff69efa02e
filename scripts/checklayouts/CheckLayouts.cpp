// Reads every layout and every screen of a folder and runs what they ask of the database on an empty one, so
// that a misspelt name is found before a user opens the screen or the report.
//
//   check_layouts <folder>
//
// Prints a line for each mistake. The exit code is 1 when there is one, and when there are no files.
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "reports/ReportRun.h"
#include "screens/ScreenReader.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

using norvane::RuntimeFailure;

class Check
{
public:
    explicit Check(const QString& folder) : m_folder(folder)
    {
        norvane::store::Database::create(database(), norvane::store::catalogue());
    }

    int run()
    {
        const QStringList names = m_folder.entryList({u"*.rpt"_s, u"*.scn"_s}, QDir::Files, QDir::Name);
        for (const QString& name : names) {
            if (name.endsWith(u".rpt"_s, Qt::CaseInsensitive)) {
                checkLayout(m_folder.filePath(name));
            } else {
                attempt(m_folder.filePath(name), [&] { checkScreen(m_folder.filePath(name)); });
            }
        }
        std::printf("%d files, %d mistakes\n", static_cast<int>(names.size()), m_mistakes);
        return m_mistakes == 0 && !names.isEmpty() ? 0 : 1;
    }

private:
    [[nodiscard]] QString database() const { return m_temporary.filePath(u"velmar.mdb"_s); }

    void tell(const QString& text)
    {
        std::printf("%s\n", qPrintable(text));
        ++m_mistakes;
    }

    void checkLayout(const QString& path)
    {
        norvane::reports::ReportRequest request;
        request.reportFile = path;
        request.dataFile = database();
        request.now = QDateTime::currentDateTime();
        try {
            (void)norvane::reports::runReport(request);
        } catch (const norvane::reports::ReportError& error) {
            tell(error.text());
        }
    }

    /// Runs @p act and prints the failure that it throws, if any.
    template <typename Act>
    void attempt(const QString& path, Act act)
    {
        try {
            act();
        } catch (const RuntimeFailure& failure) {
            tell(u"%1: %2"_s.arg(path, failure.text()));
        }
    }

    void checkScreen(const QString& path)
    {
        const norvane::screens::ScreenReader screen(path);
        const auto table = screen.table();
        norvane::store::Database opened(database());
        attempt(path, [&] {
            auto records = opened.openTable(table.table);
            attempt(path, [&] { records.setIndex(table.firstIndex); });
            if (table.secondIndex != table.firstIndex)
                attempt(path, [&] { records.setIndex(table.secondIndex); });
            for (const auto& control : screen.controls())
                checkControl(path, control, opened, records);
        });
        const auto report = screen.report();
        if (screen.buttons().print && !norvane::pathExists(m_folder.filePath(report.file))) {
            tell(u"%1, section [CrystalReport], key CrystalReportFile: there is no file %2"_s.arg(
                path, report.file));
        }
    }

    void checkControl(const QString& path, const norvane::screens::ControlDefinition& control,
                      norvane::store::Database& opened, const norvane::store::Recordset& records)
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
    int m_mistakes = 0;
};

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fprintf(stderr, "usage: check_layouts <folder>\n");
        return 2;
    }
    return Check(QString::fromLocal8Bit(arguments[1])).run();
}
