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

int failAs(const QString& kind)
{
    if (kind == QStringLiteral("library"))
        throw std::logic_error("odd");
    if (kind == QStringLiteral("memory"))
        throw std::bad_alloc();
    QTimer::singleShot(0, qApp, [kind] {
        if (kind != QStringLiteral("none"))
            fail();
        QCoreApplication::exit(0);
    });
    if (kind == QStringLiteral("dialog")) {
        QDialog().exec();
        std::puts("went on"); // code behind a dialog that failed must not
    }
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    ui::MessageBoxes boxes;
    shell::Program program(argc, argv, boxes);
    QTimer okPresser;
    QObject::connect(&okPresser, &QTimer::timeout, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            std::printf("%s|%s\n", qPrintable(box->windowTitle()), qPrintable(box->text()));
            box->button(QMessageBox::Ok)->click();
        }
    });
    okPresser.start(0);
    return program.guarded([] { return failAs(QCoreApplication::arguments().value(1)); });
}
