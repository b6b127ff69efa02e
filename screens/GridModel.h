// Rows of a query as a grid shows and edits them.
#pragma once

#include "screens/ScreenDefinition.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "store/engine/SearchableTexts.h"

#include <QAbstractTableModel>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace norvane::screens
{

/// Reads the rows as the user scrolls to them, so that a long table opens immediately. An edited cell is
/// stored immediately. The grid does not share records with the rest of its screen.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// @param sql a query or the name of a table; an empty text makes a grid without rows.
    /// @param columns headings and formats of the first columns; further columns of the query are shown under
    /// their field names. @throws RuntimeFailure with Failure::UnknownNameInQuery for a faulty query,
    /// Failure::InvalidArgument for more headings than columns.
    GridModel(std::shared_ptr<store::Database> database, const QString& sql, QVector<GridColumn> columns,
              QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// Does what stores a cell of the record that is called so ("PLU 1001").
    using Recorder = std::function<void(const QString& record, const std::function<void()>& store)>;
    /// From now on, cells are stored by @p recorder, which can undo it later.
    void setRecorder(Recorder recorder) { m_recorder = std::move(recorder); }

    /// Reads again the first @p rows, or a few more, of those that were read; the others are read when
    /// needed. Leaves them unchanged if the file cannot be read.
    /// @param current a row, or -1. @return the row that the record of @p current now has.
    [[nodiscard]] int reread(int rows, int current);
    /// The next row with @p part in its first two columns, in any case of letters, from row @p from on and
    /// then from the top; it is read. @return -1 without such a row.
    [[nodiscard]] int findRow(const QString& part, int from);

Q_SIGNALS:
    /// What was entered cannot be stored, and @p why in words for the status bar; the cell keeps its value.
    void refused(const QModelIndex& index, const QString& why);
    /// A cell was stored, in words for the status bar.
    void stored(const QString& words);

private:
    using Row = std::vector<store::Value>;

    [[nodiscard]] GridColumn column(int number) const { return m_columns.value(number); }
    [[nodiscard]] const store::Value& cell(const QModelIndex& index) const;
    [[nodiscard]] Row readRow(int row);
    void readAgain(int rows);
    [[nodiscard]] int rowOf(const QString& key, int likely);
    void shrinkTo(int rows);
    void fetchTo(int row);
    void readTexts();
    [[nodiscard]] QString recordOf(const QModelIndex& index) const;
    void storeCell(const QModelIndex& index, const QString& text);
    [[nodiscard]] store::Value priceOf(int column, QString text) const;
    [[nodiscard]] store::Value valueOf(int column, const QString& text) const;

    std::shared_ptr<store::Database> m_database;
    QString m_query;
    QVector<GridColumn> m_columns;
    std::optional<store::Recordset> m_records;
    int m_total = 0;
    std::vector<Row> m_rows;        ///< those read so far
    store::SearchableTexts m_texts; ///< of all rows, after the first search
    Recorder m_recorder = [](const QString& /*record*/, const std::function<void()>& store) {
        store();
    };
};

} // namespace norvane::screens
