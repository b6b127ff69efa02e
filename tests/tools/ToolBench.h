// A bank of registers and a working directory in a temporary folder, and the tools run there as real
// processes.
#pragma once

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

namespace bank::test
{

using namespace Qt::Literals::StringLiterals;

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
        QDir(m_folder.path()).mkpath(u"work"_s);
        write("work/registers.ini", "[Bank]\r\nFolder=../bank\r\n");
        const auto words =
            u"%1 --registers %2 --model %3 %4"_s.arg(path("bank")).arg(registers).arg(model).arg(more);
        EXPECT_EQ(run(MAKEBANK, words).exitCode, 0);
    }

    [[nodiscard]] QString path(QAnyStringView name) const { return m_folder.filePath(name.toString()); }
    [[nodiscard]] bool has(QAnyStringView name) const { return QFile::exists(path(name)); }

    void write(QAnyStringView name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << file.fileName().toStdString();
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    [[nodiscard]] QByteArray read(QAnyStringView name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        return file.readAll();
    }

    /// Changes one line of a register's register.ini.
    void set(int number, const char* key, const char* value) const
    {
        QSettings(path(u"bank/%1/register.ini"_s.arg(number)), QSettings::IniFormat)
            .setValue(u"Register/"_s + QLatin1String(key), QLatin1String(value));
    }

    Ended run(const char* program, QAnyStringView words) const
    {
        QProcess child;
        child.setWorkingDirectory(path("work"));
        child.start(QString::fromUtf8(program), QProcess::splitCommand(words.toString()));
        EXPECT_TRUE(child.waitForFinished(60000));
        return {child.exitCode(), child.exitStatus() == QProcess::CrashExit, child.readAllStandardError()};
    }

    /// Runs VELMARCOMM. @return what it left in status.out, "" when it left none
    QByteArray comm(QAnyStringView words) const
    {
        QFile::remove(path("work/status.out"));
        run(VELMARCOMM_TOOL, words);
        return has("work/status.out") ? read("work/status.out").trimmed() : QByteArray();
    }

    Ended convert(QAnyStringView words) const { return run(CONVERT_TOOL, words); }

private:
    QTemporaryDir m_folder;
};

inline QString q(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace bank::test
