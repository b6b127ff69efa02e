// See SystemDialogs.h.
#include "overlay/SystemDialogs.h"

#include "overlay/FontBox.h"
#include "overlay/PrinterSetup.h"
#include "platform/FilePaths.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontInfo>
#include <QMessageBox>

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

/// The existing file for @p typed, which may lack the suffix; empty if there is none.
QString meantFile(const QString& typed, const QStringList& suffixes)
{
    QStringList paths = {typed};
    for (const QString& suffix : suffixes)
        paths += typed + u'.' + suffix;
    for (const QString& path : paths) {
        if (QFileInfo(existingPath(path)).isFile())
            return existingPath(path);
    }
    return {};
}

/// Takes the name of any existing file. The toolkit's own mode for that takes only a name that its filter
/// shows, with its suffix.
class OpenBox : public QFileDialog
{
public:
    explicit OpenBox(const FileChoice& choice)
        : QFileDialog(QApplication::activeWindow(), choice.title, {}, choice.filter),
          m_suffixes(choice.suffixes)
    {
    }
    [[nodiscard]] QString path() const { return m_path; }
    void accept() override
    {
        const QString typed = selectedFiles().value(0);
        m_path = meantFile(typed, m_suffixes);
        if (QFileInfo(typed).isDir()) {
            QFileDialog::accept();
        } else if (!m_path.isEmpty()) {
            QDialog::accept(); // the base would refuse the typed name. NOLINT(bugprone-parent-virtual-call)
        } else {
            QMessageBox::warning(this, windowTitle(),
                                 u"There is no file %1 in this folder."_s.arg(QFileInfo(typed).fileName()));
        }
    }

private:
    QStringList m_suffixes;
    QString m_path;
};

/// Sets up what the dialogs for files have in common.
void setUp(QFileDialog& box, const FileChoice& choice)
{
    box.setObjectName(u"FileBox"_s);
    const bool writes = choice.name == FileChoice::Name::ToWrite;
    box.setAcceptMode(writes ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(QFileDialog::AnyFile);
    // Whether a file may be replaced is asked by the form, in its own words.
    box.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    showPath(box, choice.path);
}

} // namespace

QString SystemDialogs::file(const FileChoice& choice)
{
    if (choice.name == FileChoice::Name::Existing) {
        OpenBox box(choice);
        setUp(box, choice);
        return box.exec() == QDialog::Accepted ? box.path() : QString();
    }
    QFileDialog box(QApplication::activeWindow(), choice.title, {}, choice.filter);
    setUp(box, choice);
    box.setDefaultSuffix(choice.suffixes.value(0));
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

/// The list has only the fonts of this computer: a missing font is shown as its substitute.
std::optional<QFont> SystemDialogs::font(const QFont& initial)
{
    QFont shown = initial;
    shown.setFamily(QFontInfo(initial).family());
    FontBox box(shown, QApplication::activeWindow());
    return box.exec() == QDialog::Accepted ? std::optional(box.choice()) : std::nullopt;
}

std::optional<PrinterChoice> SystemDialogs::printer(const PrinterChoice& initial)
{
    PrinterSetup box(initial, QApplication::activeWindow());
    return box.exec() == QDialog::Accepted ? std::optional(box.choice()) : std::nullopt;
}

} // namespace norvane::overlay
