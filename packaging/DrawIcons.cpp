// Draws the program's icon as files for the desktop: draw_icons FOLDER writes norvane-16.png and so on.
#include "ui/Appearance.h"

#include <QApplication>
#include <QDir>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QDir folder(QCoreApplication::arguments().value(1));
    const QIcon icon = norvane::ui::applicationIcon();
    for (const QSize& size : icon.availableSizes()) {
        if (!icon.pixmap(size).save(folder.filePath(u"norvane-%1.png"_s.arg(size.width()))))
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
