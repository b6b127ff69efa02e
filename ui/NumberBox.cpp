// Typing rules of the number boxes; see NumberBox.h.
#include "ui/NumberBox.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QValidator>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

QStringView withoutLeadingZeros(QStringView digits)
{
    while (digits.startsWith(u'0'))
        digits = digits.sliced(1);
    return digits;
}

qsizetype digitsIn(QStringView text)
{
    return std::count_if(text.begin(), text.end(),
                         [](QChar character) { return character >= u'0' && character <= u'9'; });
}

} // namespace

/// Digits and, where there is a fraction, one point. A comma counts as a point: many keyboards have it there.
class NumberBox::Validator : public QValidator
{
public:
    Validator(Point point, QObject* parent) : QValidator(parent), m_point(point) {}

    void allowMinus(bool allowed) { m_minus = allowed; }

    State validate(QString& input, int& /*cursor*/) const override
    {
        if (m_point == Point::Allowed)
            input.replace(u',', u'.');
        QStringView rest(input);
        if (m_minus && rest.startsWith(u'-'))
            rest = rest.sliced(1);
        const auto points = m_point == Point::Allowed ? rest.count(u'.') : 0;
        const bool isNumber = digitsIn(rest) + points == rest.size() && points <= 1;
        return isNumber ? Acceptable : Invalid;
    }

private:
    Point m_point;
    bool m_minus = false;
};

NumberBox::NumberBox(Point point, QWidget* parent)
    : QLineEdit(parent), m_validator(new Validator(point, this))
{
    setValidator(m_validator);
    setAlignment(Qt::AlignRight);
    connect(this, &QLineEdit::textEdited, this, &NumberBox::takeTyping);
    connect(this, &QLineEdit::editingFinished, this, [this] { showText(shownText(value())); });
    connect(this, &QLineEdit::textChanged, this, &NumberBox::takeGiven);
    connect(this, &QLineEdit::inputRejected, this,
            [this] { QToolTip::showText(mapToGlobal(rect().bottomLeft()), toolTip(), this); });
}

void NumberBox::setMaximum(const Decimal& maximum)
{
    m_maximum = maximum;
    showRange();
}

void NumberBox::showRange()
{
    const QString largest = m_maximum ? shownText(*m_maximum) : QString(Decimal::mostDigits, u'9');
    setToolTip(u"From 0 to "_s + largest);
}

Decimal NumberBox::value() const
{
    return Decimal::leading(text().toStdString());
}

void NumberBox::setValue(const Decimal& value)
{
    m_validator->allowMinus(value < Decimal());
    if (const QString shown = shownText(value); shown != text())
        showText(shown);
}

void NumberBox::showText(const QString& text)
{
    m_known = text;
    setText(text);
}

/// Assistive technology sets a text past the rules of typing.
void NumberBox::takeGiven()
{
    QString given = text();
    if (given == m_known)
        return;
    int cursor = 0;
    if (m_validator->validate(given, cursor) == QValidator::Invalid)
        return showText(m_known);
    showText(given);
    takeTyping(given);
}

bool NumberBox::isTooLarge(const QString& text) const
{
    return digitsIn(withoutLeadingZeros(text)) > Decimal::mostDigits ||
           (m_maximum && Decimal::leading(text.toStdString()) > *m_maximum);
}

void NumberBox::focusInEvent(QFocusEvent* event)
{
    m_isFirstClick = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
}

/// A click sets the cursor when the button goes down, so the number is chosen when it goes up. A part
/// selected by dragging remains selected.
void NumberBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (m_isFirstClick && !hasSelectedText())
        selectAll();
    m_isFirstClick = false;
}

/// Otherwise the digits before the point would be a separate word.
void NumberBox::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    selectAll();
    m_isFirstClick = false;
}

void NumberBox::takeTyping(const QString& text)
{
    m_known = text;
    if (isTooLarge(text)) {
        setValue({});
        Q_EMIT maximumExceeded();
    } else {
        Q_EMIT valueEdited();
    }
}

} // namespace norvane::ui
