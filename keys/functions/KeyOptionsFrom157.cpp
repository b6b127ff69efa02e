// The options of the function keys from 157 on, a row for each kind of key: its numbers, its boxes.
#include "keys/functions/KeyOptionRows.h"

namespace norvane::keys
{

using namespace rows;

// clang-format off
const std::vector<KeyOptions>& keyOptionsFrom157()
{
    static const std::vector<KeyOptions> table{
        {{keys(157, 166)},
         {haloInThousandths()},
         taxSetAnd({{6, "Inactive"_L1}, {7, "Active In X Mode Only"_L1}, {8, "Y=Sale / N=Item"_L1},
                    {9, "Y=Amount / N=Percent"_L1}, {10, "Y=Plus / N=Minus"_L1}, {11, "Y=Open / N=Preset"_L1},
                    {12, "Compulsory Validation"_L1}, {13, "Allow Preset Override"_L1},
                    {14, "Preset Override In X Mode"_L1}, {15, "Key Nets Item Total"_L1},
                    {16, "% Amount Food Stamp"_L1}, {17, "Allow Multiple Sale Coupons"_L1},
                    {18, "Allow 1 Coupon / Transaction"_L1}, {19, "Key is Do It Function Discount"_L1}})},

        {{key(169)}, {}, {{0, "0=Pop Up / 1=Stay Down"_L1}, {1, "Allow In X Mode"_L1}}},

        {{keys(170, 189)}, {}, {{0, "Active In X Only"_L1}}},

        {{key(190)}, {number(otherno, "Output Printer# (0-40)"_L1, {flag1}, {flag1})}, {}},

        {{key(191)},
         {number(otherno, "Output Printer# (0-40)"_L1, {flag2}, {flag2})},
         {{0, "Print Check Automatically On Service"_L1}, {1, "Print Consecutive# On Gst Check"_L1}}},

        {{key(192)}, {}, {{0, "Allow In X Only"_L1}}},

        {{key(193)}, {}, taxSetAnd({{6, "Allow In X Only"_L1}})},

        {{keys(197, 200)},
         {number(otherno, "Length Of Check Digit"_L1, {flag4}, {flag4})},
         {{0, "Enforce Seat#"_L1}, {1, "Table Entry Required"_L1}, {2, "Multiple Checks / Table"_L1},
          {3, "Guest Count Entry Required"_L1}, {4, "Check# Is Compulsory (All Sales)"_L1},
          {5, "Check# Assigned By Register"_L1}, {6, "Opening Employee Has Exclusive Access"_L1},
          {7, "Print Check# On Receipt"_L1}, {8, "Print Check# On Detail"_L1}, {9, "Print Check# On KP"_L1},
          {10, "Drive Thru Feature"_L1}, {11, "Print Receipt After Store Check"_L1},
          {12, "Allow In X Mode Only"_L1}, {13, "Disable Open A New Check"_L1}}},

        {{keys(201, 205)}, {haloOfKey()}, {{0, "Allow In X Mode Only"_L1}, {1, "Compulsory Validation"_L1}}},

        {{key(206)}, {}, {{0, "Print Reprint On Receipt"_L1}}},

        {{key(207)}, {}, {{0, "Allow In X Mode Only"_L1}}},

        {{key(208)},
         {},
         {{0, "Allow In X Mode Only"_L1}, {1, "Allow Manual Entry Of Weight"_L1},
          {2, "Inhibit Tare Weight Entry"_L1}, {3, "Tare Entry In X Only"_L1},
          {4, "Tare Entry IS Compulsory"_L1}, {5, "Weight Symbol Y=Kg / N=Ib"_L1}}},

        {{key(209)}, {}, {{0, "Y=Stay Down /  N=Pop Up"_L1}, {1, "Allow Manual Entry Of Weight"_L1}}},

        {{keys(211, 212)}, {}, {{0, "Allow In X Mode Only"_L1}}},

        {{key(213)}, {}, {{0, "Y=Stay Down /  N=Pop Up"_L1}, {1, "Allow Manual Entry Of Weight"_L1}}},

        // Box 12 is read at the place of box 15, but saved at its own.
        {{keys(214, 217)},
         {haloOfKey(), number(otherno, "Hard Check Printer# (0-40)"_L1, {flag4}, {flag4})},
         taxSetAnd({{6, "Compulsory Validation"_L1}, {7, "Non Add# Compulsory"_L1}, {8, "Print On Receipt"_L1},
                    {9, "Print On Detail"_L1}, {10, "Service Of Neg Balance In X Only"_L1},
                    {11, "Auto Check Management"_L1}, {12, "Allow In X Only"_L1, All, 15}})},

        // Read from one field and saved to another.
        {{key(223)},
         {number(otherno, "KP Period Override (0=No Override)"_L1, {flag3}, {flag4})},
         taxSetAnd({{6, "Compulsory Validation"_L1}})},

        {{key(224)}, {}, taxSetAnd({{6, "Non Add# Compulsory"_L1}, {7, "Compulsory Validation"_L1}})},

        {{key(231)}, {}, {{0, "Allow In X Mode Only"_L1}, {1, "Compulsory Validation"_L1}}},

        {{keys(232, 234)},
         {haloOfKey()},
         {{0, "Tip Y=% / N=Amount"_L1}, {1, "If % Is Added to Tax1"_L1}, {2, "If % Is Added to Tax2"_L1},
          {3, "If % Is Added to Tax3"_L1}, {4, "If % Is Added to Tax4"_L1}, {5, "If % Is Added to Tax5"_L1},
          {6, "If % Is Added To Tax6"_L1}, {7, "Must Be Paid By Misc Tend After Tip"_L1},
          {8, "Tip Amt Adds To Grs & Net TTLs"_L1}, {9, "Charge Tip Is Deduct From Cash"_L1},
          {10, "Y=Open / N= Preset"_L1}}},

        {{keys(235, 238)}, {}, {{0, "Allow In X Mode Only"_L1}}},

        {{key(239)},
         {},
         taxSetAnd({{6, "Allow In X Only"_L1}, {7, "Compulsory After Tender"_L1}, {8, "Compulosry Validation"_L1},
                    {9, "Advances Cons# at Final Tender"_L1}})},

        {{key(241)}, {haloOfKey()}, {{0, "Allow In X Mode Only"_L1}, {1, "Compulsory Validation"_L1}}},

        {{key(242)},
         {},
         {{0, "Allow In X Mode Only"_L1}, {1, "Compulsory Validation"_L1}, {2, "Affect Projection"_L1}}},

        {{key(243)}, {}, {{0, "Allow In X Mode Only"_L1}}},

        {{key(244)}, {}, {{0, "Allow Split Pricing"_L1}}},

        {{keys(246, 247)}, {}, {{0, "Allow In X Mode Only"_L1}}},

        {{key(248)}, {}, {{0, "Y=Stay Down /  N=Pop Up"_L1}, {1, "Allow In X Only"_L1}}},

        {{key(257)}, {}, {{0, "Allow In X Mode Only"_L1}, {1, "Compulsory Validation"_L1}}},

        {{key(258)},
         {number(otherno, "Points Gain For Each 1.00"_L1, {flag2}, {flag2})},
         {{0, "Allow In X Mode Only"_L1}, {1, "Print Card Details"_L1}, {2, "Check Card Max Balance"_L1}}},

        {{key(259)},
         {number(otherno, "Points Subtracted For Each 1.00"_L1, {flag2}, {flag2})},
         {{0, "Allow In X Mode Only"_L1}, {1, "Print Card Details"_L1}}},

        {{key(260)}, {}, {{0, "Allow In X Mode Only"_L1}, {1, "Print Card Details"_L1}}},

        {{key(261)}, {}, {{0, "Allow In X Mode Only"_L1}, {1, "Print Card Details"_L1}}},

        {{keys(262, 263)},
         {},
         {{0, "Allow In X Mode"_L1}, {1, "Card Holder Ref."_L1}, {2, "Category"_L1}, {3, "Department"_L1},
          {4, "Loyalty"_L1}, {5, "Current Balance"_L1}, {6, "Max. Card Balance"_L1}, {7, "Name"_L1},
          {8, "Birth Date"_L1}}},

        {{key(264)},
         {moneyInHalo("Money Gain For Each Point"_L1, flag2)},
         {{0, "Allow In X Mode Only"_L1}, {1, "Print Card Details"_L1}}},

        {{key(265)}, {}, {{0, "Allow In X Mode Only"_L1}, {1, "Print Card Details"_L1}}},

        {{key(266)}, {}, {{0, "Allow In X Mode Only"_L1}, {1, "Print Card Details"_L1}}},
    };
    return table;
}
// clang-format on

} // namespace norvane::keys
