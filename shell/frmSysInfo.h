// The window with what a dealer's support asks for.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDialog>

namespace norvane::shell
{

/// Shows a text that can be read and copied completely.
class frmSysInfo : public QDialog
{
    Q_OBJECT

public:
    frmSysInfo(const QString& report, QWidget* parent);
};

/// Opens it in front of @p parent, without waiting until it is closed; a box says when there is nothing to
/// show.
void showSystemInfo(const ApplicationValues& values, Boxes& boxes, QWidget* parent);

} // namespace norvane::shell
