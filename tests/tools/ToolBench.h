// A bank of registers and a working directory in a temporary folder, and the tools run there as real
// processes.
#pragma once

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace bank::test
{

struct Ended {
    int exitCode = -1;
    bool crashed = false;
    QByteArray errors;
};

class ToolBench
{
public:
    explicit ToolBench(int registers = 1, int model = 2, const QString& more = {})
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("work"));
        write("work/registers.ini", "[Bank]\r\nFolder=../bank\r\n");
        const auto words = QStringLiteral("%1 --registers %2 --model %3 %4")
                               .arg(path("bank"))
                               .arg(registers)
                               .arg(model)
                               .arg(more);
        EXPECT_EQ(run(MAKEBANK, words).exitCode, 0);
    }

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString path(const char* name) const { return path(QString::fromUtf8(name)); }
    [[nodiscard]] bool has(const QString& name) const { return QFile::exists(path(name)); }

    template <typename Name>
    void write(const Name& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << file.fileName().toStdString();
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    template <typename Name>
    [[nodiscard]] QByteArray read(const Name& name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        return file.readAll();
    }

    /// Adds or changes one line of a register's register.ini.
    void set(int number, const QByteArray& key, const QByteArray& value) const
    {
        const auto name = QStringLiteral("bank/%1/register.ini").arg(number);
        auto lines = read(name).split('\n');
        lines.removeIf([&key](const QByteArray& line) { return line.startsWith(key + '='); });
        lines.removeAll({});
        write(name, (lines << key + '=' + value).join('\n') + '\n');
    }

    Ended run(const char* program, const QString& words) const
    {
        QProcess child;
        child.setWorkingDirectory(path("work"));
        child.start(QString::fromUtf8(program), QProcess::splitCommand(words));
        EXPECT_TRUE(child.waitForFinished(60000));
        return {child.exitCode(), child.exitStatus() == QProcess::CrashExit, child.readAllStandardError()};
    }

    /// Runs VELMARCOMM. @return what it left in status.out, "" when it left none
    QByteArray comm(const QString& words) const
    {
        QFile::remove(path("work/status.out"));
        run(VELMARCOMM_TOOL, words);
        return has(QStringLiteral("work/status.out")) ? read("work/status.out").trimmed() : QByteArray();
    }

    Ended convert(const QString& words) const { return run(CONVERT_TOOL, words); }

private:
    QTemporaryDir m_folder;
};

inline QString q(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace bank::test
