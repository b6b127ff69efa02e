// Changes that were entered in a table and are not stored yet.
#pragma once

#include "store/engine/Value.h"

#include <QtGlobal>

#include <string>
#include <vector>

namespace norvane::screens
{

/// A changed cell.
struct PendingEdit {
    qint64 row = 0; ///< its row id
    int column = 0;
    std::string key;     ///< the stored number of the record
    store::Value before; ///< as it was stored when the user saw it
    store::Value after;
};

/// At most one change of each cell, in the order of rows and columns. The value before remains the one that
/// the user saw first.
class PendingEdits
{
public:
    [[nodiscard]] int size() const { return static_cast<int>(m_edits.size()); }
    [[nodiscard]] bool isEmpty() const { return m_edits.empty(); }
    [[nodiscard]] const PendingEdit& at(int place) const
    {
        return m_edits.at(static_cast<std::size_t>(place));
    }
    [[nodiscard]] const std::vector<PendingEdit>& all() const { return m_edits; }
    /// nullptr for a cell that is not changed.
    [[nodiscard]] const PendingEdit* find(qint64 row, int column) const;

    /// Adds changes, in any order; a later one of a cell replaces the earlier one. A cell that gets the value
    /// that it had is not changed any more.
    void add(std::vector<PendingEdit> edits);
    /// Removes the changes at these places.
    void remove(std::vector<int> places);
    /// Replaces all of them.
    void set(std::vector<PendingEdit> edits) { m_edits = std::move(edits); }
    void clear() { m_edits.clear(); }

private:
    std::vector<PendingEdit> m_edits;
};

} // namespace norvane::screens
