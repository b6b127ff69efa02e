// Makes a customer to look at, with the programme of a register and sales of more than a year.
#pragma once

#include <QDate>
#include <QString>

namespace demo
{

struct Wish {
    QString program; ///< folder of the program, with tools, templates and a working bank
    QString tools;   ///< folder with makebank and ringsales
    QString scratch; ///< folder for temporary files, on a quick disk
    QDate first;     ///< first and last day of the sales
    QDate last;
};

/// Name of the customer.
[[nodiscard]] QString shopName();

/// Makes the customer in the program's folder, completely or not at all. @throws std::runtime_error or
/// RuntimeFailure
void makeDemoShop(const Wish& wish);

} // namespace demo
