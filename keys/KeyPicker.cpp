// Columns and search of the key list; see KeyPicker.h.
#include "keys/KeyPicker.h"

#include "ui/FormKit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// Characters of the columns number and text.
constexpr int numberColumn = 3;
constexpr int textColumn = 30;
constexpr int mostRowsShown = 16;

/// As wide as a digit, so that numbers stand right under each other.
constexpr QChar figureSpace(0x2007);

QString rowText(const FunctionKeys::Item& item)
{
    return item.number.rightJustified(numberColumn, figureSpace) + u"   "_s + item.description.trimmed();
}

} // namespace

KeyPicker::KeyPicker(QWidget* parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(mostRowsShown);
    setMinimumContentsLength(textColumn);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ui::nameControl(*lineEdit(), u"selectkeyText"_s);
    lineEdit()->setPlaceholderText(u"Select Function Key"_s);
    lineEdit()->installEventFilter(this);

    auto* const finder = new QCompleter(model(), this);
    finder->setFilterMode(Qt::MatchContains);
    finder->setCaseSensitivity(Qt::CaseInsensitive);
    finder->setMaxVisibleItems(mostRowsShown);
    setCompleter(finder);
    // The next key can be typed at once. The finder writes its text after the choice.
    connect(this, &QComboBox::activated, lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &KeyPicker::takeTyped);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &KeyPicker::dropTyped);
}

void KeyPicker::setItems(const QVector<FunctionKeys::Item>& items)
{
    clear();
    for (const FunctionKeys::Item& item : items)
        addItem(rowText(item), item.number);
    setCurrentIndex(-1);
}

/// A row number of the list, -1 when nothing is found.
int KeyPicker::find(const QString& typed) const
{
    const int byNumber = findData(typed, Qt::UserRole, Qt::MatchFixedString);
    return typed.isEmpty() || byNumber >= 0 ? byNumber : findText(typed, Qt::MatchContains);
}

void KeyPicker::takeTyped()
{
    const QString typed = lineEdit()->text();
    // The list itself has taken a text that is a whole row.
    const int row = typed == itemText(currentIndex()) ? -1 : find(typed.trimmed());
    if (row < 0)
        return;
    completer()->popup()->hide();
    setCurrentIndex(row);
    Q_EMIT activated(row);
}

/// What was typed and not taken gives way to the key that is shown.
void KeyPicker::dropTyped()
{
    if (const QString shown = itemText(currentIndex()); shown != lineEdit()->text())
        setEditText(shown);
}

/// A click into the list marks its text, so that typing replaces it.
bool KeyPicker::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const focus = event->type() == QEvent::FocusIn ? static_cast<QFocusEvent*>(event) : nullptr;
    if (watched == lineEdit() && focus != nullptr && focus->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, lineEdit(), &QLineEdit::selectAll);
    return QComboBox::eventFilter(watched, event);
}

void KeyPicker::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace norvane::keys
