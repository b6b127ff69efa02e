// Texts of splash and about window; see AboutLabels.h.
#include "shell/AboutLabels.h"

#include "platform/Boxes.h"
#include "ui/FormKit.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{

QString aboutCaption()
{
    return u"About "_s + applicationTitle();
}

AboutLabels makeAboutLabels()
{
    return {makeTextLabel(u"lblTitle"_s, applicationTitle()),
            makeTextLabel(u"lblVersion"_s, u"Version "_s + QLatin1StringView(NORVANE_VERSION)),
            makeTextLabel(u"lblDescription"_s, u"Norvane Dorvik Programming Utility"_s)};
}

QLabel* makeTextLabel(const QString& name, const QString& text)
{
    auto* const label = new QLabel(text);
    ui::nameControl(*label, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace norvane::shell
