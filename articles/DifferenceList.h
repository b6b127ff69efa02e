// What a file of records would change, and its mistakes, as a list.
#pragma once

#include "articles/HeadingMap.h"
#include "articles/PlannedList.h"
#include "articles/SheetComparison.h"

#include <QAbstractTableModel>

#include <array>
#include <optional>
#include <vector>

namespace norvane::articles
{

enum class DifferenceKind { Mistake, Changed, New };

/// What users call the columns of a table, by the headings of its files.
using HeadingLabels = QHash<QString, QString>;

/// A line of the list.
struct Difference {
    DifferenceKind kind;
    QString record; ///< its number; of a mistake the place in the file
    QString column;
    QString before;
    QString after; ///< of a mistake the reason
};

/// Mistakes first, then the changes as the comparison orders them.
class DifferenceList : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Lines of each kind that are listed at most.
    static constexpr std::size_t mostOfKind = 20'000;

    using QAbstractTableModel::QAbstractTableModel;

    /// Lists what @p comparison has found. @param names of the columns for the user
    void list(const SheetComparison& comparison, const ColumnNames& names);
    /// Lists what is planned. @param labels of the columns for the user, by their headings
    void list(const PlannedList& planned, const HeadingLabels& labels);
    void clear();
    /// Shows only lines of this kind; nothing for all.
    void showOnly(std::optional<DifferenceKind> kind);
    /// Whether there are lines that are not listed.
    [[nodiscard]] bool isCut() const { return m_isCut; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    void add(Difference line);
    void addMistakes(const SheetMistakes& mistakes, const TableSheet& sheet, const ColumnNames& names);
    void addChange(const SheetChange& change, const TableSheet& sheet, const ColumnNames& names);
    void choose();

    std::vector<Difference> m_lines;
    std::array<std::size_t, 3> m_counts{}; ///< of each kind
    bool m_isCut = false;
    std::optional<DifferenceKind> m_kind;
    std::vector<std::size_t> m_shown; ///< places in m_lines
};

} // namespace norvane::articles
