// A staged program folder for the tests that walk through real tools: what a dealer's machine has after the
// installation, and a bank of registers beside it.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/FilePaths.h"
#include "tests/platform/TestFolder.h"

#include <optional>

namespace norvane::test
{

/// Holds app/ (template database, setup.ini, screens, both tools) and registers/ (the bank) in a temporary
/// folder. app/ is the working directory while it lives, as it is for the program.
class ProgramFolder
{
public:
    /// @p model is the index ECRModel of the template settings and the kind of all @p registers; @p plus 0
    /// gives each the shop's own range of PLUs.
    explicit ProgramFolder(int model = 2, int registers = 1, int plus = 0);

    [[nodiscard]] QString appPath() const { return m_folder.path("app"); }
    [[nodiscard]] QString bankPath() const { return m_folder.path("registers"); }
    /// Path of a register's binary file; registers count from 1.
    [[nodiscard]] QString registerFile(int number, int file) const
    {
        return joinPath(bankPath(), u"%1/%2.dat"_s.arg(number).arg(file));
    }
    /// Path of a file in the program's folder.
    [[nodiscard]] QString appFile(const QString& name) const { return joinPath(appPath(), name); }

    /// Makes a customer by copying the templates, and returns the values of a program that has chosen it.
    [[nodiscard]] ApplicationValues makeCustomer(const QString& name) const;

    /// Lets steps of the tools fail as a faults.ini says, from its first step on; empty text repairs
    /// everything.
    void setFaults(const QByteArray& sections) const
    {
        QFile::remove(m_folder.path("registers/faults.log"));
        m_folder.write("registers/faults.ini", sections);
    }
    /// Has a tool run the shell's @p script each time before it does its work.
    void precede(const char* tool, const QByteArray& script) const
    {
        const QString path = appFile(QLatin1String(tool));
        EXPECT_TRUE(QFile::rename(path, path + u".real"_s));
        writeWholeFile(path, "#!/bin/sh\n" + script + "\nexec \"$0.real\" \"$@\"\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    }
    /// Takes "VELMARCOMM" or "convert" away.
    void removeTool(const char* name) const
    {
        EXPECT_TRUE(QFile::remove(appFile(QLatin1String(name)))) << name;
    }

private:
    TestFolder m_folder;
    std::optional<WorkingDirectory> m_workingDirectory;
};

} // namespace norvane::test
