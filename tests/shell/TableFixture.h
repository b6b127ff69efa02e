// The table of the PLUs in the real main window, and the dialogs of its menu.
#pragma once

#include "tests/shell/FrameFixture.h"

#include <functional>
#include <utility>

namespace norvane::shell
{

class TableFixture : public FrameFixture
{
protected:
    /// Opens the screen and its table, which is in front then.
    void openTable()
    {
        m_screen = &open("PLUMENU");
        child<QAction>(*m_screen, "ShowTable").trigger();
        m_table = &front();
    }
    /// Chooses @p action of the table and does @p act in the dialog @p name, which is closed then.
    /// @return whether the dialog was opened.
    bool inDialog(const char* action, const QString& name, const std::function<void(QDialog& dialog)>& act)
    {
        bool isOpen = false;
        QTimer wait;
        QObject::connect(&wait, &QTimer::timeout, m_table, [&] {
            auto* const dialog = m_main->findChild<QDialog*>(name);
            if (dialog == nullptr || !dialog->isVisible() || std::exchange(isOpen, true))
                return;
            act(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        wait.start(1);
        child<QAction>(*m_table, action).trigger();
        return isOpen;
    }
    /// Does @p act in the dialog that imports @p file.
    bool importFrom(const QString& file, const std::function<void(QDialog& dialog)>& act)
    {
        m_boxes.typed = {file};
        return inDialog("ImportTable", u"ImportDialog"_s, act);
    }
    static std::string state(const QDialog& dialog)
    {
        return child<QLabel>(dialog, "State").text().toStdString();
    }
    /// "Changed|1001|Price 1|2.50|2.60", line by line.
    static std::string lines(const QDialog& dialog, const char* view = "Differences")
    {
        const auto& model = *child<QTableView>(dialog, view).model();
        QStringList lines;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells += model.index(row, column).data().toString();
            lines += cells.join(u'|');
        }
        return lines.join(u'\n').toStdString();
    }

    QWidget* m_screen = nullptr;
    QWidget* m_table = nullptr;
};

} // namespace norvane::shell
