// Staging as the run script does it, from the programs just built.
#include "tests/support/ProgramFolder.h"

#include "platform/FilePaths.h"
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

const QString settingsSection = QStringLiteral("SetupOption");

} // namespace

ProgramFolder::ProgramFolder(int model, int registers, int plus)
{
    EXPECT_TRUE(QDir().mkpath(appPath()));
    stage(model, registers);
    makeBank(model, registers, plus);
    m_workingDirectory.emplace(appPath());
}

void ProgramFolder::stage(int model, int registers) const
{
    for (const char* file : {TEMPLATE_DATABASE, DATA_DIR "/setup.ini", VELMARCOMM_TOOL, CONVERT_TOOL}) {
        copyInto(QString::fromUtf8(file), appPath());
    }
    const QDir data(QStringLiteral(DATA_DIR));
    for (const QString& screen : data.entryList({QStringLiteral("*.scn")})) {
        copyInto(data.filePath(screen), appPath());
    }
    const QString settings = appFile(QStringLiteral("setup.ini"));
    ProfileFile::write(settings, settingsSection, QStringLiteral("ECRModel"), QString::number(model));
    ProfileFile::write(settings, settingsSection, QStringLiteral("NoOfECRs"), QString::number(registers - 1));
    m_folder.write("app/registers.ini", "[Bank]\r\nFolder=../registers\r\n");
}

void ProgramFolder::makeBank(int model, int registers, int plus) const
{
    QProcess makebank;
    makebank.start(QStringLiteral(MAKEBANK_TOOL),
                   {bankPath(), QStringLiteral("--registers"), QString::number(registers),
                    QStringLiteral("--model"), QString::number(model), QStringLiteral("--plus"),
                    QString::number(plus)});
    EXPECT_TRUE(makebank.waitForFinished(-1));
    EXPECT_EQ(makebank.exitCode(), 0) << makebank.readAllStandardError().toStdString();
}

QString ProgramFolder::registerFile(int number, int file) const
{
    return joinPath(bankPath(), QStringLiteral("%1/%2.dat").arg(number).arg(file));
}

QString ProgramFolder::appFile(const QString& name) const
{
    return joinPath(appPath(), name);
}

ApplicationValues ProgramFolder::makeCustomer(const QString& name) const
{
    ApplicationValues values;
    values.appPath = appPath();
    values.customerName = name;
    values.customerPath = appFile(name);
    EXPECT_TRUE(QDir().mkpath(values.customerPath));
    for (const char* file : {"velmar.mdb", "setup.ini"}) {
        copyInto(appFile(QLatin1String(file)), values.customerPath);
    }
    values.databasePath = joinPath(values.customerPath, QStringLiteral("velmar.mdb"));
    return values;
}

void ProgramFolder::setFaults(const QByteArray& sections) const
{
    QFile::remove(m_folder.path("registers/faults.log"));
    m_folder.write("registers/faults.ini", sections);
}

void ProgramFolder::removeTool(const char* name) const
{
    EXPECT_TRUE(QFile::remove(appFile(QLatin1String(name)))) << name;
}

} // namespace norvane::test
