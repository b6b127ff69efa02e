// From the start of the program to the main window that is ready for work.
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

/// Runs once. The main window exists before it and stays hidden until its end, since the splash writes into
/// the window's status bar and stands in its middle.
class StartSequence
{
public:
    StartSequence(ApplicationValues& values, Boxes& boxes, FrmMain& mainWindow, SecondsSinceMidnight clock);

    /// Splash, choice of the customer, databasePath, the late field of the customer's database, main window.
    /// @return false when the user closed the customer dialog: the program ends then, and nothing was shown.
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
