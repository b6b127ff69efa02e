// See ShopLayouts.h.
#include "sales/ShopLayouts.h"

#include "platform/FilePaths.h"
#include "platform/WholeFile.h"
#include "reports/data/ReportError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// "groupsales.rpt", "groupsales 2.rpt" and so on; names differ by more than capitals.
QString freeName(const QString& file, const QDir& folder)
{
    const QFileInfo name(file);
    QString path = folder.filePath(name.fileName());
    for (int number = 2; pathExists(path); ++number)
        path = folder.filePath(u"%1 %2.%3"_s.arg(name.completeBaseName()).arg(number).arg(name.suffix()));
    return path;
}

/// Codes of xdg-open: no file, no editor found, and the editor failed. An editor that it waits for has
/// others.
bool isFailure(int code)
{
    return code >= 2 && code <= 4;
}

} // namespace

QString copyLayout(const QString& path, const QString& folder)
{
    QFile file(path);
    QString copy = freeName(path, QDir(folder));
    if (!file.open(QIODevice::ReadOnly))
        throw reports::ReportError(u"%1: %2"_s.arg(path, file.errorString()));
    if (const auto error = replaceWholeFile(copy, file.readAll()))
        throw reports::ReportError(u"%1: %2"_s.arg(copy, error->reason));
    return copy;
}

void openInEditor(const QString& path, QObject& context, const std::function<void()>& onFailure)
{
    // Without a parent: the end of a process object would end the editor.
    auto* const opener = new QProcess;
    opener->setProcessChannelMode(QProcess::ForwardedChannels);
    opener->setStandardInputFile(QProcess::nullDevice());
    QObject::connect(opener, &QProcess::errorOccurred, &context, [onFailure](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            onFailure();
    });
    QObject::connect(opener, &QProcess::finished, &context, [onFailure](int code) {
        if (isFailure(code))
            onFailure();
    });
    QObject::connect(opener, &QProcess::stateChanged, opener, [opener](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            opener->deleteLater();
    });
    opener->start(u"xdg-open"_s, {path});
}

} // namespace norvane::sales
