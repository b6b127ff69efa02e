// Box for a number with digits after the point.
#pragma once

#include "ui/NumberBox.h"

namespace norvane::ui
{

/// Shows at least decimals() digits after the point. Further digits are kept: the box shows the stored value.
class DecimalBox : public NumberBox
{
    Q_OBJECT

public:
    explicit DecimalBox(QWidget* parent = nullptr);
    /// Digits after the point, 0 to 9; 2 by default.
    void setDecimals(int decimals);
    [[nodiscard]] int decimals() const { return m_decimals; }

protected:
    [[nodiscard]] QString shownText(const Decimal& value) const override;

private:
    int m_decimals = 2;
};

} // namespace norvane::ui
