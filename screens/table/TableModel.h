// A table of records for a view.
#pragma once

#include "screens/table/PendingEdits.h"
#include "screens/table/TableRows.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <functional>
#include <memory>

namespace norvane::screens
{

/// The rows of TableRows in the columns of its source. A new order or filter resets the model. What is
/// entered is collected and shown in place of what is stored; order and filters go by what is stored.
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

    [[nodiscard]] const PendingEdits& edits() const { return m_edits; }
    /// Changes them as @p change says.
    void changeEdits(const std::function<void(PendingEdits&)>& change);
    /// The change of a cell to @p value; none, with its value before and after alike, if it shows the same.
    [[nodiscard]] PendingEdit editOf(int row, int column, const store::Value& value) const;
    /// The same if the cell, of the record with the number @p key, is known to hold @p before.
    [[nodiscard]] PendingEdit editOf(int row, int column, const store::Value& key, store::Value before,
                                     const store::Value& value) const;
    /// What a cell would hold if all changes were stored.
    [[nodiscard]] const store::Value& value(int row, int column) const;
    /// The same if the cell is known to hold @p stored.
    [[nodiscard]] const store::Value& value(int row, int column, const store::Value& stored) const;

    [[nodiscard]] TableRows& rows() { return m_rows; }
    [[nodiscard]] const TableRows& rows() const { return m_rows; }
    [[nodiscard]] const TableColumn& column(int number) const { return m_rows.columns().at(number); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    void sort(int column, Qt::SortOrder order) override;

Q_SIGNALS:
    void editsChanged();
    /// @p text cannot be entered, and @p why in words for the status bar; the cell keeps its value.
    void refused(const QModelIndex& index, const QString& text, const QString& why);

private:
    template <typename Act>
    void resetBy(Act act);
    [[nodiscard]] QVariant font(const QModelIndex& index) const;
    [[nodiscard]] static QVariant pen(const TableColumn& column, const store::Value& value);
    [[nodiscard]] const PendingEdit* editAt(const QModelIndex& index) const;

    mutable TableRows m_rows; ///< reads what a view asks for
    PendingEdits m_edits;
    QString m_markedKey;
    int m_marked = -1;
    QTimer m_idle; ///< prepares the texts for a filter
};

} // namespace norvane::screens
