// The form of the sales collection.
#pragma once

#include "link/LinkForm.h"

namespace norvane::sales
{

/// Not modal: the menus can be used while a modem dials. Who leaves before the sales are imported ends the
/// run there, with the sales still at the registers; later the run goes to its end first.
class FrmsalesComm : public link::LinkForm
{
    Q_OBJECT

public:
    FrmsalesComm(ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

protected:
    void run() override;
    [[nodiscard]] QString leavingNotice() const override;
};

} // namespace norvane::sales
