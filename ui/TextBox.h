// Box for one line of text of a register.
#pragma once

#include <QLineEdit>

namespace norvane::ui
{

/// A line of at most so many characters, digits only where told. Fields of registers are often padded with
/// blanks to their full width; typing into such a text pushes its trailing blanks out, so that a full box
/// can be edited like any other. QLineEdit::textEdited tells typing from setting by program.
class TextBox : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    /// Most characters that can be typed; 0 for no limit.
    void setLimit(int characters);
    void setDigitsOnly();
    /// Code of the side the text stands at: "0" left, "1" right, "2" centre; any other changes nothing.
    void setJustify(const QString& code);
    /// Shows a stored text, whole even when it is longer than the limit: saving must not cut it.
    void showText(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_limit = 0;
};

} // namespace norvane::ui
