// The designer of keyboard overlays: the forms Dorvik, Velmar and Quelmont.
#pragma once

#include "overlay/DocumentEditor.h"
#include "overlay/FileActions.h"
#include "overlay/SheetActions.h"
#include "overlay/StyleChooser.h"

#include <QDialog>

class QLayout;
class QMenu;
class QMenuBar;
class QToolBar;

namespace norvane::ui
{
class StatusLine;
}

namespace norvane::overlay
{

class KeyboardView;

/// One form for three keyboards, named after its keyboard. Leaving it asks once about changes that were not
/// saved, however it is left.
class OverlayForm : public QDialog
{
    Q_OBJECT

public:
    /// @p values, @p boxes, @p dialogs and @p printer must outlive the form.
    OverlayForm(Keyboard keyboard, const ApplicationValues& values, Boxes& boxes, OverlayDialogs& dialogs,
                PrinterInUse& printer, QWidget* parent = nullptr);

    /// The user leaves with the entry "E&xit", the Escape key or the window's close button; unsaved changes
    /// are asked about.
    void reject() override;

private:
    using Handler = void (OverlayForm::*)();
    struct Entry;

    void buildMenus(QMenuBar& bar);
    void addEntry(QWidget& menu, const Entry& entry);
    void addImportMenu(QMenuBar& bar);
    void addKeysMenu(QMenuBar& bar);
    [[nodiscard]] QLayout* makeTools();
    [[nodiscard]] QToolBar* makeActionTools();
    [[nodiscard]] QToolBar* makeViewTools();
    void followHistory();
    void openAtGoodSize();

    void newFile();
    void openFile();
    void saveFile();
    void saveChanges();
    void showSaved(bool isSaved);
    void setUpPrinter() { m_sheet.setUpPrinter(); }
    void print();
    void printUnder(const std::optional<paper::PrinterCorrection>& correction);
    void chooseFont();
    void chooseBackground() { m_style->chooseBackground(); }
    void chooseTextColour() { m_style->chooseTextColour(); }
    void importLevel(int level);
    [[nodiscard]] QString keyboardNotice() const;
    /// That the groups have colours, if any has.
    [[nodiscard]] QString groupNotice() const;
    void undo();
    void redo();
    void copyKey();
    void pasteKey();
    void preview();
    void savePdf();
    void correctPrinter() { m_sheet.correctPrinter(this); }

    void showTitle();
    void showCurrentCell(int cell);

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    DocumentEditor m_editor;
    FileActions m_files;
    SheetActions m_sheet;
    KeyboardView* m_keyboard;
    StyleChooser* m_style;
    ui::StatusLine* StatusBar1;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
};

} // namespace norvane::overlay
