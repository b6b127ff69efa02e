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
    explicit IntegerBox(QWidget* parent = nullptr);
    void setValue(const Decimal& value) override;

protected:
    [[nodiscard]] QString shownText(const Decimal& value) const override;
};

} // namespace norvane::ui
