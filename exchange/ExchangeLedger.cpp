// See ExchangeLedger.h. The file holds a mark, its version, the shop, the entries and a digest of all that.
#include "exchange/ExchangeLedger.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/WholeFile.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

constexpr quint32 mark = 0x4E764C67;
constexpr quint32 version = 1;
constexpr qsizetype digestSize = sizeof(std::uint64_t);

QString ledgerPath(const ApplicationValues& values)
{
    return joinPath(values.customerPath, u"norvane.sent"_s);
}

QString shopOf(const ApplicationValues& values)
{
    return QFileInfo(values.customerPath).fileName().toUpper();
}

QByteArray bytesOf(const Digests& lines)
{
    const auto count = static_cast<qsizetype>(lines.size());
    QByteArray bytes(count * digestSize, Qt::Uninitialized);
    if (count > 0)
        qToLittleEndian<std::uint64_t>(lines.data(), count, bytes.data());
    return bytes;
}

Digests digestsOf(const QByteArray& bytes)
{
    const qsizetype count = bytes.size() / digestSize;
    Digests lines(static_cast<std::size_t>(count));
    if (count > 0)
        qFromLittleEndian<std::uint64_t>(bytes.data(), count, lines.data());
    return lines;
}

QDataStream& operator<<(QDataStream& out, const LedgerEntry& entry)
{
    return out << entry.since << entry.registers << entry.model << entry.generation << entry.mayBeAtSome
               << bytesOf(entry.lines);
}

QDataStream& operator>>(QDataStream& in, LedgerEntry& entry)
{
    QByteArray lines;
    in >> entry.since >> entry.registers >> entry.model >> entry.generation >> entry.mayBeAtSome >> lines;
    entry.lines = digestsOf(lines);
    return in;
}

QByteArray checkOf(const QByteArray& content)
{
    return bytesOf({digestOf({content.data(), static_cast<std::size_t>(content.size())})});
}

/// @return nothing if the file is missing, damaged, or cannot be read.
QByteArray soundContent(const QString& path)
{
    QByteArray content;
    try {
        // A device or pipe of that name would never end.
        if (QFileInfo(existingPath(path)).isFile())
            content = readWholeFile(path);
    } catch (const RuntimeFailure&) {
        return {};
    }
    if (content.size() < digestSize)
        return {};
    const QByteArray check = content.last(digestSize);
    content.chop(digestSize);
    return check == checkOf(content) ? content : QByteArray();
}

/// The entries as one text without its check.
QByteArray contentOf(const std::map<int, LedgerEntry>& entries, const QString& shop)
{
    QByteArray content;
    QDataStream out(&content, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_0);
    out << mark << version << shop << static_cast<quint32>(entries.size());
    for (const auto& [file, entry] : entries)
        out << file << entry;
    return content;
}

} // namespace

int modelOf(const ApplicationValues& values)
{
    return registerModelByText(values).place;
}

ExchangeLedger ExchangeLedger::read(const ApplicationValues& values)
{
    const QByteArray content = soundContent(ledgerPath(values));
    QDataStream in(content);
    in.setVersion(QDataStream::Qt_6_0);
    quint32 foundMark = 0;
    quint32 foundVersion = 0;
    QString shop;
    quint32 entries = 0;
    in >> foundMark >> foundVersion >> shop >> entries;
    ExchangeLedger ledger;
    if (foundMark != mark || foundVersion != version || shop != shopOf(values))
        return ledger;
    for (; entries > 0 && in.status() == QDataStream::Ok; --entries) {
        int file = 0;
        in >> file;
        in >> ledger.m_entries[file];
    }
    return in.status() == QDataStream::Ok ? ledger : ExchangeLedger();
}

void ExchangeLedger::save(const ApplicationValues& values) const
{
    const QByteArray content = contentOf(m_entries, shopOf(values));
    const QString path = existingPath(ledgerPath(values));
    if (replaceWholeFile(path, content + checkOf(content)))
        QFile::remove(path);
}

const LedgerEntry* ExchangeLedger::entry(int file, int model) const
{
    const auto found = m_entries.find(file);
    return found == m_entries.end() || found->second.model != model ? nullptr : &found->second;
}

} // namespace norvane::exchange
