// Entry of the program.
#include "base/ApplicationValues.h"
#include "base/ProgramFolder.h"
#include "platform/FilePaths.h"
#include "shell/FrmMain.h"
#include "shell/HelpKey.h"
#include "shell/Openers.h"
#include "shell/Overview.h"
#include "shell/Program.h"
#include "shell/StartSequence.h"
#include "ui/Appearance.h"
#include "ui/MessageBoxes.h"

#include <QDir>

using namespace norvane;
using namespace Qt::Literals::StringLiterals;

namespace
{

int runProgram(Boxes& boxes)
{
    ApplicationValues values;
    values.appPath = programFolder();
    // The tools write their files there, whatever the working directory at the start.
    if (!QDir::setCurrent(values.appPath)) {
        boxes.message(u"There is no folder %1."_s.arg(values.appPath), {}, BoxIcon::Critical);
        return 1;
    }
    const shell::HelpKey help(existingPath(joinPath(values.appPath, u"user-guide.html"_s)), boxes);
    shell::FrmMain mainWindow(values, boxes, shell::makeOpeners(values, boxes));
    new shell::Overview(mainWindow, values, shell::OverviewMemory::ofThisUser());
    QObject::connect(&mainWindow, &shell::FrmMain::unloaded, qApp, [] { QCoreApplication::exit(0); });
    if (!shell::StartSequence(values, boxes, mainWindow, shell::machineSecondsSinceMidnight).run())
        return 0;
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    ui::MessageBoxes boxes;
    shell::Program program(argc, argv, boxes);
    ui::applyAppearance(program);
    QGuiApplication::setDesktopFileName(u"norvane"_s);
    return program.guarded([&boxes] { return runProgram(boxes); });
}
