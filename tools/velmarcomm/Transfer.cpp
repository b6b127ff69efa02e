// Fetching, sending and the steps of a collection; see Transfer.h.
#include "tools/velmarcomm/Transfer.h"

#include "tools/bank/Files.h"
#include "tools/bank/Layout.h"
#include "tools/bank/RegisterFile.h"
#include "tools/bank/Reports.h"
#include "tools/bank/ToolFailure.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

void expectAnswer(const Register& target)
{
    if (!target.on)
        throw ToolFailure(TimeOut, u"register %1 does not answer"_s.arg(target.number));
    if (target.busy)
        throw ToolFailure(MachineBusy, u"register %1 is busy"_s.arg(target.number));
}

/// The registers of an order, one by one: a missing or silent one stops the run; the registers before it are
/// complete.
class Line
{
public:
    Line(const Order& order, const Bank& bank, const std::optional<Fault>& fault)
        : m_registers(bank.registersOn(order.port)), m_last(order.registers)
    {
        if (fault && (fault->result != Done || fault->atRegister != 0)) {
            m_failsAt = std::max(fault->atRegister, 1);
            m_failure = fault->result;
        }
    }

    template <typename Act>
    void each(Act act) const
    {
        for (int place = 1; place <= m_last; ++place)
            act(answering(place));
    }

private:
    [[nodiscard]] const Register& answering(int place) const
    {
        if (place == m_failsAt)
            throw ToolFailure(m_failure, u"fault file: result %1 at register %2"_s.arg(m_failure).arg(place));
        if (place > m_registers.size())
            throw ToolFailure(TimeOut, u"no register %1 on the line"_s.arg(place));
        const auto& target = m_registers.at(place - 1);
        expectAnswer(target);
        return target;
    }

    QList<Register> m_registers;
    int m_last;
    int m_failsAt = 0;
    int m_failure = 0;
};

QString inWorkingFolder(const QString& name)
{
    return pathOf(QDir::currentPath(), name);
}

void expectKnown(const Register& target, int file)
{
    if (!target.knowsFile(file)) {
        throw ToolFailure(FileInformationWrong, u"register %1 has no file %2"_s.arg(target.number).arg(file));
    }
}

void cut(QByteArray& arrived, const std::optional<Fault>& fault)
{
    if (fault && fault->bytesLeft)
        arrived.truncate(*fault->bytesLeft);
}

void fetch(const Order& order, const Line& line, const std::optional<Fault>& fault)
{
    line.each([&](const Register& source) {
        expectKnown(source, order.file);
        auto bytes = readFile(source.filePath(order.file));
        cut(bytes, fault);
        writeFile(inWorkingFolder(order.name), bytes);
    });
}

void checkRoom(const RegisterFile& file, const Register& target)
{
    const auto columns = columnsOf(file.file, target.model);
    if (columns.empty())
        return;
    const int room = capacityOf(file.file, target.model, target.memory());
    if (file.recordLength != packedLength(columns) || (room != 0 && file.recordCount() > room)) {
        throw ToolFailure(FileSizeMismatch,
                          u"%1 records of %2 bytes for %3 places of %4 bytes"_s.arg(file.recordCount())
                              .arg(file.recordLength)
                              .arg(room)
                              .arg(packedLength(columns)));
    }
}

void send(const Order& order, const Line& line)
{
    const auto bytes = readFile(inWorkingFolder(order.name));
    line.each([&](const Register& target) {
        expectKnown(target, order.file);
        checkRoom(fromBytes(bytes, order.file, target.model), target);
        writeFile(target.filePath(order.file), bytes);
    });
}

int consolidate(const Line& line)
{
    int result = Done;
    line.each([&result](const Register& target) {
        if (!consolidateReports(target))
            result = ReportsWaiting;
    });
    return result;
}

void collect(const Line& line, const std::optional<Fault>& fault)
{
    Collection collection;
    line.each([&collection](const Register& source) { collection.add(source); });
    for (const auto& file : collection.files()) {
        auto bytes = toBytes(file);
        cut(bytes, fault);
        writeFile(inWorkingFolder(u"poll%1.dll"_s.arg(file.file)), bytes);
    }
}

} // namespace

int carryOut(const Order& order, const Bank& bank, const std::optional<Fault>& fault)
{
    const Line line(order, bank, fault);
    switch (order.kind) {
    case Order::Kind::Open:
        line.each([](const Register&) {});
        break;
    case Order::Kind::Fetch:
        fetch(order, line, fault);
        break;
    case Order::Kind::Send:
        send(order, line);
        break;
    case Order::Kind::Consolidate:
        return consolidate(line);
    case Order::Kind::Collect:
        collect(line, fault);
        break;
    case Order::Kind::Clear:
        line.each(clearReports);
        break;
    }
    return Done;
}

} // namespace bank
