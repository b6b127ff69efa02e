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

/// Reads nothing and opens nothing by itself: the menu table says what an entry opens, the openers do it.
class FrmMain : public QMainWindow
{
    Q_OBJECT

public:
    /// Opens what stands behind a menu entry.
    using Opener = std::function<void(FrmMain&, const MenuEntry&)>;
    /// Openers by form name ("FrmComm"); the record editor goes by "OptionForm" and finds its file in
    /// screenFilePath. An entry whose form has no opener opens nothing.
    using Openers = QHash<QString, Opener>;

    FrmMain(ApplicationValues& values, Boxes& boxes, Openers openers);

    [[nodiscard]] MainStatusBar& statusBar1() { return *StatusBar1; }
    /// Puts "Customer Database " and the customer's name into the status bar.
    void showCustomer();

    /// Shows @p form as a child window in the middle of this one. The child window, which has @p flags, owns
    /// the form from now on; the form's own close ends both.
    QMdiSubWindow& showChild(QWidget* form, Qt::WindowFlags flags = {});
    /// Shows the one instance of form @p name, which has a fixed size; makes it when it is not open yet.
    void showShared(const QString& name, const std::function<QWidget*()>& make);
    /// Unloads the window and its child windows without asking.
    void unload();

    /// Takes no further work until endWork(): see LongWork.
    void beginWork();
    void endWork();

Q_SIGNALS:
    /// The window is gone for good; the program ends.
    void unloaded();

protected:
    /// Asks before the window goes, however it is closed.
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenu();
    [[nodiscard]] QAction* buildEntry(const MenuEntry& entry);
    void placeOnScreen();
    void open(const MenuEntry& entry);
    void openScreen(const MenuEntry& entry);
    void callOpener(const QString& form, const MenuEntry& entry);
    void place(QMdiSubWindow& child);

    ApplicationValues& m_values;
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
