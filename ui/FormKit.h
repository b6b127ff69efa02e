// What every form is made of: named controls, buttons, the rows and columns that they stand in. Forms made of
// these look alike and can be reached by tests, screen readers and scripts.
#pragma once

#include <QString>

#include <initializer_list>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace norvane::ui
{

/// Gives @p control the name by which tests and scripts find it and a screen reader calls it.
void nameControl(QWidget& control, const QString& name);

/// A named button on @p form, as wide as its neighbours, still to be placed.
[[nodiscard]] QPushButton* makeButton(const QString& name, const QString& caption, QWidget* form);

/// @p buttons at the right edge, those of @p left at the left one; still to be placed.
[[nodiscard]] QHBoxLayout* makeButtonRow(std::initializer_list<QPushButton*> buttons,
                                         std::initializer_list<QPushButton*> left = {});

/// The column that the contents of @p form stand in, @p gap pixels apart. The form is as large as they need.
QVBoxLayout* makeFormColumn(QWidget& form, int gap);

} // namespace norvane::ui
