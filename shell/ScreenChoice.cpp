// Tables of the entries that need the model or the firmware; see ScreenChoice.h.
#include "shell/ScreenChoice.h"

#include "base/CustomerSettings.h"
#include "platform/FailurePlace.h"
#include "register/Firmware.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// What an entry opens for ECRModel 0, 1, 2 and any other.
struct ByModel {
    QLatin1StringView entry;
    std::array<QLatin1StringView, 4> targets;
};

// clang-format off
constexpr auto byModel = std::to_array<ByModel>({
    {"PLUMENU"_L1, {"\\PLUVelmarv2.scn"_L1, "\\PLUVelmarv2card.scn"_L1, "\\PLUVelmarv3.scn"_L1, "\\PLU.scn"_L1}},
    // The file for cards has no "2" in its name.
    {"PLUStatusMenu"_L1, {"\\PLUstatVelmarv2.scn"_L1, "\\PLUstatVelmarvcard.scn"_L1, "\\PLUstatVelmarv3.scn"_L1, "\\PLUstat.scn"_L1}},
    {"GeneralOptions"_L1, {"\\GenFuncVelmarv2.scn"_L1, "\\GenFuncVelmarv2card.scn"_L1, "\\GenFuncVelmarv3.scn"_L1, "\\GenFunc.scn"_L1}},
    {"GeneralPrintOption"_L1, {"\\GenPrtOpVelmarv2.scn"_L1, "\\GenPrtOpVelmarv2card.scn"_L1, "\\GenPrtOpVelmarv3.scn"_L1, "\\GenPrtOp.scn"_L1}},
    {"AuthorityMenu"_L1, {"\\AuthLVLVelmarv2.scn"_L1, "\\AuthLVLVelmarv2card.scn"_L1, "\\AuthLVLVelmarv3.scn"_L1, "\\AuthLVL.scn"_L1}},
    {"EmployeeMenu"_L1, {"\\employeeVelmarv2.scn"_L1, "\\employeeVelmarv2.scn"_L1, "\\employeeVelmarv3.scn"_L1, "\\employee.scn"_L1}},
    {"EJPrint"_L1, {"\\EJPRTv2.scn"_L1, "\\EJPRTv2.scn"_L1, "\\EJPRTv3.scn"_L1, "\\EJPRT.scn"_L1}},
    {"KeyboardLocation"_L1, {"KeyLayoutVelmar"_L1, "KeyLayoutVelmar"_L1, "KeyLayoutVelmar"_L1, "KeyLayoutDorvik"_L1}},
});
// clang-format on

/// The table that a gated screen needs, and the message when it is empty.
struct Gate {
    QLatin1StringView entry;
    QLatin1StringView table;
    QLatin1StringView emptyText;
};

constexpr auto gates = std::to_array<Gate>({
    {"CardCat"_L1, "cardcategory"_L1, "You must upload the Card Catergory file from the ECR"_L1},
    {"Hotlist"_L1, "hotlist"_L1, "You must upload the Hot List file from the ECR"_L1},
});

template <typename Table>
const auto& rowOf(const Table& table, const MenuEntry& entry)
{
    const auto* const row = std::ranges::find(table, entry.name, &Table::value_type::entry);
    Q_ASSERT(row != table.end());
    return *row;
}

bool hasRecords(const ApplicationValues& values, const QString& table)
{
    store::Database database(values.databasePath);
    return database.openTable(table).recordCount() > 0;
}

/// Every upload begins with the memory file.
int firmwareGeneration(const ApplicationValues& values, Boxes& boxes)
{
    const auto explain = [](const QString& text) {
        return text + u"\rUpload from the ECR first: each upload fetches this file."_s;
    };
    return atPlace(explain, [&] { return GetFirmwareGeneration(values.appPath, boxes); });
}

} // namespace

QString targetOf(const MenuEntry& entry, const ApplicationValues& values)
{
    if (entry.opens != Opens::ModelScreen && entry.opens != Opens::ModelForm)
        return entry.target;
    return rowOf(byModel, entry).targets.at(static_cast<std::size_t>(registerModel(values).place));
}

bool mayOpen(const MenuEntry& entry, const ApplicationValues& values, Boxes& boxes)
{
    if (entry.opens != Opens::GatedScreen)
        return true;
    if (firmwareGeneration(values, boxes) == olderGeneration) {
        boxes.message(u"Option not available on this firmware"_s);
        return false;
    }
    const Gate& gate = rowOf(gates, entry);
    const bool isFilled = hasRecords(values, gate.table);
    if (!isFilled)
        boxes.message(gate.emptyText, u"Data Error"_s, BoxIcon::Critical);
    return isFilled;
}

} // namespace norvane::shell
