// Finding the bank and reading its registers; see Bank.h.
#include "tools/bank/Bank.h"

#include "tools/bank/Files.h"
#include "tools/bank/Layout.h"
#include "tools/bank/RegisterFile.h"
#include "tools/bank/TextRecords.h"
#include "tools/bank/ToolFailure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

const QString registerIni = u"register.ini"_s;

Model readModel(const QSettings& ini)
{
    const auto word = ini.value(u"Model"_s).toString();
    const auto model = modelOfWord(word);
    if (!model)
        throw ToolFailure(FileInformationWrong, u"%1: unknown model \"%2\""_s.arg(ini.fileName(), word));
    return *model;
}

std::optional<quint8> readStamp(const QSettings& ini)
{
    bool isStamp = false;
    const auto stamp = ini.value(u"Stamp"_s).toString().toUShort(&isStamp, 16);
    return isStamp ? std::optional(static_cast<quint8>(stamp)) : std::nullopt;
}

Register readRegister(int number, const QString& folder)
{
    QSettings ini(QDir(folder).filePath(registerIni), QSettings::IniFormat);
    ini.beginGroup(u"Register"_s);
    Register result;
    result.number = number;
    result.folder = folder;
    result.model = readModel(ini);
    result.generation = ini.value(u"Generation"_s, 3).toInt();
    result.cards = ini.value(u"Cards"_s, 1).toInt() != 0;
    result.port = ini.value(u"Port"_s, 1).toInt();
    result.on = ini.value(u"On"_s, 1).toInt() != 0;
    result.busy = ini.value(u"Busy"_s, 0).toInt() != 0;
    result.stamp = readStamp(ini);
    return result;
}

std::optional<QString> bankFolderBeside(const QString& folder)
{
    const QString path = QDir(folder).filePath(u"registers.ini"_s);
    if (!QFileInfo::exists(path))
        return std::nullopt;
    const auto name = QSettings(path, QSettings::IniFormat).value(u"Bank/Folder"_s).toString();
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
    return QDir(folder).filePath(u"%1.dat"_s.arg(file));
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
    ini.beginGroup(u"Register"_s);
    ini.setValue(u"Model"_s, modelWord(model));
    ini.setValue(u"Generation"_s, generation);
    ini.setValue(u"Cards"_s, cards ? 1 : 0);
    ini.setValue(u"Port"_s, port);
    ini.setValue(u"On"_s, on ? 1 : 0);
    ini.setValue(u"Busy"_s, busy ? 1 : 0);
}

std::optional<Bank> Bank::find(const QString& toolFolder)
{
    // A link to the tool may be started in another folder than its own.
    const QString startedIn = QFileInfo(QCoreApplication::arguments().value(0)).absolutePath();
    for (const auto& folder : {QDir::currentPath(), startedIn, toolFolder}) {
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
