// What the whole-number box and the decimal box share.
#pragma once

#include "platform/Decimal.h"

#include <QLineEdit>

#include <optional>

namespace norvane::ui
{

/// A box for one number without a sign: registers know no negative amounts, so that no minus can be typed. A
/// stored negative number is still shown and kept until it is overwritten. Holds up to 18 digits. An empty
/// box counts as 0. Setting a value by program raises no signal. The tool tip shows the allowed range; it
/// opens when the box rejects a key. The first click into the box and a double click select the whole number,
/// so that typing replaces it: a remaining half of a price would turn 2.90 into 290.20. A text entered by
/// screen readers or dictation counts as typed.
class NumberBox : public QLineEdit
{
    Q_OBJECT

public:
    /// The largest number that may be typed.
    void setMaximum(const Decimal& maximum);
    [[nodiscard]] Decimal value() const;
    virtual void setValue(const Decimal& value);

Q_SIGNALS:
    /// The user changed the number.
    void valueEdited();
    /// The user entered a number above the maximum, or one of more digits than the box holds. Raised once for
    /// each such entry; the box is back at 0 by then.
    void maximumExceeded();

protected:
    /// Whether a point can be typed.
    enum class Point { None, Allowed };
    NumberBox(Point point, QWidget* parent);
    /// The text shown for @p value while the user is not typing.
    [[nodiscard]] virtual QString shownText(const Decimal& value) const = 0;
    /// Puts the range into the tool tip; after a change of what decides on it.
    void showRange();
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void takeTyping(const QString& text);
    void takeGiven();
    void showText(const QString& text);
    [[nodiscard]] bool isTooLarge(const QString& text) const;

    class Validator;
    Validator* m_validator;
    bool m_isFirstClick = false; ///< the mouse button that brought the focus is still down
    QString m_known;             ///< the text last shown or typed
    std::optional<Decimal> m_maximum;
};

} // namespace norvane::ui
