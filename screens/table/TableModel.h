// A table of records for a view.
#pragma once

#include "screens/table/TableRows.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <memory>

namespace norvane::screens
{

/// The rows of TableRows in the columns of its source. A new order or filter resets the model.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    TableModel(std::shared_ptr<store::Database> database, TableSource source, QObject* parent = nullptr);

    /// Reads the rows again from the file; order and filters are kept.
    void reload();
    void setFilter(const QString& text);
    void setChoices(std::vector<TableChoice> choices);
    /// Highlights the record that the screen shows; an empty text for none.
    void mark(const QString& key);
    [[nodiscard]] const QString& markedKey() const { return m_markedKey; }
    /// -1 if it is filtered out or there is none.
    [[nodiscard]] int markedRow() const { return m_marked; }

    [[nodiscard]] TableRows& rows() { return m_rows; }
    [[nodiscard]] const TableColumn& column(int number) const { return m_rows.columns().at(number); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    template <typename Act>
    void resetBy(Act act);
    [[nodiscard]] QVariant font(const QModelIndex& index) const;
    [[nodiscard]] static QVariant pen(const TableColumn& column, const store::Value& value);

    mutable TableRows m_rows; ///< reads what a view asks for
    QString m_markedKey;
    int m_marked = -1;
    QTimer m_idle; ///< prepares the texts for a filter
};

} // namespace norvane::screens
