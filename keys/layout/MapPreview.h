// The map of a level before it is printed.
#pragma once

#include "keys/layout/LevelMap.h"
#include "reports/window/Printing.h"

#include <QDialog>

class QBoxLayout;

namespace norvane
{
class Boxes;
}

namespace norvane::ui
{
class StatusLine;
}

namespace norvane::keys
{

/// Shows the sheet, prints it, and saves it as a PDF file.
class MapPreview : public QDialog
{
    Q_OBJECT

public:
    /// @p boxes must outlive the dialog.
    MapPreview(LevelMap map, Boxes& boxes, reports::PrinterSource findPrinter, QWidget* parent);

private:
    using Handler = void (MapPreview::*)();

    void addButton(QBoxLayout& row, const QString& name, const QString& caption, Handler pressed);
    void print();
    void savePdf();
    void refuse(const QString& why);

    LevelMap m_map;
    Boxes& m_boxes;
    reports::PrinterSource m_findPrinter;
    ui::StatusLine* m_status;
};

} // namespace norvane::keys
