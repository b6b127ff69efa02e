// The grid of a screen.
#pragma once

#include "screens/GridModel.h"
#include "screens/ScreenDefinition.h"
#include "store/engine/Database.h"

#include <QTableView>

#include <memory>

namespace norvane::screens
{

/// Shows a query; the cells of its columns can be edited where they are not locked.
class GridControl : public QTableView
{
    Q_OBJECT

public:
    explicit GridControl(QWidget* parent = nullptr);

    /// Shows the query of @p definition under its headings, replacing the previous content.
    /// @throws RuntimeFailure as the constructor of GridModel.
    void showQuery(const std::shared_ptr<store::Database>& database, const ControlDefinition& definition);
    /// As GridModel::setRecorder(), for all contents.
    void setRecorder(const GridModel::Recorder& recorder);
    /// Shows the rows as they now are in the file, which a price change or an upload may have changed. The
    /// row with the same key remains current. A grid with a cell being edited is unchanged.
    void reread();
    /// Opens the current cell again, empty, with the focus in it.
    void retryCell(const QModelIndex& index);
    /// Makes the next row with @p part in its first two columns the current one, looking from row @p from on
    /// and then from the top. @return false without such a row.
    bool findRow(const QString& part, int from);
    /// Takes the focus, in the first cell of the current row that can be entered.
    void enterRow();

Q_SIGNALS:
    /// What was entered cannot be stored, and @p why. Raised once the cell's editor is closed.
    void dataError(const QModelIndex& index, const QString& why);
    /// A cell was stored, in words for the status bar.
    void stored(const QString& words);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Takes away what is too low for a row.
    void cutToWholeRows();
    [[nodiscard]] int lastVisibleRow() const;

    GridModel::Recorder m_recorder;
};

} // namespace norvane::screens
