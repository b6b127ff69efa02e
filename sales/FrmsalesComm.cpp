// The collection form's controls and the run behind its button.
#include "sales/FrmsalesComm.h"

#include "sales/CollectionRun.h"

#include <QLabel>
#include <QVBoxLayout>

namespace norvane::sales
{
namespace
{

/// Room for the longest text of the status bar, in device-independent pixels.
constexpr int contentWidth = 420;

} // namespace

FrmsalesComm::FrmsalesComm(ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : LinkForm("FrmsalesComm", "Collect Sales", values, boxes, parent)
{
    setWindowTitle(QStringLiteral("Collect Sales."));
    auto* explanation = new QLabel(
        QStringLiteral("Fetches the sales of all registers into the database and clears them there."), this);
    explanation->setMinimumWidth(contentWidth);
    auto* content = new QVBoxLayout;
    content->addWidget(explanation);
    layOut(content);
}

void FrmsalesComm::run()
{
    CollectionRun(m_values,
                  {.connectLink = [this](const link::LinkSettings& link) { return connectLink(link); },
                   .disconnectLink = [this] { disconnectLink(); },
                   .run = outside()})
        .collect();
}

QString FrmsalesComm::leavingNotice() const
{
    return QStringLiteral("Leaving after this step .......");
}

} // namespace norvane::sales
