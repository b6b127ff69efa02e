// Limits and typing in the text box; see TextBox.h.
#include "ui/TextBox.h"

#include "platform/Windows1252.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QValidator>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

/// The toolkit's limit, used for "no limit".
constexpr int noLimit = 32767;

bool typesCharacter(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !event.modifiers().testFlag(Qt::ControlModifier);
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isHexadecimal(QChar character)
{
    const QChar small = character.toLower();
    return isDigit(character) || (small >= u'a' && small <= u'f');
}

bool isOnRegister(QChar character)
{
    return fitsWindows1252(QStringView(&character, 1));
}

} // namespace

/// Refuses characters that must not be typed. Those of a stored text are allowed, or it could not be
/// corrected.
class TextBox::Validator : public QValidator
{
public:
    explicit Validator(TextBox& box) : QValidator(&box), m_box(box) {}

    State validate(QString& input, int& /*cursor*/) const override
    {
        return m_box.refusedIn(input) <= m_box.m_refusedHeld ? Acceptable : Invalid;
    }

private:
    const TextBox& m_box;
};

TextBox::TextBox(QWidget* parent) : QLineEdit(parent)
{
    setValidator(new Validator(*this));
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_refusedHeld = refusedIn(text); });
}

qsizetype TextBox::refusedIn(QStringView text) const
{
    const auto mayBeTyped = m_characters == Characters::Digits        ? isDigit
                            : m_characters == Characters::Hexadecimal ? isHexadecimal
                                                                      : isOnRegister;
    return text.size() - std::count_if(text.begin(), text.end(), mayBeTyped);
}

void TextBox::setLimit(int characters)
{
    m_limit = characters;
    showText(text());
}

void TextBox::setCharacters(Characters characters)
{
    m_characters = characters;
    m_refusedHeld = refusedIn(text());
}

void TextBox::setLargest(int number)
{
    const auto zeros = [this] {
        return QString(maxLength(), u'0');
    };
    setToolTip(u"From %1 to %2"_s.arg(zeros()).arg(number));
    connect(this, &QLineEdit::textEdited, this, [this, number, zeros](const QString& typed) {
        if (typed.toInt() <= number)
            return;
        setText(zeros());
        Q_EMIT maximumExceeded();
    });
}

void TextBox::setJustify(const QString& code)
{
    if (code == "0"_L1) {
        setAlignment(Qt::AlignLeft);
    } else if (code == "1"_L1) {
        setAlignment(Qt::AlignRight);
    } else if (code == "2"_L1) {
        setAlignment(Qt::AlignHCenter);
    }
}

void TextBox::showText(const QString& text)
{
    setMaxLength(m_limit > 0 ? qMax(m_limit, static_cast<int>(text.size())) : noLimit);
    if (text == this->text())
        return;
    setText(text);
    setCursorPosition(0);
}

bool TextBox::hasRoomFor(qsizetype characters) const
{
    return text().size() - selectedText().size() + characters <= maxLength();
}

int TextBox::limit() const
{
    return m_limit > 0 ? m_limit : maxLength();
}

void TextBox::tip(const QString& text)
{
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), text, this);
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste))
        return paste();
    const bool refuses = !isReadOnly() && typesCharacter(*event) && !hasRoomFor(1);
    if (refuses && text().endsWith(u' ') && refusedIn(event->text()) == 0) {
        makeRoom();
    } else if (refuses) {
        tip(u"At most %1 characters"_s.arg(limit()));
    }
    QLineEdit::keyPressEvent(event);
}

void TextBox::paste()
{
    pasteText(QGuiApplication::clipboard()->text());
}

/// The middle button pastes what was selected elsewhere, where the platform has such a clipboard.
void TextBox::mouseReleaseEvent(QMouseEvent* event)
{
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard.supportsSelection())
        return QLineEdit::mouseReleaseEvent(event);
    deselect();
    pasteText(clipboard.text(QClipboard::Selection));
}

/// A part of the text may be missing at its end when a text is inserted that does not fit, and the rest would
/// be joined to the text there. Cells of a spreadsheet come with a line end.
void TextBox::pasteText(QString pasted)
{
    while (pasted.endsWith(u'\n') || pasted.endsWith(u'\r'))
        pasted.chop(1);
    if (isReadOnly())
        return;
    while (!hasRoomFor(pasted.size()) && !hasSelectedText() && text().endsWith(u' '))
        makeRoom();
    if (pasted.size() > limit()) {
        pasteCut(pasted.left(limit()));
    } else if (hasRoomFor(pasted.size())) {
        insert(pasted);
    } else {
        tip(u"At most %1 characters. Select the text first to replace it."_s.arg(limit()));
    }
}

void TextBox::pasteCut(const QString& pasted)
{
    selectAll();
    insert(pasted);
    if (text() == pasted)
        tip(u"Only the first %1 characters were pasted"_s.arg(limit()));
}

void TextBox::makeRoom()
{
    int cursor = cursorPosition();
    // The end key, and a click into the empty part, go to the end of the text, not of its blanks.
    if (cursor == text().size()) {
        while (cursor > 0 && text().at(cursor - 1) == u' ')
            --cursor;
    }
    setText(text().chopped(1));
    setCursorPosition(cursor);
}

} // namespace norvane::ui
