// Pages, definitions and records; see FormerWriter.h.
#include "tests/support/FormerWriter.h"

#include "tests/support/FormerBytes.h"

#include <algorithm>
#include <array>
#include <ranges>

namespace norvane::test
{
namespace
{

using namespace Qt::Literals::StringLiterals;

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
        page.replace(0x72, 8, binary<quint64>(made));
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

/// The fields of @p table: their entries one after the other, then their names.
QByteArray FormerWriter::columnBytes(const FormerRows& table, int& variables) const
{
    QByteArray entries;
    QByteArray names;
    int offset = 0;
    for (int i = 0; i < table.columns.size(); ++i) {
        const FormerColumn& column = table.columns.at(i);
        entries += columnEntry(column, i, isVariable(column.type) ? variables++ : variables, offset);
        offset += fixedSize(column.type);
        const QByteArray name =
            m_isOld ? column.name.toLatin1()
                    : QByteArray(reinterpret_cast<const char*>(column.name.utf16()), column.name.size() * 2);
        names += number(static_cast<int>(name.size())) + name;
    }
    return entries + names;
}

QByteArray FormerWriter::definitionBytes(const FormerRows& table, int mapPage) const
{
    const auto count = static_cast<int>(table.columns.size());
    const auto kept = table.rows.size() - table.deleted.size();
    const auto promised = static_cast<quint32>(table.promised < 0 ? kept : table.promised);
    int variables = 0;
    const QByteArray columns = columnBytes(table, variables);
    const QByteArray map = byte(0) + byte(mapPage) + byte(mapPage >> 8) + byte(mapPage >> 16);
    QByteArray block = m_isOld ? little(promised) + little(quint32{0})
                               : little(quint32{0}) + little(promised) + QByteArray(20, '\0');
    block += byte(0x4E) + word(count) + word(variables) + word(count) + QByteArray(8, '\0') + map + map;
    block += columns + word(0xFFFF);
    return little(static_cast<quint32>(block.size())) + block;
}

/// Definitions of many fields run over several pages.
void FormerWriter::writeDefinition(const FormerRows& table, int page, int mapPage)
{
    const QByteArray block = definitionBytes(table, mapPage);
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
    case FormerType::Single:
        return binary<quint32>(value.toFloat());
    case FormerType::Double:
        return binary<quint64>(value.toDouble());
    case FormerType::Date:
        return binary<quint64>(daysOf(value));
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

QByteArray FormerWriter::number(int value) const
{
    return m_isOld ? byte(value) : word(value);
}

/// A bit for each field that is not null, or that is yes.
QByteArray FormerWriter::maskOf(const FormerRows& table, const QVariantList& row)
{
    QByteArray mask((table.columns.size() + 7) / 8, '\0');
    for (int i = 0; i < table.columns.size(); ++i) {
        const bool isYesNo = table.columns.at(i).type == FormerType::YesNo;
        if (isYesNo ? row.at(i).toBool() : row.at(i).isValid())
            mask[i / 8] = static_cast<char>(mask.at(i / 8) | (1 << (i % 8)));
    }
    return mask;
}

/// The offset of an old record is one byte; a table tells at which offset each further 256 begin. It may make
/// the record longer by another 256, so that it has one entry more, which says nothing.
QByteArray FormerWriter::jumpsOf(const QVector<int>& offsets, int size)
{
    int jumps = (size - 1) / 256;
    jumps = (size + jumps - 1) / 256;
    QByteArray bytes;
    for (int jump = jumps; jump >= 1; --jump) {
        const auto first = std::ranges::find_if(offsets, [jump](int offset) { return offset >= 256 * jump; });
        bytes += byte(first != offsets.cend() ? static_cast<int>(first - offsets.cbegin()) : 0xFF);
    }
    return bytes;
}

/// The values of a variable length, each appended to @p bytes. @return where each begins, and the last ends.
QVector<int> FormerWriter::addVariables(QByteArray& bytes, const FormerRows& table,
                                        const QVariantList& row) const
{
    QVector<int> offsets;
    for (int i = 0; i < table.columns.size(); ++i) {
        if (!isVariable(table.columns.at(i).type))
            continue;
        offsets.append(static_cast<int>(bytes.size()));
        if (row.at(i).isValid())
            bytes += variableBytes(table.columns.at(i), row.at(i));
    }
    if (!offsets.isEmpty())
        offsets.append(static_cast<int>(bytes.size()));
    return offsets;
}

QByteArray FormerWriter::rowBytes(const FormerRows& table, const QVariantList& row) const
{
    QByteArray bytes = number(static_cast<int>(table.columns.size()));
    for (int i = 0; i < table.columns.size(); ++i) {
        const FormerColumn& column = table.columns.at(i);
        const QByteArray value = row.at(i).isValid() ? fixedBytes(column, row.at(i)) : QByteArray();
        bytes += value.leftJustified(fixedSize(column.type), '\0', true);
    }
    const QByteArray mask = maskOf(table, row);
    const QVector<int> offsets = addVariables(bytes, table, row);
    if (offsets.isEmpty())
        return bytes + mask;
    for (qsizetype i = offsets.size(); i > 0; --i)
        bytes += number(offsets.at(i - 1));
    if (m_isOld)
        bytes += jumpsOf(offsets, static_cast<int>(bytes.size() + 1 + mask.size()));
    return bytes + number(static_cast<int>(offsets.size()) - 1) + mask;
}

} // namespace norvane::test
