// Asks how a column is to be set in many rows, and shows what that changes.
#pragma once

#include "screens/table/FieldChange.h"

#include <QDialog>
#include <QTimer>

#include <vector>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace norvane::screens
{

class EditsModel;
class TableModel;

/// Run it with exec(): after Accepted, edits() has the changes. Nothing is stored.
class SetFieldDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param column the one to begin with
    /// @param scope which rows these are, in words: "12 chosen records"
    SetFieldDialog(TableModel& table, std::vector<int> rows, int column, const QString& scope,
                   QWidget* parent);

    [[nodiscard]] std::vector<PendingEdit> takeEdits() { return std::move(m_plan.edits); }

    /// Makes a plan first that is still due, and remains open if that one refuses a row.
    void accept() override;

private:
    void addColumns(int column);
    [[nodiscard]] QFormLayout* makeQuestions(const QString& scope);
    void buildPreview();
    void layOut(const QString& scope);
    void showKinds();
    void proposeSource();
    void showChoices();
    void showPlan();
    [[nodiscard]] FieldChange change() const;
    [[nodiscard]] ChangeKind kind() const;

    TableModel& m_table;
    std::vector<int> m_rows;
    FieldPlan m_plan;
    QComboBox* m_column;
    QComboBox* m_kind;
    QLineEdit* m_text;
    QComboBox* m_source;
    QComboBox* m_rounding;
    EditsModel* m_model;
    QTableView* m_view;
    QLabel* m_summary;
    QPushButton* m_ok = nullptr;
    QTimer m_rest; ///< the plan is made when the user rests
};

} // namespace norvane::screens
