// The form of the sales collection.
#pragma once

#include "link/LinkForm.h"

namespace norvane::sales
{

/// Not modal: the menus can be used while a modem dials. Leaving before the import ends the run there, with
/// the sales still at the registers. Leaving later takes effect when the run has ended.
class FrmsalesComm : public link::LinkForm
{
    Q_OBJECT

public:
    FrmsalesComm(const ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

protected:
    [[nodiscard]] bool mayStart() override;
    void run() override;
    [[nodiscard]] QString leavingNotice() const override;
};

} // namespace norvane::sales
