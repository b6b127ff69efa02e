// Header, size and checksum of a register's binary file; see RegisterFile.h.
#include "tools/bank/RegisterFile.h"

#include "tools/bank/ToolFailure.h"

#include <QDataStream>
#include <QIODevice>

namespace bank
{
namespace
{

constexpr qsizetype headLength = 14;
constexpr qsizetype headerLength = 16;
constexpr quint8 formatVersion = 1;
const QByteArray magic = QByteArrayLiteral("NVRF");

quint16 checksum(const QByteArray& head, const QByteArray& records)
{
    return qChecksum(head + records);
}

ToolFailure wrongInformation(const QString& text)
{
    return {FileInformationWrong, text};
}

} // namespace

QByteArray toBytes(const RegisterFile& file)
{
    QByteArray head = magic;
    QDataStream stream(&head, QIODevice::Append);
    stream << file.stamp << static_cast<quint8>(file.file) << static_cast<quint8>(file.model) << formatVersion
           << static_cast<quint32>(file.recordCount()) << static_cast<quint16>(file.recordLength);
    QByteArray bytes = head;
    QDataStream(&bytes, QIODevice::Append) << checksum(head, file.records);
    return bytes + file.records;
}

RegisterFile fromBytes(const QByteArray& bytes)
{
    if (bytes.size() < headerLength || !bytes.startsWith(magic))
        throw wrongInformation(QStringLiteral("not a register file"));

    QDataStream stream(bytes.mid(magic.size()));
    RegisterFile file;
    quint8 number = 0;
    quint8 model = 0;
    quint8 version = 0;
    quint32 count = 0;
    quint16 length = 0;
    quint16 sum = 0;
    stream >> file.stamp >> number >> model >> version >> count >> length >> sum;
    if (version != formatVersion || model > static_cast<quint8>(Model::Dorvik))
        throw wrongInformation(QStringLiteral("a register file of an unknown format or model"));

    file.file = number;
    file.model = static_cast<Model>(model);
    file.recordLength = length;
    file.records = bytes.mid(headerLength);
    const qint64 promised = static_cast<qint64>(count) * length;
    if (file.records.size() != promised) {
        throw ToolFailure(
            FileSizeMismatch,
            QStringLiteral("%1 bytes of records, %2 expected").arg(file.records.size()).arg(promised));
    }
    if (checksum(bytes.left(headLength), file.records) != sum)
        throw ToolFailure(BadCrc, QStringLiteral("the checksum does not fit the content"));
    return file;
}

RegisterFile fromBytes(const QByteArray& bytes, int file, Model model)
{
    auto result = fromBytes(bytes);
    if (result.file != file)
        throw wrongInformation(QStringLiteral("holds file %1, not %2").arg(result.file).arg(file));
    if (result.model != model) {
        throw wrongInformation(
            QStringLiteral("made for a %1, not for a %2").arg(modelWord(result.model), modelWord(model)));
    }
    return result;
}

} // namespace bank
