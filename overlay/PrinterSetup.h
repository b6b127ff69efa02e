// The printer set-up of the overlay forms.
#pragma once

#include "overlay/OverlayDialogs.h"

#include <QDialog>

class QComboBox;
class QRadioButton;

namespace norvane::overlay
{

/// Asks for a printer and the orientation of its paper. The size is always A4.
class PrinterSetup : public QDialog
{
    Q_OBJECT

public:
    PrinterSetup(const PrinterChoice& initial, QWidget* parent);
    [[nodiscard]] PrinterChoice choice() const;

private:
    void fillPrinters(const QString& chosen);
    [[nodiscard]] QWidget* makeOrientation(QPageLayout::Orientation chosen);

    QComboBox* PrinterList;
    QRadioButton* Landscape = nullptr;
};

} // namespace norvane::overlay
