// Notices when a layout file is saved.
#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace norvane::reports
{

/// Watches a file and its folder: many editors save by replacing the file. What is written in several steps
/// is reported once, a little after the last one.
class LayoutWatch : public QObject
{
    Q_OBJECT

public:
    LayoutWatch(QString path, QObject* parent);

    /// Reports once more, after the same time.
    void reportAgain();

Q_SIGNALS:
    /// The file has other contents than before, or is gone.
    void changed();

private:
    void watchAgain();
    void compare();
    [[nodiscard]] QByteArray contents() const;

    QString m_path;
    QByteArray m_known;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};

} // namespace norvane::reports
