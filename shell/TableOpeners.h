// Opens the tables of screens, and lets table and screen follow each other.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "screens/ScreenTool.h"

#include <functional>
#include <memory>

namespace norvane::store
{
class WorkHistory;
}

namespace norvane::shell
{

class FrmMain;

/// The screen of a file and a database, opened if it is not open; nullptr if it cannot be opened, after a
/// message.
using ScreenOf =
    std::function<screens::OptionForm*(FrmMain& main, const QString& file, const QString& database)>;

/// The tool that opens the table of a screen's records, of which each screen file has one.
/// @param screenOf shows a record that is chosen in the table. @param history for undoing what is saved in
/// it. Keeps the references.
[[nodiscard]] screens::ScreenTool makeTableTool(FrmMain& main, const ApplicationValues& values, Boxes& boxes,
                                                const ScreenOf& screenOf,
                                                const std::shared_ptr<store::WorkHistory>& history);

/// From now on the table of @p form's screen file, if one is open, marks the record that @p form shows.
void followInTable(FrmMain& main, screens::OptionForm& form);

} // namespace norvane::shell
