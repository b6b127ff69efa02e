// Takes the lock of the folder that it is given, tells so and holds it until its input ends.
#include "platform/FolderLock.h"

#include <QCoreApplication>

#include <cstdio>

namespace
{

/// Writes what a user would read.
class Printed : public norvane::Boxes
{
public:
    void message(const QString& text, const QString& /*title*/, norvane::BoxIcon /*icon*/) override
    {
        std::puts(qPrintable(text));
    }
    bool ask(const QString&, const QString&, norvane::BoxIcon, norvane::BoxAnswer) override { return false; }
    QString input(const QString&, const QString&, const QString&) override { return {}; }
    QString fileToOpen(const norvane::FileRequest&) override { return {}; }
    QString fileToSave(const norvane::FileRequest&) override { return {}; }
    void beep() override {}
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    Printed boxes;
    const auto lock = norvane::FolderLock::take(QString::fromLocal8Bit(argv[1]), boxes);
    if (lock)
        std::puts("held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return lock ? 0 : 1;
}
