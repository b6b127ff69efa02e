// The side list of a screen, by which a record is found by any part of its number or text.
#pragma once

#include "ui/RecordListModel.h"

#include <QWidget>

class QLabel;
class QTableView;
class QToolButton;

namespace norvane::ui
{
class FilterBox;
}

namespace norvane::screens
{

/// A handle at the edge of a screen and, once opened by it or by toggle(), a list beside the screen with a
/// box to filter it. Records are read when the list is opened and when the user enters the box.
class RecordList : public QWidget
{
    Q_OBJECT

public:
    RecordList(const std::shared_ptr<store::Database>& database, const ui::RecordListSource& source,
               QWidget* parent);

    /// Opens the list with the keyboard in its box, or closes it.
    void toggle();
    /// Sets the record that the screen shows, by its stored key; an empty text for none.
    void mark(const QString& number);
    /// Reads the records again, if the list is open.
    void reload();
    /// Pixels that the handle takes.
    [[nodiscard]] int handleWidth() const;

Q_SIGNALS:
    /// The user chose this record for the screen; never the one already shown.
    void chosen(const QString& number);
    /// The list takes so many more pixels beside the screen, less when negative.
    void widened(int pixels);

private:
    [[nodiscard]] bool isOpen() const;
    void unfold();
    void fold();
    void buildHandle();
    void buildPanel();
    void buildFilter();
    void buildTable();
    void setFilter(const QString& text);
    void showMarked();
    void tellCount();
    void fitNumbers();
    void choose(const QModelIndex& index);

    ui::RecordListModel* m_model;
    QToolButton* m_handle;
    QWidget* m_panel = nullptr; ///< with all that follows, nullptr before the list is opened
    ui::FilterBox* m_filter = nullptr;
    QTableView* m_table = nullptr;
    QLabel* m_count = nullptr;
};

} // namespace norvane::screens
