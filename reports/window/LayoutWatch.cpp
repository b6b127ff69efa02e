// See LayoutWatch.h.
#include "reports/window/LayoutWatch.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>

namespace norvane::reports
{
namespace
{

/// Editors need less between the steps of saving.
constexpr std::chrono::milliseconds pause{200};

} // namespace

LayoutWatch::LayoutWatch(QString path, QObject* parent)
    : QObject(parent), m_path(std::move(path)), m_known(contents())
{
    m_watcher.addPath(QFileInfo(m_path).path());
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &LayoutWatch::compare);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &LayoutWatch::watchAgain);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &LayoutWatch::watchAgain);
    watchAgain();
}

/// A file that was replaced is no longer watched.
void LayoutWatch::watchAgain()
{
    if (m_watcher.files().isEmpty() && QFileInfo::exists(m_path))
        m_watcher.addPath(m_path);
    m_pause.start();
}

/// Databases in the same folder change all the time.
void LayoutWatch::compare()
{
    const QByteArray now = contents();
    if (now == m_known && now.isNull() == m_known.isNull())
        return;
    m_known = now;
    Q_EMIT changed();
}

void LayoutWatch::reportAgain()
{
    m_known = QByteArrayLiteral("\0");
    m_pause.start();
}

/// Null without a file; an empty file is not null.
QByteArray LayoutWatch::contents() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray read = file.readAll();
    return read.isNull() ? QByteArray("") : read;
}

} // namespace norvane::reports
