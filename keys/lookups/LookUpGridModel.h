// The grid of a look-up's lines.
#pragma once

#include "keys/lookups/LookUpLines.h"

#include <QAbstractTableModel>

namespace norvane::keys
{

/// Three columns: line number, word, item. A line can be dragged to another place.
class LookUpGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum GridColumn { LineColumn, WordColumn, ItemColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    [[nodiscard]] const LookUpLines& lines() const { return m_lines; }
    void setLines(const LookUpLines& lines);
    void setLine(int line, const LookUpLine& content);
    /// Takes the line at @p from out and puts it in at @p to; elsewhere nothing happens.
    void move(int from, int to);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /// A line went to place @p to.
    void moved(int to);

private:
    void reportChange(int first, int last);

    LookUpLines m_lines;
};

} // namespace norvane::keys
