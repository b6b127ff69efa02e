// The collection form's controls and the run started by its button.
#include "sales/FrmsalesComm.h"

#include "customers/DataOwner.h"
#include "sales/CollectionRun.h"
#include "ui/Appearance.h"
#include "ui/StatusLine.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// Room for the longest text of the status bar, in device-independent pixels.
constexpr int explanationWidth = 420;

} // namespace

FrmsalesComm::FrmsalesComm(const ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : LinkForm("FrmsalesComm", "Collect Sales", values, boxes, parent)
{
    setWindowTitle(u"Collect Sales."_s);
    auto* explanation =
        new QLabel(u"Fetches the sales of all registers into the database and clears them there."_s, this);
    explanation->setMinimumWidth(ui::scaled(explanationWidth));
    auto* content = new QVBoxLayout;
    content->addWidget(explanation);
    layOut(content);
}

bool FrmsalesComm::mayStart()
{
    return customers::mayUseOpenData(m_values, m_boxes,
                                     u"The sales of the registers of %2 would be stored as sales of %1, and "
                                     u"the registers would then be cleared."_s);
}

void FrmsalesComm::run()
{
    CollectionRun run(m_values,
                      {.connectLink = [this](const link::LinkSettings& link) { return connectLink(link); },
                       .disconnectLink = [this] { disconnectLink(); },
                       .run = outside()});
    run.collect();
    StatusBar1->setResult(run.resultInWords());
}

QString FrmsalesComm::leavingNotice() const
{
    return u"Leaving after this step ......."_s;
}

} // namespace norvane::sales
