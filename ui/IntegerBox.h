// Box for a whole number.
#pragma once

#include "ui/NumberBox.h"

namespace norvane::ui
{

/// Whole numbers; without a maximum of its own what 32 bits hold, since larger ones could not be saved. A
/// fraction of a value set by program is rounded away from zero at the half.
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
