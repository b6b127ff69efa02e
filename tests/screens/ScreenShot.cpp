// Renders a screen to a picture, to look at its layout without the program:
//   screen_shot <database> <screen.scn> <out.png>
// The picture shows the first record of the table, with what the panel cuts off cut off.
#include "platform/RuntimeFailure.h"
#include "screens/OptionForm.h"
#include "ui/Appearance.h"
#include "ui/MessageBoxes.h"

#include <QApplication>
#include <QPixmap>

#include <cstdio>

namespace
{

int render(QApplication& application, const QStringList& arguments)
{
    norvane::ui::applyAppearance(application);
    norvane::ApplicationValues values;
    values.databasePath = arguments.at(1);
    values.screenFilePath = arguments.at(2);
    norvane::ui::MessageBoxes boxes;
    try {
        norvane::screens::OptionForm form(values, boxes);
        form.show();
        QApplication::processEvents();
        return form.grab().save(arguments.at(3)) ? 0 : 1;
    } catch (const norvane::RuntimeFailure& failure) {
        std::fprintf(stderr, "%d: %s\n", failure.number(), qPrintable(failure.text()));
        return 1;
    }
}

} // namespace

int main(int argc, char** argv)
{
    // A picture needs no screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: screen_shot <database> <screen.scn> <out.png>\n", stderr);
        return 2;
    }
    return render(application, arguments);
}
