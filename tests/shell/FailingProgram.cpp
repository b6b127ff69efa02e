// Fails as its argument says, under the program's own outermost handler and with its real boxes, whose text
// it prints before it presses OK.
#include "platform/RuntimeFailure.h"
#include "shell/Program.h"
#include "ui/MessageBoxes.h"

#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

using namespace norvane;

namespace
{

[[noreturn]] void fail()
{
    throw RuntimeFailure(Failure::FileNotFound, QStringLiteral("File not found: mem.dat"));
}

void pressOkOnBoxes(QTimer& timer)
{
    QObject::connect(&timer, &QTimer::timeout, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            std::printf("%s|%s\n", qPrintable(box->windowTitle()), qPrintable(box->text()));
            box->button(QMessageBox::Ok)->click();
        }
    });
    timer.start(0);
}

/// A failure in a modal dialog must not let the code behind the dialog go on.
void failInDialog()
{
    QDialog dialog;
    QTimer::singleShot(0, &dialog, fail);
    dialog.exec();
    std::puts("went on");
}

int failAs(const QString& kind)
{
    if (kind == QStringLiteral("start"))
        fail();
    if (kind == QStringLiteral("library"))
        throw std::logic_error("odd");
    if (kind == QStringLiteral("memory"))
        throw std::bad_alloc();
    if (kind == QStringLiteral("dialog"))
        failInDialog();
    if (kind == QStringLiteral("handler")) {
        QTimer::singleShot(0, qApp, fail);
    } else {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    }
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    ui::MessageBoxes boxes;
    shell::Program program(argc, argv, boxes);
    QTimer okPresser;
    pressOkOnBoxes(okPresser);
    return program.guarded([] { return failAs(QCoreApplication::arguments().value(1)); });
}
