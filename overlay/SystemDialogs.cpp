// See SystemDialogs.h.
#include "overlay/SystemDialogs.h"

#include "overlay/PrinterSetup.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

void showPath(QFileDialog& box, const QString& path)
{
    const QFileInfo place(path);
    if (place.isDir()) {
        box.setDirectory(path);
    } else {
        box.setDirectory(place.path());
        box.selectFile(place.fileName());
    }
}

} // namespace

QString SystemDialogs::file(const FileChoice& choice)
{
    QFileDialog box(QApplication::activeWindow(), choice.title, {}, choice.filter);
    box.setObjectName(u"FileBox"_s);
    const bool writes = choice.name == FileChoice::Name::ToWrite;
    box.setAcceptMode(writes ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(choice.name == FileChoice::Name::Existing ? QFileDialog::ExistingFile
                                                              : QFileDialog::AnyFile);
    box.setDefaultSuffix(choice.suffix);
    // Whether a file may be replaced is asked by the form, in its own words.
    box.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    showPath(box, choice.path);
    return box.exec() == QDialog::Accepted ? box.selectedFiles().value(0) : QString();
}

std::optional<QColor> SystemDialogs::colour(const QColor& initial, const QString& title)
{
    QColorDialog box(initial, QApplication::activeWindow());
    box.setObjectName(u"ColourBox"_s);
    box.setWindowTitle(title);
    box.setOption(QColorDialog::DontUseNativeDialog);
    return box.exec() == QDialog::Accepted ? std::optional(box.selectedColor()) : std::nullopt;
}

/// The list has only what this computer has: a font that is missing is shown by what stands in for it.
std::optional<QFont> SystemDialogs::font(const QFont& initial)
{
    QFont shown = initial;
    shown.setFamily(QFontInfo(initial).family());
    QFontDialog box(shown, QApplication::activeWindow());
    box.setObjectName(u"FontBox"_s);
    box.setWindowTitle(u"Font"_s);
    box.setOption(QFontDialog::DontUseNativeDialog);
    return box.exec() == QDialog::Accepted ? std::optional(box.selectedFont()) : std::nullopt;
}

std::optional<PrinterChoice> SystemDialogs::printer(const PrinterChoice& initial)
{
    PrinterSetup box(initial, QApplication::activeWindow());
    return box.exec() == QDialog::Accepted ? std::optional(box.choice()) : std::nullopt;
}

} // namespace norvane::overlay
