// Fails as its argument says, with the program's own handler and real boxes. Prints each box and presses OK.
#include "platform/RuntimeFailure.h"
#include "shell/Program.h"
#include "ui/MessageBoxes.h"

#include <QtWidgets>

#include <cstdio>

using namespace norvane;
using namespace Qt::Literals::StringLiterals;

namespace
{

[[noreturn]] void fail()
{
    throw RuntimeFailure(Failure::FileNotFound, u"File not found: mem.dat"_s);
}

int failAs(const QString& kind)
{
    if (kind == u"library")
        throw std::logic_error("odd");
    if (kind == u"memory")
        throw std::bad_alloc();
    QTimer::singleShot(0, qApp, [kind] {
        if (kind != u"none")
            fail();
        QCoreApplication::exit(0);
    });
    if (kind == u"dialog") {
        QDialog().exec();
        std::puts("went on"); // code after a failed dialog must not
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
