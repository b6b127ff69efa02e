// See SystemReport.h.
#include "shell/SystemReport.h"

#include "customers/CustomerLog.h"
#include "customers/SetupSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/Database.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QSysInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int logLines = 20;

using Values = const ApplicationValues&;

/// What is chosen in the list of the setting @p key, such as "Velmar +V3".
QString chosen(Values values, QLatin1StringView key)
{
    const auto read = customers::readSettings(values);
    for (qsizetype row = 0; const auto& setting : customers::settings()) {
        const int index = read[row++].index;
        if (setting.key == key)
            return customers::itemsOf(setting).value(index, u"none"_s);
    }
    return {};
}

QString describeLine(Values values)
{
    return u"%1, %2, %3 baud"_s.arg(chosen(values, "ConnectionType"_L1), chosen(values, "Port"_L1),
                                    chosen(values, "Baud"_L1));
}

QString describeDatabase(Values values)
{
    const QFileInfo file(values.databasePath);
    return file.exists() ? u"%1, %2"_s.arg(file.filePath(), QLocale::c().formattedDataSize(file.size()))
                         : u"%1, missing"_s.arg(file.filePath());
}

/// The tool's own file, whichever ending it has on this system.
QString describeTool(Values values, const QString& name)
{
    for (const QString& ending : {QString(), u".exe"_s}) {
        const QFileInfo file(existingPath(joinPath(values.appPath, name + ending)));
        if (file.isFile())
            return u"dated "_s + file.lastModified().toString(Qt::ISODate).replace(u'T', u' ');
    }
    return u"missing"_s;
}

struct ReportedValue {
    QLatin1StringView label;
    QString (*describe)(Values values);
};

// clang-format off
constexpr ReportedValue rows[] = {
    {"Program"_L1, [](Values) { return QString(QLatin1StringView(NORVANE_VERSION)); }},
    {"Qt"_L1, [](Values) { return QString::fromLatin1(qVersion()); }},
    {"SQLite"_L1, [](Values) { return store::engineVersion(); }},
    {"System"_L1,
     [](Values) { return u"%1, %2"_s.arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture()); }},
    {"Program file"_L1, [](Values) { return QCoreApplication::applicationFilePath(); }},
    {"Program folder"_L1, [](Values values) { return values.appPath; }},
    {"Customer"_L1, [](Values values) { return values.customerName; }},
    {"Customer's folder"_L1, [](Values values) { return values.customerPath; }},
    {"Database in use"_L1, &describeDatabase},
    {"Model"_L1, [](Values values) { return chosen(values, "ECRModel"_L1); }},
    {"Registers"_L1, [](Values values) { return chosen(values, "NoOfECRs"_L1); }},
    {"Connection"_L1, &describeLine},
    {"VELMARCOMM"_L1, [](Values values) { return describeTool(values, u"VELMARCOMM"_s); }},
    {"convert"_L1, [](Values values) { return describeTool(values, u"convert"_s); }},
};
// clang-format on

QString lineOf(const ReportedValue& row, Values values)
{
    QString text;
    try {
        text = row.describe(values);
    } catch (const RuntimeFailure& failure) {
        text = u"cannot be read: "_s + failure.text().simplified();
    }
    return u"%1: %2\n"_s.arg(row.label, text);
}

QString listed(const QStringList& names)
{
    return names.isEmpty() ? u"none"_s : names.join(u", "_s);
}

} // namespace

QString systemReport(const ApplicationValues& values, const QStringList& printers)
{
    if (!QFileInfo(values.customerPath).isDir())
        return {};
    QString report;
    for (const ReportedValue& row : rows)
        report += lineOf(row, values);
    report += u"Printers: %1\n"_s.arg(listed(printers));
    const QStringList log = customers::lastLogLines(values.customerPath, logLines);
    return report + u"\nLast lines of norvane.log:\n%1\n"_s.arg(log.isEmpty() ? u"none"_s : log.join(u'\n'));
}

} // namespace norvane::shell
