// The folder of temporary files, for tests that look at what is left there.
#pragma once

#include "tests/platform/TestFolder.h"

namespace norvane::test
{

/// While it lives, temporary files are made in the folder named, or in an empty one of its own.
class TemporaryPlace
{
public:
    TemporaryPlace() : TemporaryPlace(QString()) {}
    explicit TemporaryPlace(const QString& path)
    {
        qputenv("TMPDIR", (path.isEmpty() ? m_folder.path() : path).toLocal8Bit());
    }
    TemporaryPlace(const TemporaryPlace&) = delete;
    TemporaryPlace& operator=(const TemporaryPlace&) = delete;
    ~TemporaryPlace()
    {
        if (m_former.isEmpty()) {
            qunsetenv("TMPDIR");
        } else {
            qputenv("TMPDIR", m_former);
        }
    }

    [[nodiscard]] QStringList scratchFolders() const
    {
        return QDir(m_folder.path()).entryList({QStringLiteral("norvane-compare-*")}, QDir::Dirs);
    }

private:
    QByteArray m_former = qgetenv("TMPDIR");
    TestFolder m_folder;
};

} // namespace norvane::test
