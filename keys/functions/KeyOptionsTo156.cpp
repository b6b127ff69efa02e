// The options of the function keys up to 156, a row for each kind of key: its numbers, its boxes.
#include "keys/functions/KeyOptionRows.h"

namespace norvane::keys
{

using namespace rows;

// clang-format off
const std::vector<KeyOptions>& keyOptionsTo156()
{
    static const std::vector<KeyOptions> table{
        {{key(13)}, {}, {{0, "Allow In X Only"_L1}}},

        {{key(16)},
         {haloOfKey()},
         {{0, "Allow In X Only"_L1}, {1, "Compulsory Validation"_L1}, {2, "Print Receipt"_L1}}},

        // The port is added to the units of the field, but read from its first character.
        {{key(18)},
         {haloOfKey(),
          number(otherno, "Coin Change Port# (1-7)"_L1, firstCharacterOf(flag3), addedTo(flag3))},
         taxSetAnd({{6, "Open Drawer"_L1}, {7, "Compulsory Validation"_L1}, {8, "Amount Tender Compulsory"_L1},
                    {9, "Disable Under Tendering"_L1}, {10, "Allow Under Tendering in X Mode"_L1},
                    {11, "Enable Smart Card Sale"_L1, Card}, {15, "Print Signature?"_L1, Card},
                    {16, "Print Card Detail?"_L1, Card}, {18, "Pay By Points?"_L1, Points}})},

        {{key(19)}, {}, {{0, "Active In X Only"_L1}, {1, "Compulsory Validation"_L1}}},

        // Read from one field and saved to another.
        {{key(20)},
         {number(otherno, "Print Check On Printer# (0-40)"_L1, {flag4}, {flag2})},
         {{0, "Print Check Automatically on Service"_L1}, {1, "Print Consecutive# on Guest Check"_L1}}},

        // The printer is written after the digits of the boxes, so the field may have three digits.
        {{key(21)},
         {haloOfKey(),
          number(otherno, "Print Check On Printer# (0-40)"_L1, lastCharacterOf(flag3), appendedTo(flag3))},
         taxSetAnd({{6, "Open Drawer"_L1}, {7, "Compulsory Validation"_L1}, {8, "Amount Tender Compulsory"_L1},
                    {9, "Disable Under Tendering"_L1}, {10, "Allow Under Tendering in X Mode"_L1},
                    {11, "Non Add# Compulsory"_L1}, {12, "Halo: Y=Change N=Tender"_L1},
                    {13, "Compulsory Check Endorsement"_L1}, {14, "Enable Smartcard Sale"_L1, Card},
                    {18, "Print Signature?"_L1, Card}, {19, "Print Card Details"_L1, Card},
                    {20, "Pay By Points?"_L1, Points}})},

        {{key(22)},
         {haloOfKey()},
         {{0, "Allow In X Only"_L1}, {1, "Allow Halo Override In X Only"_L1}, {2, "Compulsory Validation"_L1}}},

        {{key(23)}, {number(otherno, "Print Check On Printer# (0-40)"_L1, {flag3}, {flag3})}, {}},

        {{keys(26, 30)},
         {wholeInHalo("Rate"_L1, halo, largestRate),
          number(otherno, "Linked Drawer (0-3)"_L1, {flag2}, {flag2}),
          number(otherno2, "Curr Dec Places"_L1, {flag3}, {flag3})},
         {{0, "Change In Foreign Currency"_L1}}},

        {{keys(38, 39)},
         {number(otherno, "KP Period Override (0=No Override)"_L1, {flag3}, {flag3})},
         taxSetAnd({{6, "Compulsory Validation"_L1}})},

        {{key(52)}, {}, {{0, "Allow In X Only"_L1}, {1, "Compulsory Validation"_L1}}},

        {{key(55)},
         {},
         taxSetAnd({{6, "Open Drawer"_L1}, {7, "Allow Decimal Entry"_L1},
                    {8, "Food Stamp Change (Y-Cash / N=Food Stamp"_L1}})},

        {{key(56)},
         {},
         {{0, "Compulsory After Beginning Guest Check"_L1}, {1, "Compulsory All Sales"_L1},
          {2, "Print On KP"_L1}, {3, "Print On Receipt"_L1}}},

        {{key(57), keys(59, 67)}, {}, {{0, "Allow In X Mode"_L1}}},

        // The first place is not used.
        {{key(118)},
         {haloOfKey()},
         {{1, "Allow In X Only"_L1}, {2, "Compulsory Validation"_L1}, {3, "Add To Net Grand Total"_L1},
          {4, "Skip Adjust Of PLU Total"_L1}}},

        {{keys(119, 134)},
         {haloOfKey(),
          number(otherno, "Coin Change Port# (1-7)"_L1, lastCharacterOf(flag3), addedTo(flag3)),
          number(otherno2, "EFT Terminal Port#"_L1, lastCharacterOf(flag4), addedTo(flag4))},
         taxSetAnd({{6, "Open Drawer"_L1}, {7, "Compulsory Validation"_L1}, {8, "Compulsory Amount Tendered"_L1},
                    {9, "Disable Under Tendering"_L1}, {10, "Allow Under Tendering in X Mode"_L1},
                    {11, "Non Add# Compulsory"_L1}, {12, "Allow Over Tender"_L1}, {13, "Connect To EFT"_L1},
                    {14, "Pay By Points"_L1, Points}, {18, "Enable Smart Card"_L1, Card},
                    {19, "Print Signature"_L1, Card}, {20, "Print Card Details"_L1, Card}})},

        {{keys(136, 145)},
         {number(otherno, "Key Affect Digit 1-18 Of PLU#"_L1, {flag2}, {flag2}),
          wholeInHalo("Val of Dgt Add (0-9) To PLU"_L1, flag3, largestWhole)},
         {{0, "Allow In X Only"_L1}, {1, "Key Modifies Descriptor Only"_L1},
          {2, "Print Descriptor On Guest Check"_L1}, {3, "Print Descriptor On Receipt"_L1},
          {4, "Print Descriptor On KP"_L1}}},

        {{key(147)},
         {number(otherno, "Halo Digit For No Add (0-14)"_L1, {flag3}, {flag3})},
         {{0, "Allow No Sale Function"_L1}, {1, "Allow Non Add Function"_L1}, {2, "No Sale In X Mode"_L1},
          {3, "No Sale Inactive After Non Add"_L1}, {4, "Compulsory Valid on No Sale"_L1},
          {5, "Enforce Non Add At Begin of Sale"_L1}, {6, "Comp Non Ad Must match Halo"_L1},
          {7, "No Sale Print On Receipt"_L1}}},

        {{key(148)}, {}, {{0, "Must be Entered At Start Of Sale"_L1}, {1, "Compulsory P/Bal"_L1}}},

        {{keys(151, 155)}, {haloOfKey()}, {{0, "Active In X Only"_L1}, {1, "Compulsory Validation"_L1}}},

        {{key(156)}, {}, {{0, "Active In X Only"_L1}}},
    };
    return table;
}
// clang-format on

} // namespace norvane::keys
