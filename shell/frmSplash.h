// The splash: the first window that the user sees.
#pragma once

#include "shell/StatusForm.h"

namespace norvane::shell
{

/// Remains until unload(): no click and no key closes it. Place it on the main window with ui::centreOn().
class frmSplash : public StatusForm
{
    Q_OBJECT

public:
    explicit frmSplash(MainStatusBar& status);

    /// Closes the splash.
    void unload();

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();

    bool m_unloading = false;
};

} // namespace norvane::shell
