// Staging as the run script does it, from the programs just built.
#include "tests/support/ProgramFolder.h"

#include "platform/ProfileFile.h"

#include <QProcess>

namespace norvane::test
{
namespace
{

void copyInto(const QString& file, const QString& folder)
{
    const QString target = joinPath(folder, QFileInfo(file).fileName());
    EXPECT_TRUE(QFile::copy(file, target)) << qPrintable(file);
    // Templates of a read-only source tree are still a customer's own files.
    QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
}

} // namespace

ProgramFolder::ProgramFolder(int model, int registers, int plus)
{
    m_folder.write("app/registers.ini", "[Bank]\r\nFolder=../registers\r\n");
    for (const char* file : {TEMPLATE_DATABASE, DATA_DIR "/setup.ini", VELMARCOMM_TOOL, CONVERT_TOOL})
        copyInto(QString::fromUtf8(file), appPath());
    for (const QFileInfo& text : QDir(QString::fromUtf8(DATA_DIR)).entryInfoList({u"*.scn"_s, u"*.rpt"_s}))
        copyInto(text.filePath(), appPath());
    for (const auto& [key, value] : {std::pair("ECRModel", model), {"NoOfECRs", registers - 1}}) {
        ProfileFile::write(appFile(u"setup.ini"_s), u"SetupOption"_s, QLatin1String(key),
                           QString::number(value));
    }
    const auto bank = u"--registers %1 --model %2 --plus %3"_s.arg(registers).arg(model).arg(plus);
    EXPECT_EQ(QProcess::execute(QString::fromUtf8(MAKEBANK_TOOL), QStringList(bankPath()) + bank.split(u' ')),
              0);
    m_workingDirectory.emplace(appPath());
}

ApplicationValues ProgramFolder::makeCustomer(const QString& name) const
{
    ApplicationValues values;
    values.appPath = appPath();
    values.customerName = name;
    values.customerPath = appFile(name);
    EXPECT_TRUE(QDir().mkpath(values.customerPath));
    for (const char* file : {"velmar.mdb", "setup.ini"})
        copyInto(appFile(QLatin1String(file)), values.customerPath);
    values.databasePath = joinPath(values.customerPath, u"velmar.mdb"_s);
    return values;
}

} // namespace norvane::test
