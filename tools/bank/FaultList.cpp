// Reading, matching and counting faults; see FaultList.h.
#include "tools/bank/FaultList.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace bank
{
namespace
{

bool fits(const QSettings& section, const QString& key, const QString& value)
{
    const auto wanted = section.value(key).toString();
    return wanted.isEmpty() || wanted == value;
}

bool matches(const QSettings& section, const Step& step)
{
    return fits(section, QStringLiteral("Tool"), step.tool) &&
           fits(section, QStringLiteral("Command"), step.command) &&
           fits(section, QStringLiteral("File"), QString::number(step.file));
}

/// Notes one more match of @p name and says how many there were.
qsizetype countMatch(const QString& bankFolder, const QString& name)
{
    QFile log(QDir(bankFolder).filePath(QStringLiteral("faults.log")));
    const QByteArray line = name.toUtf8() + '\n';
    if (!log.open(QIODevice::ReadWrite))
        return 1;
    qsizetype count = 1;
    while (!log.atEnd())
        count += log.readLine() == line ? 1 : 0;
    log.write(line);
    return count;
}

Fault readFault(const QSettings& section)
{
    Fault fault;
    fault.result = section.value(QStringLiteral("Result")).toInt();
    fault.atRegister = section.value(QStringLiteral("Register")).toInt();
    fault.hangSeconds = section.value(QStringLiteral("Hang")).toInt();
    fault.crash = section.value(QStringLiteral("Crash")).toInt() != 0;
    fault.status = section.value(QStringLiteral("Status")).toString();
    if (section.contains(QStringLiteral("BytesLeft")))
        fault.bytesLeft = section.value(QStringLiteral("BytesLeft")).toInt();
    return fault;
}

} // namespace

std::optional<Fault> dueFault(const QString& bankFolder, const Step& step)
{
    const QString path = QDir(bankFolder).filePath(QStringLiteral("faults.ini"));
    if (!QFile::exists(path))
        return std::nullopt;

    QSettings ini(path, QSettings::IniFormat);
    std::optional<Fault> due;
    const auto names = ini.childGroups();
    for (const auto& name : names) {
        ini.beginGroup(name);
        if (matches(ini, step)) {
            const auto nth = ini.value(QStringLiteral("Nth")).toInt();
            const auto count = countMatch(bankFolder, name);
            if (!due && (nth == 0 || nth == count))
                due = readFault(ini);
        }
        ini.endGroup();
    }
    return due;
}

void suffer(const Fault& fault)
{
    std::this_thread::sleep_for(std::chrono::seconds(fault.hangSeconds));
    if (fault.crash)
        std::abort();
}

} // namespace bank
