// Finding the bank and reading its registers; see Bank.h.
#include "tools/bank/Bank.h"

#include "tools/bank/Files.h"
#include "tools/bank/Layout.h"
#include "tools/bank/RegisterFile.h"
#include "tools/bank/TextRecords.h"
#include "tools/bank/ToolFailure.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <array>

namespace bank
{
namespace
{

const QString registerIni = QStringLiteral("register.ini");

Register readRegister(int number, const QString& folder)
{
    QSettings ini(QDir(folder).filePath(registerIni), QSettings::IniFormat);
    ini.beginGroup(QStringLiteral("Register"));
    Register result;
    result.number = number;
    result.folder = folder;
    const auto word = ini.value(QStringLiteral("Model")).toString();
    const auto model = modelOfWord(word);
    if (!model) {
        throw ToolFailure(FileInformationWrong,
                          QStringLiteral("%1: unknown model \"%2\"").arg(ini.fileName(), word));
    }
    result.model = *model;
    result.generation = ini.value(QStringLiteral("Generation"), 3).toInt();
    result.cards = ini.value(QStringLiteral("Cards"), 1).toInt() != 0;
    result.port = ini.value(QStringLiteral("Port"), 1).toInt();
    result.on = ini.value(QStringLiteral("On"), 1).toInt() != 0;
    result.busy = ini.value(QStringLiteral("Busy"), 0).toInt() != 0;
    bool isStamp = false;
    const auto stamp = ini.value(QStringLiteral("Stamp")).toString().toUShort(&isStamp, 16);
    if (isStamp)
        result.stamp = static_cast<quint8>(stamp);
    return result;
}

std::optional<QString> bankFolderBeside(const QString& folder)
{
    const QString path = QDir(folder).filePath(QStringLiteral("registers.ini"));
    if (!QFileInfo::exists(path))
        return std::nullopt;
    const auto name = QSettings(path, QSettings::IniFormat).value(QStringLiteral("Bank/Folder")).toString();
    return QDir::cleanPath(QDir(folder).filePath(name));
}

} // namespace

bool Register::knowsFile(int file) const
{
    constexpr std::array cardFiles{71, 85, 86};
    return cards || std::find(cardFiles.begin(), cardFiles.end(), file) == cardFiles.end();
}

QString Register::filePath(int file) const
{
    return QDir(folder).filePath(QStringLiteral("%1.dat").arg(file));
}

QList<QByteArrayList> Register::records(int file) const
{
    const auto columns = columnsOf(file, model);
    const auto content = fromBytes(readFile(filePath(file)), file, model);
    QList<QByteArrayList> result;
    for (qsizetype i = 0; i < content.recordCount(); ++i)
        result += unpackRecord(content.record(i), columns, i + 1);
    return result;
}

QList<QByteArray> Register::memory() const
{
    const auto file = fromBytes(readFile(filePath(memoryFile)), memoryFile, model);
    const auto columns = columnsOf(generation == 2 ? memoryFile : newerMemoryCode, model);
    return unpackRecord(file.record(0), columns);
}

void Register::save() const
{
    QSettings ini(QDir(folder).filePath(registerIni), QSettings::IniFormat);
    ini.beginGroup(QStringLiteral("Register"));
    ini.setValue(QStringLiteral("Model"), modelWord(model));
    ini.setValue(QStringLiteral("Generation"), generation);
    ini.setValue(QStringLiteral("Cards"), cards ? 1 : 0);
    ini.setValue(QStringLiteral("Port"), port);
    ini.setValue(QStringLiteral("On"), on ? 1 : 0);
    ini.setValue(QStringLiteral("Busy"), busy ? 1 : 0);
}

std::optional<Bank> Bank::find(const QString& toolFolder)
{
    for (const auto& folder : {QDir::currentPath(), toolFolder}) {
        if (const auto found = bankFolderBeside(folder))
            return Bank(*found);
    }
    return std::nullopt;
}

QList<Register> Bank::registers() const
{
    QList<Register> result;
    const QDir dir(m_folder);
    for (int number = 1;; ++number) {
        const QString folder = dir.filePath(QString::number(number));
        if (!QFileInfo::exists(QDir(folder).filePath(registerIni)))
            return result;
        result += readRegister(number, folder);
    }
}

QList<Register> Bank::registersOn(int port) const
{
    auto result = registers();
    result.removeIf([port](const Register& each) { return each.port != port; });
    return result;
}

} // namespace bank
