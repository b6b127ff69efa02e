// Reading, matching and counting faults; see FaultList.h.
#include "tools/bank/FaultList.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <chrono>
#include <cstdlib>
#include <thread>

using namespace Qt::Literals::StringLiterals;

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
    return fits(section, u"Tool"_s, step.tool) && fits(section, u"Command"_s, step.command) &&
           fits(section, u"File"_s, QString::number(step.file));
}

/// Notes one more match of @p name and says how many there were.
qsizetype countMatch(const QString& bankFolder, const QString& name)
{
    QFile log(QDir(bankFolder).filePath(u"faults.log"_s));
    const QByteArray line = name.toUtf8() + '\n';
    if (!log.open(QIODevice::ReadWrite))
        return 1;
    qsizetype count = 1;
    while (!log.atEnd())
        count += log.readLine() == line ? 1 : 0;
    log.write(line);
    return count;
}

bool isTurnOf(const QSettings& section, qsizetype match)
{
    const auto nth = section.value(u"Nth"_s).toInt();
    return nth == 0 || nth == match;
}

Fault readFault(const QSettings& section)
{
    Fault fault;
    fault.result = section.value(u"Result"_s).toInt();
    fault.atRegister = section.value(u"Register"_s).toInt();
    fault.hangSeconds = section.value(u"Hang"_s).toInt();
    fault.crash = section.value(u"Crash"_s).toInt() != 0;
    fault.status = section.value(u"Status"_s).toString();
    if (section.contains(u"BytesLeft"_s))
        fault.bytesLeft = section.value(u"BytesLeft"_s).toInt();
    return fault;
}

} // namespace

std::optional<Fault> dueFault(const QString& bankFolder, const Step& step)
{
    const QString path = QDir(bankFolder).filePath(u"faults.ini"_s);
    if (!QFile::exists(path))
        return std::nullopt;

    QSettings ini(path, QSettings::IniFormat);
    std::optional<Fault> due;
    for (const QString& name : ini.childGroups()) {
        ini.beginGroup(name);
        // Every matching section is counted, also after the one that is due.
        const bool now = matches(ini, step) && isTurnOf(ini, countMatch(bankFolder, name));
        if (now && !due)
            due = readFault(ini);
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
