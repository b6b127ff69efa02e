// The about window.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "shell/StatusForm.h"

class QLayout;

namespace norvane::shell
{

/// A child window of the main window: name, version and purpose of the program, and a warning.
class frmAbout : public StatusForm
{
    Q_OBJECT

public:
    frmAbout(const ApplicationValues& values, Boxes& boxes, MainStatusBar& status, QWidget* parent = nullptr);

private:
    void layOut();
    [[nodiscard]] QLayout* makeButtons();

    const ApplicationValues& m_values;
    Boxes& m_boxes;
};

} // namespace norvane::shell
