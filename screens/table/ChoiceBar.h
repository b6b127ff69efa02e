// The row of filters above a table.
#pragma once

#include "screens/table/TableChoices.h"

#include <QMap>
#include <QWidget>

class QComboBox;
class QPushButton;

namespace norvane::ui
{
class FilterBox;
}

namespace norvane::screens
{

/// A box for a text, and two lists: a column and what it should hold. Each choice made becomes a button that
/// takes it back.
class ChoiceBar : public QWidget
{
    Q_OBJECT

public:
    explicit ChoiceBar(QVector<ColumnChoices> choices, QWidget* parent = nullptr);

    [[nodiscard]] ui::FilterBox& box() { return *m_text; }
    /// All choices made.
    [[nodiscard]] std::vector<TableChoice> chosen() const;

Q_SIGNALS:
    void choicesChanged();

private:
    void buildLists();
    void fillChoices();
    void choose(int row);
    void showMade();
    [[nodiscard]] QPushButton* makeButton(int column, int choice);
    void takeBack(int column);

    QVector<ColumnChoices> m_choices;
    QMap<int, int> m_made; ///< number of a choice by that of its column
    ui::FilterBox* m_text;
    QComboBox* m_column;
    QComboBox* m_choice;
    QWidget* m_buttons;
};

} // namespace norvane::screens
