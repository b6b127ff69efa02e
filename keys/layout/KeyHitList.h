// What a search over all levels has found, as a list.
#pragma once

#include "keys/layout/LevelSearch.h"

#include <QAbstractTableModel>

namespace norvane::keys
{

/// Two columns: where, and what is there.
class KeyHitList : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setHits(std::vector<KeyHit> hits);
    /// Shows those whose text contains @p part, in any case.
    void setPart(const QString& part);
    [[nodiscard]] const KeyHit& hit(int row) const { return m_hits[m_shown[static_cast<std::size_t>(row)]]; }
    /// The row of the key at @p place; -1 if it is not shown.
    [[nodiscard]] int rowOf(const KeyPlace& place) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    void choose();

    std::vector<KeyHit> m_hits;
    QString m_part;
    std::vector<std::size_t> m_shown; ///< places in m_hits
};

} // namespace norvane::keys
