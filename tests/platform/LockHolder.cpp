// Takes the lock of the folder that it is given, says so and holds it until its input ends.
#include "platform/FolderLock.h"
#include "tests/support/RecordingBoxes.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    norvane::test::RecordingBoxes boxes;
    const auto lock = norvane::FolderLock::take(QString::fromLocal8Bit(argv[1]), boxes);
    std::puts(lock ? "held" : qPrintable(boxes.shown.front().text));
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return lock ? 0 : 1;
}
