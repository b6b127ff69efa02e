// Box for a whole number.
#pragma once

#include "ui/NumberBox.h"

namespace norvane::ui
{

/// Whole numbers up to a maximum, at most what 32 bits hold. A fraction set by program is rounded, halves
/// away from zero.
class IntegerBox : public NumberBox
{
    Q_OBJECT

public:
    /// @param digits minimum number of digits shown, with leading zeros: a time of the day as "0900".
    explicit IntegerBox(QWidget* parent = nullptr, int digits = 1);
    void setValue(const Decimal& value) override;

protected:
    [[nodiscard]] QString shownText(const Decimal& value) const override;

private:
    int m_digits;
};

} // namespace norvane::ui
