// Entry of the program.
#include "base/ApplicationValues.h"
#include "shell/FrmMain.h"
#include "shell/Openers.h"
#include "shell/Program.h"
#include "shell/StartSequence.h"
#include "ui/Appearance.h"
#include "ui/MessageBoxes.h"

using namespace norvane;

namespace
{

int runProgram(Boxes& boxes)
{
    ApplicationValues values;
    values.appPath = QCoreApplication::applicationDirPath();
    shell::FrmMain mainWindow(values, boxes, shell::makeOpeners(values, boxes));
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
    return program.guarded([&boxes] { return runProgram(boxes); });
}
