// Changes of a table as a list.
#pragma once

#include "screens/table/PendingEdits.h"

#include <QAbstractTableModel>

#include <vector>

namespace norvane::screens
{

class TableModel;

/// Record, column, stored and new value of each change, in their order.
class EditsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// @param table, edits must outlive it
    EditsModel(const TableModel& table, const std::vector<PendingEdit>& edits, QObject* parent);

    /// To be called after the changes became others.
    void showChanges();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    const TableModel& m_table;
    const std::vector<PendingEdit>& m_edits;
    int m_count = 0;
};

} // namespace norvane::screens
