// Walks the key plan in the order of the register's key numbers: columns from the left, each from the bottom
// up.
#include "tools/makebank/Keyboards.h"

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr int levels = 5;
const QByteArray pluLink = "0200"_ba;
const QByteArray lookUpLink = "0300"_ba;

QByteArray digits(qsizetype number, int width)
{
    return QByteArray::number(number).rightJustified(width, '0');
}

QList<QByteArrayList> cellsOf(const QByteArray& plan)
{
    QList<QByteArrayList> rows;
    const auto lines = plan.split('\n');
    for (const auto& line : lines) {
        if (!line.isEmpty() && !line.startsWith(';'))
            rows += line.simplified().split(' ');
    }
    return rows;
}

/// The cells in the order of the register's key numbers, fixed ones left out.
QByteArrayList walkingOrder(const QList<QByteArrayList>& rows)
{
    QByteArrayList cells;
    for (qsizetype column = 0; column < rows.first().size(); ++column) {
        for (qsizetype row = rows.size() - 1; row >= 0; --row) {
            if (rows.at(row).at(column) != "-")
                cells += rows.at(row).at(column);
        }
    }
    return cells;
}

/// What the register keeps of a key: file 16 and file 17.
struct KeyCode {
    QByteArray link;
    QByteArray number;
};

KeyCode codeOf(const QByteArray& cell, qsizetype key)
{
    const auto number = cell.mid(1).toInt();
    if (cell.startsWith('w'))
        return {lookUpLink, digits(number, 4) + digits(key, 14)};
    return {digits(number, 4), digits(key, 18)};
}

} // namespace

Keyboards layOutKeyboards(const QByteArray& plan, const QList<QByteArray>& plus)
{
    Keyboards keyboards;
    const auto cells = walkingOrder(cellsOf(plan));
    for (int level = 0; level < levels; ++level) {
        // Each level begins at another fifth of the shop's articles.
        qsizetype plu = level * plus.size() / levels;
        for (qsizetype key = 1; key <= cells.size(); ++key) {
            const auto& cell = cells.at(key - 1);
            const auto [link, number] =
                cell == "p" ? KeyCode{pluLink, plus.at(plu++ % plus.size())} : codeOf(cell, key);
            keyboards.links += link;
            keyboards.numbers += number;
        }
    }
    return keyboards;
}

} // namespace bank
