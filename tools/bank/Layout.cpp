// Reads the notation of the layout table; see Layout.h.
#include "tools/bank/Layout.h"

#include "tools/bank/LayoutTable.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace bank
{
namespace
{

const LayoutRow* rowOf(int layoutCode)
{
    const auto& table = layoutTable();
    const auto row = std::find_if(table.begin(), table.end(),
                                  [layoutCode](const LayoutRow& each) { return each.code == layoutCode; });
    return row == table.end() ? nullptr : &*row;
}

/// Reads one row of the table. The table is part of the program, so a slip in it is a bug; the round-trip
/// tests read every row.
class Notation
{
public:
    Notation(const char* text, Model model) : m_at(text), m_model(model) {}

    /// Reads up to the end, or up to the bracket that closes a repetition.
    Columns columns()
    {
        Columns result;
        while (*m_at != '\0' && *m_at != ')') {
            if (*m_at == ' ') {
                ++m_at;
            } else if (std::isdigit(static_cast<unsigned char>(*m_at)) != 0) {
                repeat(result);
            } else {
                result.push_back(column());
            }
        }
        return result;
    }

private:
    int number()
    {
        char* end = nullptr;
        const auto value = std::strtol(m_at, &end, 10);
        m_at = end;
        return static_cast<int>(value);
    }

    void repeat(Columns& result)
    {
        const int times = number();
        ++m_at; // the opening bracket
        const auto inner = columns();
        ++m_at; // the closing one
        for (int i = 0; i < times; ++i)
            result.insert(result.end(), inner.begin(), inner.end());
    }

    int widthByModel()
    {
        const int width = number();
        if (*m_at != '/')
            return width;
        ++m_at;
        const int onDorvik = number();
        return m_model == Model::Dorvik ? onDorvik : width;
    }

    Column bare()
    {
        const char* end = m_at;
        while (*end != '\0' && *end != ' ' && *end != ')')
            ++end;
        const auto values = QByteArray(m_at, end - m_at).split('|');
        m_at = end;
        return {Form::Bare, static_cast<int>(values.last().size()), values};
    }

    Column column()
    {
        switch (*m_at++) {
        case 'T':
            return {Form::Text, widthByModel()};
        case 'N':
            return {Form::Digits, number()};
        case 'D':
            return {Form::Options, 2};
        case 'C':
            return {Form::Code, 2, {"00", "20", "40"}};
        case 'B':
            return bare();
        default:
            return {Form::Zeros, number()};
        }
    }

    const char* m_at;
    Model m_model;
};

} // namespace

int Column::packedLength() const
{
    switch (form) {
    case Form::Text:
        return width;
    case Form::Digits:
        return (width + 1) / 2;
    case Form::Zeros:
        return 0;
    default:
        return 1;
    }
}

const std::vector<int>& layoutCodes()
{
    static const auto codes = [] {
        std::vector<int> result;
        for (const auto& row : layoutTable())
            result.push_back(row.code);
        return result;
    }();
    return codes;
}

Columns columnsOf(int layoutCode, Model model)
{
    const auto* row = rowOf(layoutCode);
    return row == nullptr ? Columns{} : Notation(row->columns, model).columns();
}

int packedLength(const Columns& columns)
{
    int length = 0;
    for (const auto& column : columns)
        length += column.packedLength();
    return length;
}

int capacityOf(int file, Model model, const QList<QByteArray>& memory)
{
    const auto* row = rowOf(file);
    if (row == nullptr)
        return 0;
    const auto& room = model == Model::Dorvik ? row->onDorvik : row->onVelmar;
    if (room.memoryColumn == 0)
        return room.records;
    return memory.value(room.memoryColumn - 1).toInt();
}

} // namespace bank
