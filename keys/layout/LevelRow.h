// The row above the keys: which level is shown, and the way to another.
#pragma once

#include <QWidget>

#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace norvane::keys
{

/// The level's name, a star while it differs from what is stored, a button for each level and one for copying
/// levels.
class LevelRow : public QWidget
{
    Q_OBJECT

public:
    explicit LevelRow(QWidget* parent);

    /// @param name as the window's title has it. @param level from 1.
    void showLevel(const QString& name, int level);
    void showChanged(bool isChanged);
    /// Places @p button after the others.
    void addTools(QPushButton* button);

Q_SIGNALS:
    void levelWanted(int level);
    void copyWanted();

private:
    void addLevelButton(int level, QHBoxLayout& row);

    QLabel* Label1;
    QLabel* m_star;
    std::vector<QPushButton*> m_levels;
};

/// A button of the editor that Enter does not press: Enter belongs to the keys and the lists.
[[nodiscard]] QPushButton* makeFormButton(const QString& name, const QString& caption, QWidget* form);

} // namespace norvane::keys
