// The records of a table as lists show them, to be found by any part of number or text.
#pragma once

#include "store/engine/Database.h"
#include "store/engine/SearchableTexts.h"

#include <QAbstractTableModel>

#include <memory>
#include <optional>
#include <vector>

namespace norvane::ui
{

/// Which records a list shows.
struct RecordListSource {
    QString table;
    QString index; ///< their order
    QString numberField;
    QString textField; ///< empty for a table without a text
};

/// Column 0 is the number, column 1 the text. PLU numbers are shown without the zeros that fill them.
class RecordListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int MarkedRole = Qt::UserRole; ///< whether the form shows this record

    RecordListModel(std::shared_ptr<store::Database> database, RecordListSource source,
                    QObject* parent = nullptr);

    /// Reads the records again from the file; the filter is kept, and showOnly() ends.
    void reload();
    /// Shows only records with @p part in number or text.
    void setFilter(const QString& part);
    /// Shows only the records of @p numbers, in this order, that have the filter's text; without a list all.
    /// Numbers without a record are left out.
    void showOnly(const std::optional<QStringList>& numbers);
    /// Sets the record that the form shows; an empty text for none.
    void mark(const QString& number);

    [[nodiscard]] int recordCount() const { return m_texts.size(); }
    /// Empty without records.
    [[nodiscard]] QString lastNumber() const;
    /// Row of the marked record, -1 if it is filtered out or there is none. Not while showOnly() has an
    /// order.
    [[nodiscard]] int markedRow() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] QString shownNumber(const QString& number) const;
    void readRecords();
    [[nodiscard]] std::vector<int> recordsOf(const QStringList& numbers) const;
    void chooseShown();

    std::shared_ptr<store::Database> m_database;
    RecordListSource m_source;
    store::SearchableTexts m_texts;
    QString m_filter;
    std::optional<std::vector<int>> m_only; ///< records in the order shown
    std::vector<int> m_shown;               ///< records by row
    QString m_markedNumber;
    int m_marked = -1; ///< record
};

} // namespace norvane::ui
