// Boxes made of the toolkit's own; see MessageBoxes.h.
#include "ui/MessageBoxes.h"

#include "platform/Excerpt.h"

#include <QApplication>
#include <QCursor>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

/// The arrow while a box waits, even if the interrupted work shows the wait pointer.
class ArrowPointer
{
public:
    ArrowPointer() { QApplication::setOverrideCursor(QCursor(Qt::ArrowCursor)); }
    ~ArrowPointer() { QApplication::restoreOverrideCursor(); }
    ArrowPointer(const ArrowPointer&) = delete;
    ArrowPointer& operator=(const ArrowPointer&) = delete;
};

QMessageBox::Icon boxIcon(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

/// Texts end a line with a carriage return, with or without a line feed; the box knows line feeds only. A
/// last line end would leave a gap above the button.
QString shownText(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    while (text.endsWith(u'\n'))
        text.chop(1);
    return visibleControls(text);
}

/// The frame's icon and its three buttons.
constexpr int besideTitle = 120;

/// A short text in a box must not cut its title, which often says what the text is about.
int widthForTitle(const QString& title)
{
    QFont bold = QApplication::font();
    bold.setBold(true);
    return QFontMetrics(bold).horizontalAdvance(title) + besideTitle;
}

/// A box over the window in use that still lacks its buttons.
class PlainBox : public QMessageBox
{
public:
    PlainBox(const QString& text, const QString& title, BoxIcon icon)
        : QMessageBox(boxIcon(icon), title.isEmpty() ? applicationTitle() : title, shownText(text), NoButton,
                      QApplication::activeWindow())
    {
        setObjectName(u"MessageBox"_s);
        setTextFormat(Qt::PlainText);
        widen(widthForTitle(windowTitle()));
    }

private:
    /// The toolkit makes the box as wide as its layout and listens to no other width.
    void widen(int width)
    {
        auto* const grid = static_cast<QGridLayout*>(layout());
        auto* const room = new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
        grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
    }

    ArrowPointer m_arrow;
};

QMessageBox::StandardButton show(const QString& text, const QString& title, BoxIcon icon,
                                 QMessageBox::StandardButtons buttons,
                                 QMessageBox::StandardButton preset = QMessageBox::Ok)
{
    PlainBox box(text, title, icon);
    box.setStandardButtons(buttons);
    box.setDefaultButton(preset);
    if (buttons.testFlag(QMessageBox::No))
        box.setEscapeButton(QMessageBox::No);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

/// A name gets the ending of the kind of file that is chosen: "prices.csv" becomes "prices.pdf".
void followFilter(QFileDialog& box)
{
    QObject::connect(&box, &QFileDialog::filterSelected, &box, [&box](const QString& filter) {
        static const QRegularExpression ending(u"\\(\\*\\.(\\w+)\\)"_s);
        const QString suffix = ending.match(filter).captured(1);
        const QFileInfo named(box.selectedFiles().value(0));
        box.setDefaultSuffix(suffix);
        if (!suffix.isEmpty() && !named.isDir() && !named.completeBaseName().isEmpty())
            box.selectFile(named.completeBaseName() + u'.' + suffix);
    });
}

/// This program asks before a file is replaced: the toolkit's question has other words and another preset.
QString chosenFile(const FileRequest& request, QFileDialog::AcceptMode mode)
{
    const ArrowPointer arrow;
    QFileDialog box(QApplication::activeWindow(), request.title, request.folder, request.filter);
    box.setObjectName(u"FileBox"_s);
    box.setAcceptMode(mode);
    const bool opens = mode == QFileDialog::AcceptOpen;
    box.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    box.setDefaultSuffix(request.suffix);
    if (!opens)
        followFilter(box);
    box.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    return box.exec() == QDialog::Accepted ? box.selectedFiles().value(0) : QString();
}

} // namespace

void MessageBoxes::message(const QString& text, const QString& title, BoxIcon icon)
{
    show(text, title, icon, QMessageBox::Ok);
}

bool MessageBoxes::ask(const QString& text, const QString& title, BoxIcon icon, BoxAnswer preset)
{
    const auto presetButton = preset == BoxAnswer::Yes ? QMessageBox::Yes : QMessageBox::No;
    return show(text, title, icon, QMessageBox::Yes | QMessageBox::No, presetButton) == QMessageBox::Yes;
}

/// The toolkit closes a box by Escape and by its close button only if one of its buttons is assigned to that.
/// A third, hidden button is.
std::optional<bool> MessageBoxes::askBeforeGoingOn(const QString& text, const QString& title)
{
    PlainBox box(text, title, BoxIcon::Question);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Yes);
    box.button(QMessageBox::Cancel)->hide();
    const int answer = box.exec();
    return answer == QMessageBox::Cancel ? std::nullopt : std::optional(answer == QMessageBox::Yes);
}

bool MessageBoxes::choose(const QString& text, const QString& title, const QString& first,
                          const QString& second)
{
    PlainBox box(text, title, BoxIcon::Exclamation);
    const auto* const chosen = box.addButton(first, QMessageBox::AcceptRole);
    QPushButton* const harmless = box.addButton(second, QMessageBox::RejectRole);
    box.setDefaultButton(harmless);
    box.setEscapeButton(harmless);
    box.exec();
    return box.clickedButton() == chosen;
}

UnsavedAnswer MessageBoxes::askToSave(const QString& text, const QString& title)
{
    switch (show(text, title, BoxIcon::Exclamation,
                 QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save)) {
    case QMessageBox::Save:
        return UnsavedAnswer::Save;
    case QMessageBox::Discard:
        return UnsavedAnswer::Discard;
    default:
        return UnsavedAnswer::Cancel;
    }
}

bool MessageBoxes::confirm(const QString& text, const QString& title)
{
    return show(text, title, BoxIcon::Question, QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

QString MessageBoxes::input(const QString& prompt, const QString& title, const QString& initial)
{
    const ArrowPointer arrow;
    QInputDialog box(QApplication::activeWindow());
    box.setObjectName(u"InputBox"_s);
    box.setWindowTitle(title.isEmpty() ? applicationTitle() : title);
    box.setLabelText(shownText(prompt));
    box.setTextValue(initial);
    box.setMinimumWidth(widthForTitle(box.windowTitle()));
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

QString MessageBoxes::fileToOpen(const FileRequest& request)
{
    return chosenFile(request, QFileDialog::AcceptOpen);
}

QString MessageBoxes::fileToSave(const FileRequest& request)
{
    for (;;) {
        QString path = chosenFile(request, QFileDialog::AcceptSave);
        const QFileInfo file(path);
        if (path.isEmpty() || !file.exists() ||
            ask(u"%1 exists already. Replace it?"_s.arg(file.fileName()), request.title, BoxIcon::Question,
                BoxAnswer::No))
            return path;
    }
}

void MessageBoxes::beep()
{
    QApplication::beep();
}

} // namespace norvane::ui
