// Pages, definitions and records; see FormerWriter.h.
#include "tests/support/FormerWriter.h"

#include <QDateTime>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>

namespace norvane::test
{
namespace
{

using namespace Qt::Literals::StringLiterals;

template <typename Number>
QByteArray little(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    const Number stored = qToLittleEndian(number);
    std::memcpy(bytes.data(), &stored, sizeof stored);
    return bytes;
}
QByteArray word(int number)
{
    return little(static_cast<quint16>(number));
}
QByteArray byte(int number)
{
    return QByteArray(1, static_cast<char>(number));
}
QByteArray binary(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return little(bits);
}

bool isVariable(FormerType type)
{
    return type == FormerType::Text || type == FormerType::Memo || type == FormerType::Picture;
}

int fixedSize(FormerType type)
{
    switch (type) {
    case FormerType::Byte:
        return 1;
    case FormerType::Integer:
        return 2;
    case FormerType::Long:
    case FormerType::Single:
        return 4;
    case FormerType::Currency:
    case FormerType::Double:
    case FormerType::Date:
        return 8;
    case FormerType::Numeric:
        return 17;
    default:
        return 0;
    }
}

/// The cipher over the first page, with the key that every file has.
void cipher(QByteArray& page, int from, int size)
{
    static constexpr std::array<unsigned char, 4> key{0xC7, 0xDA, 0x39, 0x6B};
    std::array<unsigned char, 256> state{};
    for (unsigned i = 0; i < 256; ++i)
        state.at(i) = static_cast<unsigned char>(i);
    for (unsigned i = 0, j = 0; i < 256; ++i) {
        j = (j + state.at(i) + key.at(i % key.size())) & 0xFF;
        std::swap(state.at(i), state.at(j));
    }
    for (unsigned n = 0, i = 0, j = 0; n < static_cast<unsigned>(size); ++n) {
        i = (i + 1) & 0xFF;
        j = (j + state.at(i)) & 0xFF;
        std::swap(state.at(i), state.at(j));
        const auto mask = state.at((state.at(i) + state.at(j)) & 0xFF);
        char& letter = page.data()[from + static_cast<int>(n)];
        letter = static_cast<char>(static_cast<unsigned char>(letter) ^ mask);
    }
}

double daysOf(const QVariant& value)
{
    const QDateTime moment = value.toDateTime();
    const QDate dayZero(1899, 12, 30);
    return static_cast<double>(dayZero.daysTo(moment.date())) +
           static_cast<double>(moment.time().msecsSinceStartOfDay()) / 86'400'000.0;
}

/// Sixteen bytes as four words, the highest first, each with its lowest byte first.
QByteArray numericBytes(const QString& decimal)
{
    QString digits = decimal;
    const bool isNegative = digits.startsWith(u'-');
    digits.remove(u'-').remove(u'.');
    const quint64 number = digits.toULongLong();
    return byte(isNegative ? 0x80 : 0) + QByteArray(8, '\0') + little(static_cast<quint32>(number >> 32)) +
           little(static_cast<quint32>(number));
}

} // namespace

FormerWriter::FormerWriter(Format format)
    : m_isOld(format == Format::Of1997),
      m_version(m_isOld ? 0 : 1), m_objects{u"MSysObjects"_s,
                                            {{u"Id"_s, FormerType::Long},
                                             {u"ParentId"_s, FormerType::Long},
                                             {u"Name"_s, FormerType::Text, 64},
                                             {u"Type"_s, FormerType::Integer},
                                             {u"Flags"_s, FormerType::Long},
                                             {u"LvProp"_s, FormerType::Picture}},
                                            {}}
{
    // The header, the map of the whole file, the definition of the list of tables.
    for (int page = 0; page < 3; ++page)
        newPage();
    m_dataPages.append(QVector<int>());
}

int FormerWriter::newPage()
{
    m_pages.append(QByteArray(pageSize(), '\0'));
    return static_cast<int>(m_pages.size()) - 1;
}

void FormerWriter::put(int page, int at, const QByteArray& bytes)
{
    m_pages[page].replace(at, bytes.size(), bytes);
}

void FormerWriter::add(const FormerRows& table)
{
    const int page = newPage();
    m_objects.rows.append({page, 0x0F000001, table.name, 1, 0, QVariant()});
    m_dataPages.append(QVector<int>());
    addTable(table, page);
}

void FormerWriter::addTable(const FormerRows& table, int definitionPage)
{
    const QVector<int> pages = writeRows(table, definitionPage);
    writeDefinition(table, definitionPage, writeMap(pages));
    (definitionPage == 2 ? m_dataPages.first() : m_dataPages.last()) = pages;
}

QByteArray FormerWriter::content()
{
    addTable(m_objects, 2);
    m_pages[0] = header();
    put(1, 0, byte(1) + byte(1));
    return m_pages.join();
}

QByteArray FormerWriter::header() const
{
    constexpr int cipherAt = 0x18;
    QByteArray page(pageSize(), '\0');
    page.replace(0, 19, QByteArray("\0\1\0\0Standard Jet DB", 19));
    page[0x14] = m_version;
    page.replace(0x3C, 2, word(1252));
    const double made = 45'000;
    QByteArray password = m_password.leftJustified(m_isOld ? 20 : 40, '\0', true);
    if (!m_isOld) {
        page.replace(0x72, 8, binary(made));
        const QByteArray mask = little(static_cast<quint32>(made));
        for (int i = 0; i < password.size(); ++i)
            password[i] = static_cast<char>(password.at(i) ^ mask.at(i % 4));
    }
    page.replace(0x42, password.size(), password);
    cipher(page, cipherAt, m_isOld ? 126 : 128);
    return page;
}

/// A bit for each page that belongs to a table, in a row of a page of its own.
int FormerWriter::writeMap(const QVector<int>& pages)
{
    const int page = newPage();
    const int first = pages.isEmpty() ? 0 : pages.first();
    const int needed = pages.isEmpty() ? 0 : (pages.last() - first) / 8 + 1;
    QByteArray map(std::max(m_isOld ? 128 : 64, needed), '\0');
    for (const int owned : pages) {
        char& bits = map[(owned - first) / 8];
        bits = static_cast<char>(bits | (1 << ((owned - first) % 8)));
    }
    const QByteArray row = byte(0) + little(static_cast<quint32>(first)) + map;
    put(page, 0, byte(1) + byte(1));
    const int countAt = m_isOld ? 8 : 12;
    const int rowAt = pageSize() - static_cast<int>(row.size());
    put(page, countAt, word(1) + word(rowAt));
    put(page, rowAt, row);
    return page;
}

QByteArray FormerWriter::columnEntry(const FormerColumn& column, int number, int variableNumber,
                                     int offset) const
{
    const int size = column.type == FormerType::Text && !m_isOld ? column.size * 2
                     : column.type == FormerType::Text           ? column.size
                                                                 : fixedSize(column.type);
    const QByteArray misc =
        column.type == FormerType::Numeric ? byte(18) + byte(column.size) : word(m_isOld ? 0x4E4 : 0x409);
    const QByteArray flags = byte(isVariable(column.type) ? 2 : 3);
    if (m_isOld) {
        return byte(static_cast<int>(column.type)) + word(number) + word(variableNumber) + word(number) +
               word(0x409) + misc + word(0) + flags + word(offset) + word(size);
    }
    return byte(static_cast<int>(column.type)) + little(quint32{0}) + word(number) + word(variableNumber) +
           word(number) + misc + word(0) + flags + byte(1) + little(quint32{0}) + word(offset) + word(size);
}

/// Definitions of many fields run over several pages.
void FormerWriter::writeDefinition(const FormerRows& table, int page, int mapPage)
{
    const auto count = static_cast<int>(table.columns.size());
    const auto isKept = [&table](int row) {
        return !table.deleted.contains(row);
    };
    int records = 0;
    for (int row = 0; row < table.rows.size(); ++row)
        records += isKept(row) ? 1 : 0;
    QByteArray entries;
    QByteArray names;
    int variable = 0;
    int offset = 0;
    for (int i = 0; i < count; ++i) {
        const FormerColumn& column = table.columns.at(i);
        entries += columnEntry(column, i, isVariable(column.type) ? variable++ : variable, offset);
        offset += fixedSize(column.type);
        const QByteArray name =
            m_isOld ? column.name.toLatin1()
                    : QByteArray(reinterpret_cast<const char*>(column.name.utf16()), column.name.size() * 2);
        names += (m_isOld ? byte(static_cast<int>(name.size())) : word(static_cast<int>(name.size()))) + name;
    }
    const QByteArray map = byte(0) + byte(mapPage) + byte(mapPage >> 8) + byte(mapPage >> 16);
    const auto promised = static_cast<quint32>(table.promised < 0 ? records : table.promised);
    QByteArray block = m_isOld ? little(promised) + little(quint32{0})
                               : little(quint32{0}) + little(promised) + QByteArray(16, '\0');
    if (!m_isOld)
        block += QByteArray(4, '\0');
    block += byte(0x4E) + word(count) + word(variable) + word(count) + QByteArray(8, '\0') + map + map;
    block += entries + names + word(0xFFFF);
    block.prepend(little(static_cast<quint32>(block.size())));
    const int room = pageSize() - 8;
    for (int at = 0, current = page; at < block.size(); at += room) {
        const int next = at + room < block.size() ? newPage() : 0;
        put(current, 0, byte(2) + byte(1) + word(0) + little(static_cast<quint32>(next)));
        put(current, 8, block.mid(at, room));
        current = next;
    }
}

QVector<int> FormerWriter::writeRows(const FormerRows& table, int definitionPage)
{
    const int headSize = m_isOld ? 10 : 14;
    QVector<int> pages;
    int rowsOnPage = 0;
    int end = 0;
    for (int i = 0; i < table.rows.size(); ++i) {
        const QByteArray row = rowBytes(table, table.rows.at(i));
        const auto size = static_cast<int>(row.size());
        if (pages.isEmpty() || headSize + 2 * (rowsOnPage + 1) > end - size) {
            pages.append(newPage());
            rowsOnPage = 0;
            end = pageSize();
            put(pages.last(), 0, byte(1) + byte(1) + word(0) + little(static_cast<quint32>(definitionPage)));
        }
        end -= size;
        put(pages.last(), end, row);
        const int mark = table.deleted.contains(i) ? 0xC000 : 0;
        put(pages.last(), headSize + 2 * rowsOnPage, word(end | mark));
        put(pages.last(), headSize - 2, word(++rowsOnPage));
    }
    return pages;
}

QByteArray FormerWriter::textBytes(const QString& text) const
{
    if (m_isOld)
        return text.toLatin1();
    const bool isPacked = text.size() > 2 && std::ranges::all_of(text, [](QChar c) {
                              return c.unicode() > 0 && c.unicode() < 256;
                          });
    if (isPacked)
        return QByteArray("\xFF\xFE") + text.toLatin1();
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

QByteArray FormerWriter::fixedBytes(const FormerColumn& column, const QVariant& value) const
{
    switch (column.type) {
    case FormerType::Byte:
        return byte(value.toInt());
    case FormerType::Integer:
        return word(value.toInt());
    case FormerType::Long:
        return little(static_cast<qint32>(value.toInt()));
    case FormerType::Single: {
        const float number = value.toFloat();
        quint32 bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        return little(bits);
    }
    case FormerType::Double:
        return binary(value.toDouble());
    case FormerType::Date:
        return binary(daysOf(value));
    case FormerType::Currency:
        return little(static_cast<qint64>(value.toLongLong())); // in ten-thousandths
    case FormerType::Numeric:
        return numericBytes(value.toString());
    default:
        return {};
    }
}

QByteArray FormerWriter::variableBytes(const FormerColumn& column, const QVariant& value) const
{
    QByteArray text = textBytes(value.toString());
    if (column.type == FormerType::Text)
        return text;
    // A memo in the record itself: its length, the mark of that, and room for a page that is not needed.
    const auto size = static_cast<quint32>(text.size());
    return little(size | 0x80000000U) + QByteArray(8, '\0') + text;
}

QByteArray FormerWriter::rowBytes(const FormerRows& table, const QVariantList& row) const
{
    const auto count = static_cast<int>(table.columns.size());
    const auto number = [this](int value) {
        return m_isOld ? byte(value) : word(value);
    };
    QByteArray bytes = number(count);
    QByteArray mask((count + 7) / 8, '\0');
    QVector<int> offsets;
    for (int i = 0; i < count; ++i) {
        const FormerColumn& column = table.columns.at(i);
        const bool isSet = column.type == FormerType::YesNo ? row.at(i).toBool() : row.at(i).isValid();
        if (isSet)
            mask[i / 8] = static_cast<char>(mask.at(i / 8) | (1 << (i % 8)));
        if (!isVariable(column.type)) {
            const QByteArray value = row.at(i).isValid() ? fixedBytes(column, row.at(i)) : QByteArray();
            bytes += value.leftJustified(fixedSize(column.type), '\0', true);
        }
    }
    for (int i = 0; i < count; ++i) {
        if (!isVariable(table.columns.at(i).type))
            continue;
        offsets.append(static_cast<int>(bytes.size()));
        if (row.at(i).isValid())
            bytes += variableBytes(table.columns.at(i), row.at(i));
    }
    if (offsets.isEmpty())
        return bytes + mask;
    const auto variables = static_cast<int>(offsets.size());
    offsets.append(static_cast<int>(bytes.size()));
    for (int i = variables; i >= 0; --i)
        bytes += number(offsets.at(i));
    if (m_isOld) {
        // An offset is one byte; a table tells at which one each further 256 begin. It may make the row
        // longer by another 256, so that it has one entry more, which says nothing.
        const auto whole = static_cast<int>(bytes.size() + 1 + mask.size());
        int jumps = (whole - 1) / 256;
        jumps = (whole + jumps - 1) / 256;
        for (int jump = jumps; jump >= 1; --jump) {
            int first = 0;
            while (first < offsets.size() && offsets.at(first) < 256 * jump)
                ++first;
            bytes += byte(first < offsets.size() ? first : 0xFF);
        }
    }
    return bytes + number(variables) + mask;
}

} // namespace norvane::test
