// Walks the key plan as the register numbers its keys: column by column from the left, each from the bottom
// up.
#include "tools/makebank/Keyboards.h"

namespace bank
{
namespace
{

constexpr int levels = 5;
const QByteArray pluLink = QByteArrayLiteral("0200");
const QByteArray lookUpLink = QByteArrayLiteral("0300");

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
            const auto number = cell.mid(1).toInt();
            if (cell == "p") {
                keyboards.links += pluLink;
                keyboards.numbers += plus.at(plu++ % plus.size());
            } else if (cell.startsWith('w')) {
                keyboards.links += lookUpLink;
                keyboards.numbers += digits(number, 4) + digits(key, 14);
            } else {
                keyboards.links += digits(number, 4);
                keyboards.numbers += digits(key, 18);
            }
        }
    }
    return keyboards;
}

} // namespace bank
