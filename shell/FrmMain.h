// The main window: the menu, the frame for the screens, the status bar.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "shell/MenuTree.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>

#include <functional>

class QMdiArea;
class QMdiSubWindow;
class QMenu;

namespace norvane::shell
{

class MainStatusBar;

/// The menu table defines what an entry opens; the openers passed in open it.
class FrmMain : public QMainWindow
{
    Q_OBJECT

public:
    /// Opens what a menu entry is for.
    using Opener = std::function<void(FrmMain&, const MenuEntry&)>;
    /// By form name ("FrmComm").
    using FormOpeners = QHash<QString, Opener>;
    /// Opens a record editor with the screen file @p screenFilePath.
    using ScreenOpener = std::function<void(FrmMain&, const QString& screenFilePath)>;
    /// An entry without an opener opens nothing.
    struct Openers {
        FormOpeners forms;
        ScreenOpener screen;
        /// Opens the screen whose changes were lost last, with them; without any, undoes what was stored
        /// last. For Ctrl+Z while no child window is active.
        std::function<void(FrmMain&)> lostScreen = {};
    };

    FrmMain(const ApplicationValues& values, Boxes& boxes, Openers openers);

    [[nodiscard]] MainStatusBar& statusBar1() { return *StatusBar1; }
    /// Shows "Customer Database " and the customer's name in the status bar, and the owner of the open data
    /// if it is another customer: a change of customer alone does not change the database.
    void showCustomer();

    /// Shows @p form in the middle of this window. The returned child window has @p flags and owns the form;
    /// when the form closes, both are deleted.
    QMdiSubWindow& showChild(QWidget* form, Qt::WindowFlags flags = {});
    enum class FormSize { Fixed, Free };
    /// Shows the form @p name, of which only one is open at a time; creates it if none is.
    void showShared(const QString& name, const std::function<QWidget*()>& make,
                    FormSize size = FormSize::Fixed);
    void bringToFront(const QWidget& form);
    /// Where the child windows are.
    [[nodiscard]] QMdiArea& area() { return *m_area; }
    /// Opens what @p entry is for, as the menu does; it need not be in the menu.
    void choose(const MenuEntry& entry);
    /// Closes the window and its child windows; only those with unsaved changes ask.
    void unload();

    /// Nothing can be opened or closed until endWork(); see LongWork.
    void beginWork();
    void endWork();

Q_SIGNALS:
    /// The window was closed; the program ends.
    void unloaded();
    /// A menu entry or a run has done its work, which may have changed any table.
    void entryDone();
    /// The status bar names another customer.
    void customerShown();

protected:
    /// Asks first, however the user closes the window, and again for each child window with unsaved changes.
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenu();
    [[nodiscard]] QMdiArea* makeArea();
    [[nodiscard]] QAction* buildMenuOf(const MenuEntry& entry);
    [[nodiscard]] QAction* buildEntry(const MenuEntry& entry);
    void placeOnScreen();
    void takeMenuKey();
    void takeUndoKey();
    void takeReportsKey();
    void open(const MenuEntry& entry);
    void openScreen(const MenuEntry& entry);
    void openForm(const MenuEntry& entry);
    void place(QMdiSubWindow& child);
    [[nodiscard]] bool coversAnother(const QMdiSubWindow& child) const;
    void showDataInUse();
    [[nodiscard]] bool closeChanged();

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    Openers m_openers;
    QMdiArea* m_area;
    MainStatusBar* StatusBar1;
    bool m_unloading = false;
    bool m_working = false;
    bool m_closeAfterWork = false;
    QPointer<QWidget> m_focusBeforeWork;
};

} // namespace norvane::shell
