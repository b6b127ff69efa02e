// The window with what a dealer's support asks for.
#pragma once

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

} // namespace norvane::shell
