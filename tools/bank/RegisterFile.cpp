// Header, size and checksum of a register's binary file; see RegisterFile.h.
#include "tools/bank/RegisterFile.h"

#include "tools/bank/ToolFailure.h"

#include <QDataStream>
#include <QIODevice>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr qsizetype fileHeadLength = 14;
constexpr qsizetype headerLength = 16;
constexpr quint8 formatVersion = 1;
const QByteArray magic = "NVRF"_ba;

quint16 checksum(const QByteArray& head, const QByteArray& records)
{
    return qChecksum(head + records);
}

ToolFailure wrongInformation(const QString& text)
{
    return {FileInformationWrong, text};
}

/// The header before the records.
struct Header {
    quint8 stamp = 0;
    quint8 number = 0;
    quint8 model = 0;
    quint8 version = 0;
    quint32 count = 0;
    quint16 length = 0;
    quint16 sum = 0;
};

Header readHeader(const QByteArray& bytes)
{
    if (bytes.size() < headerLength || !bytes.startsWith(magic))
        throw wrongInformation(u"not a register file"_s);
    Header header;
    QDataStream stream(bytes.mid(magic.size()));
    stream >> header.stamp >> header.number >> header.model >> header.version >> header.count >>
        header.length >> header.sum;
    if (header.version != formatVersion || header.model > static_cast<quint8>(Model::Dorvik))
        throw wrongInformation(u"a register file of an unknown format or model"_s);
    return header;
}

void checkRecords(const Header& header, const QByteArray& head, const QByteArray& records)
{
    const qint64 promised = static_cast<qint64>(header.count) * header.length;
    if (records.size() != promised) {
        throw ToolFailure(FileSizeMismatch,
                          u"%1 bytes of records, %2 expected"_s.arg(records.size()).arg(promised));
    }
    if (checksum(head, records) != header.sum)
        throw ToolFailure(BadCrc, u"the checksum does not fit the content"_s);
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
    const Header header = readHeader(bytes);
    RegisterFile file;
    file.stamp = header.stamp;
    file.file = header.number;
    file.model = static_cast<Model>(header.model);
    file.recordLength = header.length;
    file.records = bytes.mid(headerLength);
    checkRecords(header, bytes.left(fileHeadLength), file.records);
    return file;
}

RegisterFile fromBytes(const QByteArray& bytes, int file, Model model)
{
    auto result = fromBytes(bytes);
    if (result.file != file)
        throw wrongInformation(u"holds file %1, not %2"_s.arg(result.file).arg(file));
    if (result.model != model) {
        throw wrongInformation(
            u"made for a %1, not for a %2"_s.arg(modelWord(result.model), modelWord(model)));
    }
    return result;
}

} // namespace bank
