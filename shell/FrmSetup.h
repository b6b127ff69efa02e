// The setup dialog: how the PC reaches this customer's registers, and which model they are.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/SetupModel.h"
#include "shell/StatusForm.h"

class QGroupBox;

namespace norvane::shell
{

/// A child window of the main window. Reads the customer's settings when it opens. Save writes them for the
/// customer who is chosen by then, who may be another one.
class FrmSetup : public StatusForm
{
    Q_OBJECT

public:
    /// @throws RuntimeFailure as readSettings() does.
    FrmSetup(const ApplicationValues& values, MainStatusBar& status, QWidget* parent = nullptr);

private:
    /// A frame with the settings that are chosen from lists, or with those that are typed.
    [[nodiscard]] QGroupBox* makeFrame(const QString& caption, bool withLists);
    [[nodiscard]] QLayout* makeButtons();
    void layOut();
    void load();
    void save();

    [[nodiscard]] QString outcome(int written) const;

    const ApplicationValues& m_values;
    MainStatusBar& m_statusBar;
    QList<QWidget*> m_controls; ///< a list or a text box each, in the order of settings()
};

} // namespace norvane::shell
