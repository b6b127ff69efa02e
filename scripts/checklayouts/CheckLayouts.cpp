// Reads every layout and every screen of a folder and compares them with the catalogue.
//
//   check_layouts <folder>
//
// Prints each mistake on a line; the exit code is 1 if there is one.
#include "command/InstallationCheck.h"

#include <cstdio>

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fprintf(stderr, "usage: check_layouts <folder>\n");
        return 2;
    }
    const auto found = norvane::command::checkInstallation(QString::fromLocal8Bit(arguments[1]));
    for (const QString& mistake : found.mistakes)
        std::printf("%s\n", qPrintable(mistake));
    std::printf("%d files, %d mistakes\n", found.files, static_cast<int>(found.mistakes.size()));
    return found.mistakes.isEmpty() && found.files > 0 ? 0 : 1;
}
