// A temporary folder of a test's own with raw access to the files in it, and a disk that fills up.
#pragma once

#include "platform/RuntimeFailure.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace norvane::test
{

class TestFolder
{
public:
    [[nodiscard]] QString path(const char* name = "") const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }
    void write(const char* name, const QByteArray& bytes) const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    [[nodiscard]] QByteArray read(const char* name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }
    [[nodiscard]] QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;
};

/// Makes @p folder the working directory while it lives.
class WorkingDirectory
{
public:
    explicit WorkingDirectory(const QString& folder) { QDir::setCurrent(folder); }
    WorkingDirectory(const WorkingDirectory&) = delete;
    WorkingDirectory& operator=(const WorkingDirectory&) = delete;
    ~WorkingDirectory() { QDir::setCurrent(m_before); }

private:
    QString m_before = QDir::currentPath();
};

#ifdef Q_OS_UNIX
/// While it lives no file of this process can grow beyond @p bytes, as on a disk that has just filled up.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit now{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int);
};
#endif

/// The number of the failure that @p act throws; 0 when it throws none.
template <typename Act>
int failureOf(Act act)
{
    try {
        act();
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

} // namespace norvane::test
