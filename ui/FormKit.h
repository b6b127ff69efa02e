// What forms are made of: named controls, buttons, rows and columns. Forms look alike by it, and tests,
// screen readers and scripts can reach every control.
#pragma once

#include "platform/Boxes.h"

#include <QString>

#include <initializer_list>

class QDialog;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace norvane::ui
{

/// Names @p control for tests and scripts. Screen readers say what a sighted user reads: caption, text, title
/// or the label whose buddy it is. Where none of these is there, @p spoken gives the words.
void nameControl(QWidget& control, const QString& name, const QString& spoken = {});

/// The name of @p control for screen readers, unless it is that of a label: given to it, or its caption.
[[nodiscard]] QString spokenName(const QWidget& control);

/// @p caption as a screen reader says it: without the marks of access letters.
[[nodiscard]] QString spokenText(QString caption);

/// A named button of the usual width. The caller places it.
[[nodiscard]] QPushButton* makeButton(const QString& name, const QString& caption, QWidget* form);

/// @p buttons at the right edge, those of @p left at the left one. The caller places the row.
[[nodiscard]] QHBoxLayout* makeButtonRow(std::initializer_list<QPushButton*> buttons,
                                         std::initializer_list<QPushButton*> left = {});

/// A row with "&OK" as the default button, which accepts @p form, and "&Cancel". The caller places it.
[[nodiscard]] QHBoxLayout* makeOkCancelRow(QDialog& form, std::initializer_list<QPushButton*> left = {});

/// Reports that the number in @p box was too large, resets it to 0 and lets the user type it again. The tool
/// tip shows the range.
void rejectNumber(QLineEdit& box, Boxes& boxes);

/// The column for the contents of @p form, @p gap pixels apart. The form is as large as they need.
QVBoxLayout* makeFormColumn(QWidget& form, int gap);

} // namespace norvane::ui
