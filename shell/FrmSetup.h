// The setup dialog: how the PC reaches this customer's registers, and which model they are.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/SetupSettings.h"
#include "shell/StatusForm.h"

class QGroupBox;

namespace norvane::shell
{

/// A child window of the main window. Shows and writes the settings of the chosen customer, also after a
/// change of customer.
class FrmSetup : public StatusForm
{
    Q_OBJECT

public:
    /// @throws RuntimeFailure as readSettings() does.
    FrmSetup(const ApplicationValues& values, MainStatusBar& status, QWidget* parent = nullptr);

    /// Shows the settings of the chosen customer if another's are shown. The status bar says so, and names
    /// the customer whose typed settings are lost.
    /// @throws RuntimeFailure as readSettings() does; the controls then still have the previous settings.
    void followCustomer();

private:
    /// A frame with the settings that are chosen from lists, or with those that are typed.
    [[nodiscard]] QGroupBox* makeFrame(const QString& caption, bool withLists);
    [[nodiscard]] QLayout* makeButtons();
    void layOut();
    void load();
    void save();
    [[nodiscard]] QList<customers::SettingValue> shownSettings() const;

    [[nodiscard]] QString outcome(int written) const;

    const ApplicationValues& m_values;
    MainStatusBar& m_statusBar;
    ApplicationValues m_shown;             ///< the customer whose settings are shown
    QList<customers::SettingValue> m_read; ///< as they were in the file
    QList<QWidget*> m_controls;            ///< a list or a text box each, in the order of settings()
};

} // namespace norvane::shell
