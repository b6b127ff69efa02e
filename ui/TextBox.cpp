// Limits and typing in the text box; see TextBox.h.
#include "ui/TextBox.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

namespace norvane::ui
{
namespace
{

/// The toolkit's own limit, which stands for none.
constexpr int noLimit = 32767;

bool typesCharacter(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !event.modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

void TextBox::setLimit(int characters)
{
    m_limit = characters;
    showText(text());
}

void TextBox::setDigitsOnly()
{
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    setValidator(new QRegularExpressionValidator(digits, this));
}

void TextBox::setJustify(const QString& code)
{
    if (code == QLatin1String("0")) {
        setAlignment(Qt::AlignLeft);
    } else if (code == QLatin1String("1")) {
        setAlignment(Qt::AlignRight);
    } else if (code == QLatin1String("2")) {
        setAlignment(Qt::AlignHCenter);
    }
}

void TextBox::showText(const QString& text)
{
    setMaxLength(m_limit > 0 ? qMax(m_limit, static_cast<int>(text.size())) : noLimit);
    if (text == this->text())
        return;
    setText(text);
    setCursorPosition(0);
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    const bool isFull = text().size() >= maxLength() && !hasSelectedText();
    const int cursor = cursorPosition();
    if (isFull && typesCharacter(*event) && !isReadOnly() && cursor < text().size() &&
        text().endsWith(u' ')) {
        setText(text().chopped(1));
        setCursorPosition(cursor);
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace norvane::ui
