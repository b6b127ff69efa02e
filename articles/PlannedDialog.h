// The changes of a customer that are stored later: what each list changes, cancelling one.
#pragma once

#include "articles/DifferenceList.h"
#include "articles/PlannedChanges.h"
#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDialog>

#include <functional>

class QLayout;
class QPushButton;
class QTableView;
class QTreeWidget;

namespace norvane::articles
{

/// Lists what is planned, what is stored and not sent yet, and what was cancelled; the earliest day first.
/// Failures are shown in a box, and the dialog remains open.
class PlannedDialog : public QDialog
{
    Q_OBJECT

public:
    /// What users call the columns of a table.
    using LabelsOf = std::function<HeadingLabels(const QString& table)>;

    /// @param values of the customer who owns the data @param boxes must outlive it
    PlannedDialog(ApplicationValues values, LabelsOf labelsOf, Boxes& boxes, QWidget* parent);

private:
    void layOut();
    [[nodiscard]] QLayout* makeButtons();
    [[nodiscard]] QTableView* makeChanges();
    [[nodiscard]] QPushButton* addButton(const QString& name, const QString& caption,
                                         void (PlannedDialog::*pressed)());
    void listPlanned();
    void showChanges();
    void cancelList();
    void planAgain();
    /// Does @p work on the chosen list under the lock of a run and lists everything again.
    void change(PlannedState from, const std::function<void(const PlannedFile& file)>& work);

    /// A list, without its records. A damaged one has only the reason.
    struct Row {
        PlannedFile file;
        QDate day;
        QStringList texts;
    };
    [[nodiscard]] static Row rowOf(const PlannedFile& file);
    [[nodiscard]] const Row* chosen() const;

    ApplicationValues m_values;
    LabelsOf m_labelsOf;
    Boxes& m_boxes;
    std::vector<Row> m_rows;
    QTreeWidget* m_lists;
    DifferenceList* m_changes;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_again = nullptr;
};

} // namespace norvane::articles
