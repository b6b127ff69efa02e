// Reads factory contents; see FactoryText.h.
#include "tools/makebank/FactoryText.h"

#include <map>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr char registerMark = '\xFD';

/// "^", and a backslash with two hexadecimal digits, encode characters that a plain text cannot contain.
QByteArray registerText(QByteArray value)
{
    value.replace('^', registerMark);
    for (auto at = value.indexOf('\\'); at >= 0; at = value.indexOf('\\', at + 1))
        value.replace(at, 3, QByteArray::fromHex(value.mid(at + 1, 2)));
    return value;
}

class Reader
{
public:
    Reader(const Columns& columns, int room) : m_columns(columns), m_room(room)
    {
        for (std::size_t i = 0; i < columns.size(); ++i)
            m_targets.push_back(i);
    }

    void takeLine(const QByteArray& line)
    {
        if (line.startsWith("columns ")) {
            setTargets(line.mid(8));
        } else if (line.startsWith("default ")) {
            setDefaults(line.mid(8));
        } else if (line.startsWith("fill ")) {
            fill(line.mid(5));
        } else if (line.startsWith('*')) {
            repeat(line.mid(1));
        } else {
            addRow(line);
        }
    }

    [[nodiscard]] const Records& records() const { return m_records; }

private:
    void setTargets(const QByteArray& numbers)
    {
        m_targets.clear();
        const auto words = numbers.split(' ');
        for (const auto& word : words)
            m_targets.push_back(word.toULong() - 1);
    }

    void setDefaults(const QByteArray& pairs)
    {
        const auto words = pairs.split(' ');
        for (const auto& word : words) {
            const auto parts = word.split('=');
            m_defaults[parts.first().toULong() - 1] = parts.last();
        }
    }

    void repeat(const QByteArray& line)
    {
        const auto blank = line.indexOf(' ');
        const int times = line.left(blank).toInt();
        for (int i = 1; i <= times; ++i)
            addRow(QByteArray(line.mid(blank + 1)).replace("%i", QByteArray::number(i)));
    }

    void fill(const QByteArray& line)
    {
        const auto word = line.split(' ').first();
        const int count = word == "room" ? m_room : word.toInt();
        while (m_records.size() < count)
            addRow(line.mid(word.size() + 1));
    }

    void addRow(QByteArray row)
    {
        row.replace("%n", QByteArray::number(m_records.size() + 1));
        const auto given = row.split(',');
        if (static_cast<std::size_t>(given.size()) > m_targets.size())
            throw std::runtime_error("too many columns");
        std::map<std::size_t, QByteArray> values = m_defaults;
        for (qsizetype i = 0; i < given.size(); ++i)
            values[m_targets.at(static_cast<std::size_t>(i))] = given.at(i);

        QByteArrayList record;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            record += padded(values[i], m_columns.at(i));
        m_records += record;
    }

    const Columns& m_columns;
    int m_room;
    std::vector<std::size_t> m_targets;
    std::map<std::size_t, QByteArray> m_defaults;
    Records m_records;
};

} // namespace

QByteArray padded(const QByteArray& value, const Column& column)
{
    if (column.form == Form::Code || column.form == Form::Bare)
        return value.isEmpty() ? column.values.first() : value;
    QByteArray result = value.rightJustified(column.width, '0');
    if (column.form == Form::Text) {
        result = registerText(value).leftJustified(column.width);
    } else if (value.endsWith('<')) {
        result = value.chopped(1).leftJustified(column.width, '0');
    }
    if (result.size() != column.width)
        throw std::runtime_error("too wide: " + value.toStdString());
    return result;
}

Records readFactoryText(const QByteArray& text, const QString& name, const Columns& columns, int room)
{
    Reader reader(columns, room);
    qsizetype number = 0;
    for (const QByteArray& line : text.split('\n')) {
        ++number;
        if (line.isEmpty() || line.startsWith(';'))
            continue;
        try {
            reader.takeLine(line);
        } catch (const std::runtime_error& failure) {
            const auto place = u"factory contents %1, line %2: "_s.arg(name).arg(number);
            throw std::runtime_error(place.toStdString() + failure.what());
        }
    }
    return reader.records();
}

} // namespace bank
