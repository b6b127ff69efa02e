// For tests of exchanges: a customer, the real tools and a bank of registers.
#pragma once

#include "customers/SafetyCopies.h"
#include "exchange/ExchangeRunner.h"
#include "link/ToolRun.h"
#include "platform/FilePaths.h"
#include "tests/store/Rows.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/RecordingBoxes.h"

#include <set>

namespace norvane::exchange
{

class Ticks : public TickBoxes
{
public:
    std::set<int> ticked;
    [[nodiscard]] bool isTicked(int box) const override { return ticked.contains(box); }
    void setTicked(int box, bool on) override
    {
        ticked.erase(box);
        if (on)
            ticked.insert(box);
    }
};

/// A customer whose registers are one model, and all that an exchange with them does.
class Exchange
{
public:
    explicit Exchange(int model, int registers = 1)
        : folder(model, registers), values(folder.makeCustomer(QStringLiteral("Corner Shop")))
    {
    }
    void upload(const std::set<int>& wanted) { run(wanted, &ExchangeRunner::UploadData); }
    void uploadPlusWithoutPoints()
    {
        folder.setFaults("[Off]\nCommand=fetch\nFile=71\nResult=8\n");
        upload({0});
        folder.setFaults("");
    }
    void download(const std::set<int>& wanted) { run(wanted, &ExchangeRunner::downloaddata); }
    /// The registers are not put back with the tables, nor is what is known of them.
    void restore(const customers::SafetyCopy& copy) const
    {
        const QString notes = joinPath(values.customerPath, u"exchange.ini"_s);
        const QByteArray noted = readWholeFile(notes);
        customers::restoreSafetyCopy(values.customerPath, copy);
        writeWholeFile(notes, noted);
    }
    /// Numbers of the files that the transfer tool was asked for after the opening exchanges.
    [[nodiscard]] QList<int> files() const
    {
        QList<int> numbers;
        for (const QString& line : transfers.mid(2))
            numbers << line.section(u" N"_s, 1).section(u'.', 0, 0).toInt();
        return numbers;
    }
    /// A register file in the customer's folder and in the program's.
    [[nodiscard]] QString kept(int file) const
    {
        return joinPath(values.customerPath, u"%1.dat"_s.arg(file));
    }
    [[nodiscard]] QString made(int file) const { return folder.appFile(u"%1.dat"_s.arg(file)); }
    [[nodiscard]] bool showsOnly(const char* text) const
    {
        return boxes.shown == std::vector{test::ShownBox{QLatin1String(text), u"Communication result"_s}};
    }

    [[nodiscard]] std::string firstGroup() const
    {
        return test::rowsOf(values.databasePath, u"select DESCRIPTION from GROUPS where GROUPNO=1"_s);
    }

    test::ProgramFolder folder;
    ApplicationValues values;
    test::RecordingBoxes boxes;
    Ticks ticks;
    QStringList transfers; ///< lines of the transfer tool
    QStringList notices;
    QString explained; ///< the result that stopped the run
    /// Runs after each line of a tool.
    std::function<void(const QString& line)> afterTool;

private:
    void run(const std::set<int>& wanted, bool (ExchangeRunner::*sequence)())
    {
        transfers.clear();
        notices.clear();
        explained.clear();
        boxes.shown.clear();
        ticks.ticked = wanted;
        const link::LinkSettings link = link::readLinkSettings(values);
        ExchangeRunner runner(values, link, ticks, outside());
        (runner.*sequence)();
    }
    [[nodiscard]] link::RunOutside outside()
    {
        return {.runAndWait = [this](const QString& line) { return runTool(line); },
                .readStatus = link::ReadStatusOut,
                .showStep = [](const QString&) {},
                .showNotice = [this](const QString& text) { notices << text; },
                .goOn = [] { return true; },
                .boxes = boxes,
                .explain =
                    [this](const link::FailedStep& step) {
                        explained = inWords(step);
                    }};
    }
    ChildResult runTool(const QString& line)
    {
        if (line.startsWith("VELMARCOMM"_L1))
            transfers << line;
        const ChildResult result = link::RunAndWait(values, line);
        if (afterTool)
            afterTool(line);
        return result;
    }
};

inline std::set<int> allBoxes()
{
    std::set<int> all;
    for (int box = 0; box < boxCount; ++box)
        all.insert(box);
    return all;
}

} // namespace norvane::exchange
