// A folder that is complete when it gets its name.
#pragma once

#include "platform/RuntimeFailure.h"

#include <QDir>
#include <QFileInfo>

namespace norvane::customers
{

/// A folder that is removed again unless it is kept.
class UnfinishedFolder
{
public:
    /// Makes an empty folder; one that is there already is emptied.
    /// @throws RuntimeFailure with Failure::PathOrFileAccess
    explicit UnfinishedFolder(const QString& path) : m_folder(path)
    {
        // Removing what a link leads to would empty somebody else's folder.
        if (QFileInfo(path).isSymLink()) {
            QFile::remove(path);
        } else {
            m_folder.removeRecursively();
        }
        if (QFileInfo(path).isSymLink() || !m_folder.mkpath(QStringLiteral(".")))
            fail(path);
    }
    ~UnfinishedFolder()
    {
        if (!m_isKept)
            m_folder.removeRecursively();
    }
    UnfinishedFolder(const UnfinishedFolder&) = delete;
    UnfinishedFolder& operator=(const UnfinishedFolder&) = delete;

    [[nodiscard]] QString path() const { return m_folder.path(); }

    /// Gives the folder its name. @throws RuntimeFailure with Failure::PathOrFileAccess, also if there is one
    /// of this name.
    void keepAs(const QString& path)
    {
        m_isKept = QDir().rename(m_folder.path(), path);
        if (!m_isKept)
            fail(path);
    }

private:
    [[noreturn]] static void fail(const QString& path)
    {
        throw RuntimeFailure(Failure::PathOrFileAccess,
                             QStringLiteral("The folder %1 cannot be made.").arg(path));
    }

    QDir m_folder;
    bool m_isKept = false;
};

} // namespace norvane::customers
