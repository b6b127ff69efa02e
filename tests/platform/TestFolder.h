// A temporary folder of a test's own with raw access to the files in it.
#pragma once

#include "platform/RuntimeFailure.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// The texts of all tests.
namespace norvane
{
using namespace Qt::Literals::StringLiterals;
}

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

/// Number and text of the failure that @p act throws, as "53 File not found: mem.dat"; empty when it throws
/// none.
template <typename Act>
QString failureTextOf(Act act)
{
    try {
        act();
    } catch (const RuntimeFailure& failure) {
        return QString::number(failure.number()) + u' ' + failure.text();
    }
    return {};
}

/// The number of the failure that @p act throws; 0 when it throws none.
template <typename Act>
int failureOf(Act act)
{
    return failureTextOf(act).section(u' ', 0, 0).toInt();
}

} // namespace norvane::test
