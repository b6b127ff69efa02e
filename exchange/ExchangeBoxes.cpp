// Captions of the exchange dialog's boxes and the note about the serial port devices.
#include "exchange/ExchangeBoxes.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{

const std::array<const char*, boxCount>& boxCaptions()
{
    static constexpr std::array<const char*, boxCount> captions{
        /*  0 */ "PLU",
        /*  1 */ "PLU Status Group",
        /*  2 */ "Group",
        /*  3 */ "Function Keys",
        /*  4 */ "All System Options",
        /*  5 */ "Vat Rates",
        /*  6 */ "All Messages",
        /*  7 */ "Window Look Up's",
        /*  8 */ "Time Period",
        /*  9 */ "Employee ",
        /* 10 */ "Authority Level",
        /* 11 */ "Printer Tables && KV Routing",
        /* 12 */ "Ingredient Inventory",
        /* 13 */ "Time Activated Functions",
        /* 14 */ "Product Mix Groups",
        /* 15 */ "Mix N Match Table",
        /* 16 */ "Custom Report",
        /* 17 */ "String Report",
        /* 18 */ "PLU Stock",
        /* 19 */ "PLU Minimum Stock",
        /* 20 */ "Non PLU Code",
        /* 21 */ "PLU && WLU Relocation",
        /* 22 */ "Bitmap ",
        /* 23 */ "Serial Port Device Selection",
        /* 24 */ "Key Link",
        /* 25 */ "Macro Pgm",
        /* 26 */ "Job Code",
        /* 27 */ "Pay Rate",
        /* 28 */ "Tare Table",
        /* 29 */ "System Printer Configuration",
        /* 30 */ "Edit Fin && Employee Report",
        /* 31 */ "Group By Employee",
        /* 32 */ "Recipe",
        /* 33 */ "Super Macro",
        /* 34 */ "SmartCard Categories",
        /* 35 */ "Smartcard Hotlist",
        /* 36 */ "Smartcard PLU Points",
    };
    return captions;
}

QString boxName(int box)
{
    QString name = QLatin1String(boxCaptions().at(static_cast<std::size_t>(box)));
    return name.replace("&&"_L1, "&"_L1).trimmed();
}

QString boxNames(const QList<int>& boxes)
{
    QStringList names;
    for (const int box : boxes)
        names << boxName(box);
    return names.join(u", "_s);
}

bool serialPortNoteDue(int boxValue, const QString& exchangeMode)
{
    constexpr int trueAsNumber = -1;
    return boxValue == trueAsNumber && exchangeMode == "DOWNLOAD"_L1;
}

QString serialPortNote()
{
    return u"You have selected to transmit the SERIAL PORT DEVICE option.\r"
           u"Please ensure you power off the ECR after the transmission \r"
           u"to ensure all new settings are initialised\r"_s;
}

QList<int> tickedBoxes(const TickBoxes& ticks)
{
    QList<int> boxes;
    for (int box = 0; box < boxCount; ++box) {
        if (ticks.isTicked(box))
            boxes << box;
    }
    return boxes;
}

} // namespace norvane::exchange
