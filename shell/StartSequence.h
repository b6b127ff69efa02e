// From the start of the program to the ready main window.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <functional>

namespace norvane::shell
{

class FrmMain;
class frmSplash;

/// Seconds since the last midnight, with fractions.
using SecondsSinceMidnight = std::function<double()>;

/// The machine's clock.
[[nodiscard]] double machineSecondsSinceMidnight();

/// Runs once. The main window is made before, since the splash needs its status bar and place, and shown
/// last.
class StartSequence
{
public:
    StartSequence(ApplicationValues& values, Boxes& boxes, FrmMain& mainWindow, SecondsSinceMidnight clock);

    /// Shows the splash, lets the user choose the customer, sets databasePath, adds the field that older
    /// databases lack, shows the main window.
    /// @return false when the user closed the customer dialog: the program ends without a main window.
    [[nodiscard]] bool run();

private:
    void showSplash();
    void waitOutSplash(double shownAt);
    [[nodiscard]] bool chooseCustomer();
    void prepareDatabase();
    void showMain();

    ApplicationValues& m_values;
    Boxes& m_boxes;
    FrmMain& m_main;
    SecondsSinceMidnight m_clock;
};

} // namespace norvane::shell
