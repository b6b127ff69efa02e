// Imports a file of records: first the differences, then all of them or none.
#pragma once

#include "articles/ComparedSheet.h"
#include "articles/HeadingMap.h"
#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QDateEdit;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

namespace norvane::store
{
class WorkHistory;
}

namespace norvane::articles
{

class ColumnChoices;
class DifferenceList;

/// What is imported, and where.
struct ImportOrder {
    ApplicationValues values; ///< of the customer who owns the data, with the database
    TableSheet sheet;
    ColumnNames names; ///< the labels of the screen
    QString fileName;
    SheetContent content;
    std::shared_ptr<store::WorkHistory> history = {}; ///< for undoing it
};

/// Compares the file with the records when it opens and after each choice of columns. Nothing is stored
/// before "Import" is pressed. What has changed meanwhile is compared again, and nothing is stored then.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// @throws RuntimeFailure as the database reports.
    ImportDialog(ImportOrder order, Boxes& boxes, QWidget* parent = nullptr);
    ~ImportDialog() override;

    /// After it was accepted: what was imported, for the status bar.
    [[nodiscard]] const QString& notice() const { return m_notice; }

    void done(int result) override;

private:
    void buildColumns();
    [[nodiscard]] QTableView* makeList();
    void fillKinds();
    void prepareDay();
    [[nodiscard]] bool isPlanned() const;
    void chooseDay();
    [[nodiscard]] QHBoxLayout* makeButtons();
    void layOut();
    void compare();
    void fitColumns();
    void showFound();
    [[nodiscard]] QString findings() const;
    void showKind();
    void importFile();
    [[nodiscard]] QString imported();
    void compareAgain(const QString& why);
    void say(const QString& text);

    ImportOrder m_order;
    ComparedSheet m_file;
    Boxes& m_boxes;
    SheetHeadings m_headings;
    HeadingMap m_proposed; ///< with what was chosen for former files
    DifferenceList* m_list;
    ColumnChoices* m_columns = nullptr;
    QComboBox* m_kinds;
    QDateEdit* m_day; ///< on which the file is stored: today at once
    QTableView* m_view = nullptr;
    QLabel* m_state;
    QPushButton* m_import;
    QString m_notice;
};

} // namespace norvane::articles
