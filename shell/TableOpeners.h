// Opens the tables of screens, and lets table and screen follow each other.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "screens/WindowTool.h"
#include "store/engine/WorkHistory.h"

#include <functional>
#include <memory>

namespace norvane::screens
{
class TableWindow;
}

namespace norvane::shell
{

class FrmMain;

/// The screen of a file and a database, opened if it is not open; nullptr if it cannot be opened, after a
/// message.
using ScreenOf =
    std::function<screens::OptionForm*(FrmMain& main, const QString& file, const QString& database)>;

/// What a table works with. Keeps the references.
struct TableSurroundings {
    FrmMain& main;
    const ApplicationValues& values;
    Boxes& boxes;
    ScreenOf screenOf;                           ///< shows a record that is chosen in the table
    std::shared_ptr<store::WorkHistory> history; ///< for undoing what is saved in it
};

/// The tool that opens the table of a screen's records, of which each screen file has one.
[[nodiscard]] screens::ScreenTool makeTableTool(const TableSurroundings& around);

/// Brings the screen of @p table to the front with the record @p key; a screen with something typed asks
/// first and may keep its record. @return nullptr if it cannot be opened, after a message.
screens::OptionForm* showOnScreen(const TableSurroundings& around, const screens::TableWindow& table,
                                  const QString& key);

/// From now on the table of @p form's screen file, if one is open, marks the record that @p form shows.
void followInTable(FrmMain& main, screens::OptionForm& form);

} // namespace norvane::shell
