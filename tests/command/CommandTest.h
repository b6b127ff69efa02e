// The command line in a program folder of a test's own.
#pragma once

#include "tests/road/RunCommand.h"
#include "tests/support/ProgramFolder.h"

namespace norvane::test
{

class CommandTest : public testing::Test
{
protected:
    [[nodiscard]] Ended run(const QStringList& words) const { return runCommand(m_folder.appPath(), words); }
    /// Expects that @p words end with @p code, and a text on standard error that has @p text.
    void expectRefusal(int code, const QStringList& words, const QString& text) const
    {
        const Ended ended = run(words);
        EXPECT_EQ(ended.code, code) << words.join(u' ').toStdString();
        EXPECT_TRUE(ended.err.contains(text)) << ended.err.toStdString();
    }
    void expectUsage(const QStringList& words, const QString& text) const { expectRefusal(2, words, text); }

    ProgramFolder m_folder;
};

} // namespace norvane::test
