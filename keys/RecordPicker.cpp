// Columns and search of the list; see RecordPicker.h.
#include "keys/RecordPicker.h"

#include "ui/FormKit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
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

/// As wide as a digit, so that numbers are aligned.
constexpr QChar figureSpace(0x2007);

QString rowText(const ListedItem& item)
{
    return item.number.rightJustified(numberColumn, figureSpace) + u"   "_s + item.description.trimmed();
}

} // namespace

RecordPicker::RecordPicker(const QString& name, const QString& hint, QWidget* parent) : QComboBox(parent)
{
    ui::nameControl(*this, name);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(mostRowsShown);
    setMinimumContentsLength(textColumn);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ui::nameControl(*lineEdit(), name + u"Text"_s);
    lineEdit()->setPlaceholderText(hint);
    lineEdit()->installEventFilter(this);

    auto* const finder = new QCompleter(model(), this);
    finder->setFilterMode(Qt::MatchContains);
    finder->setCaseSensitivity(Qt::CaseInsensitive);
    finder->setMaxVisibleItems(mostRowsShown);
    setCompleter(finder);
    // The next record can be typed immediately. The finder writes its text after the choice.
    connect(this, &QComboBox::activated, lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &RecordPicker::takeTyped);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &RecordPicker::dropTyped);
}

void RecordPicker::setItems(const QVector<ListedItem>& items)
{
    clear();
    for (const ListedItem& item : items)
        addItem(rowText(item), item.number);
    setCurrentIndex(-1);
}

void RecordPicker::showRecord(const QString& number)
{
    setCurrentIndex(findData(number));
}

/// A row number of the list, -1 when nothing is found.
int RecordPicker::find(const QString& typed) const
{
    const int byNumber = findData(typed, Qt::UserRole, Qt::MatchFixedString);
    return typed.isEmpty() || byNumber >= 0 ? byNumber : findText(typed, Qt::MatchContains);
}

void RecordPicker::takeTyped()
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

/// What was typed and not taken gives way to the record that is shown.
void RecordPicker::dropTyped()
{
    if (const QString shown = itemText(currentIndex()); shown != lineEdit()->text())
        setEditText(shown);
}

/// In a text that is being typed, a click only moves the cursor.
void RecordPicker::chooseText()
{
    if (lineEdit()->text() == itemText(currentIndex()))
        lineEdit()->selectAll();
}

/// The box moves its cursor when the mouse button goes down, and chooses a word at a double click.
bool RecordPicker::eventFilter(QObject* watched, QEvent* event)
{
    const bool ends = event->type() == QEvent::MouseButtonRelease && !lineEdit()->hasSelectedText();
    if (watched == lineEdit() && (ends || event->type() == QEvent::MouseButtonDblClick))
        QMetaObject::invokeMethod(this, &RecordPicker::chooseText, Qt::QueuedConnection);
    return QComboBox::eventFilter(watched, event);
}

void RecordPicker::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace norvane::keys
