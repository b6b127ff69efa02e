// Box for a number with digits behind the point.
#pragma once

#include "ui/NumberBox.h"

namespace norvane::ui
{

/// Shows at least decimals() digits behind the point. More digits stay: what the box shows is what is stored.
class DecimalBox : public NumberBox
{
    Q_OBJECT

public:
    explicit DecimalBox(QWidget* parent = nullptr);
    /// Digits behind the point, 0 to 9; 2 at first.
    void setDecimals(int decimals);
    [[nodiscard]] int decimals() const { return m_decimals; }

protected:
    [[nodiscard]] QString shownText(const Decimal& value) const override;

private:
    int m_decimals = 2;
};

} // namespace norvane::ui
