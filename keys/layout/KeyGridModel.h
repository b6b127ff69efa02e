// The shown level as a grid shows it.
#pragma once

#include "keys/layout/KeyEditor.h"

#include <QAbstractTableModel>
#include <QHash>

namespace norvane::keys
{

/// A cell's text, and in its tool tip also what no cell has room for: the key's number and its codes. Keys
/// can be dragged onto one another; who drops them must change the level.
class KeyGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Role {
        StateRole = Qt::UserRole, ///< KeyState as a number
        FoundRole,                ///< whether the last search has found the cell
        MarkedRole,               ///< whether the key is marked for a swap
        PreviewRole,              ///< whether the cell shows what was not put on its key yet
    };

    KeyGridModel(const KeyLevel& level, const KeyEditor& editor, QObject* parent = nullptr);

    /// Shows the level as it is now.
    void refresh();
    /// Marks the cells that a search has found; they remain marked until the next search.
    void setFound(KeyCells cells);

    /// Shows these keys in place of the level's own, which they would replace.
    void setPreview(const std::vector<FilledKey>& keys);

    [[nodiscard]] static KeyCell cellOf(const QModelIndex& index) { return {index.row(), index.column()}; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    /// Only this program's own keys: the view that drags the cells keeps them.
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& target) override;

Q_SIGNALS:
    /// The keys that are dragged were let go over @p target; to be copied or to change places.
    void dropped(const KeyCell& target, bool copies);

private:
    [[nodiscard]] const Key& shownKey(KeyCell cell) const;
    [[nodiscard]] int numberOf(KeyCell cell) const { return cell.row * columnCount() + cell.column; }
    [[nodiscard]] QString toolTip(KeyCell cell) const;
    [[nodiscard]] QString spokenState(KeyCell cell) const;

    const KeyLevel& m_level;
    const KeyEditor& m_editor;
    KeyCells m_found;
    QHash<int, Key> m_preview; ///< by numberOf()
};

} // namespace norvane::keys
