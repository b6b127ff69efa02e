// A new record like the shown one, and where the shown one is used; see OptionForm.h.
#include "base/CustomerSettings.h"
#include "register/PluNumber.h"
#include "screens/FieldContents.h"
#include "screens/FieldPanel.h"
#include "screens/FreeNumber.h"
#include "screens/OptionForm.h"
#include "screens/SaveNotices.h"
#include "screens/ShownUses.h"
#include "store/engine/ShortWait.h"
#include "ui/Appearance.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// The question before a deletion names so many.
constexpr int namedUses = 5;

bool isFor(const BoundField& field, const QString& name)
{
    return field.dataField.trimmed().compare(name, Qt::CaseInsensitive) == 0;
}

} // namespace

ScreenTools OptionForm::ownTools() const
{
    if (!m_file.buttons().add)
        return {};
    return {
        {u"AddLikeThis"_s, u"Add &Like This"_s, QKeySequence(u"Ctrl+D"_s), &OptionForm::addLikeThis, false},
        {u"AddAnother"_s, u"Save and Add &Another"_s, QKeySequence(u"Ctrl+Shift+D"_s),
         &OptionForm::addAnother, false}};
}

void OptionForm::addAnother()
{
    attempt([this] {
        if (!save())
            return;
        m_notice = recordSaved(shownRecord()) + u". "_s + newLike(u"it"_s);
        addLikeThis();
    });
}

void OptionForm::addLikeThis()
{
    attempt([this] {
        const std::vector<store::Value> shown = m_editor->seen();
        const BoundFields entries = CSPict1->entries();
        const QString record = unsavedRecord();
        drop(unsavedChanges());
        startLike(shown, entries);
        Q_EMIT noticeChanged(m_notice.isEmpty() ? newLike(record) : std::exchange(m_notice, {}));
        markEntries();
    });
}

void OptionForm::startLike(const std::vector<store::Value>& record, BoundFields fields)
{
    startRecord();
    m_editor->copyUnshown(record, CSPict1->contents());
    for (BoundField& field : fields) {
        if (isFor(field, m_editor->searchedField(1).name)) {
            field.content = proposedNumber(field);
        } else if (isFor(field, textField())) {
            field.content = blankValue(field.kind);
        }
    }
    m_typed->putBack(fields);
    showStar();
}

/// @return a blank for a record that is not a PLU: the user knows its number.
store::Value OptionForm::proposedNumber(const BoundField& number)
{
    const bool isPlu = isPluNumberField(number.dataField.trimmed());
    const auto shown = isPlu ? PluNumber::parse(number.content.toUtf8()) : std::nullopt;
    const auto free = shown ? nextFreePlu(*m_database, *shown) : std::nullopt;
    return free ? store::Value::text(QString::number(free->value())) : blankValue(number.kind);
}

/// Typing replaces a proposed number.
void OptionForm::markEntries()
{
    QLineEdit* const number = CSPict1->entryBox(m_editor->searchedField(1).name);
    for (QLineEdit* const box : {number, CSPict1->entryBox(textField())}) {
        if (box != nullptr)
            m_marks.mark(*box);
    }
    CSPict1->focusNew();
    if (number == nullptr)
        return;
    number->setFocus();
    number->selectAll();
}

void OptionForm::buildUses()
{
    if (!m_list || !canBeUsed(m_file.table().table))
        return;
    m_uses = new ui::UsesButton([this](int atMost) { return shownUses(readUses(atMost)); }, this);
    auto* const shortcut =
        new QShortcut(QKeySequence(u"Ctrl+R"_s), this, {}, {}, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, m_uses, &QPushButton::click);
}

/// The form grows with it: the fields keep their room.
void OptionForm::addUsesRow(QVBoxLayout& column)
{
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(ui::spacing::formMargin, 0, ui::spacing::formMargin, 0);
    row->addWidget(m_uses);
    row->addStretch();
    column.addLayout(row);
    m_size.rheight() += m_uses->sizeHint().height() + column.spacing();
}

KeyUses OptionForm::usesOfRecord(int atMost)
{
    return usesOfKey(*m_database, m_file.table().table, store::Value::text(m_editor->key()),
                     keysOfLevel(registerModelByText(m_values).family), atMost);
}

std::optional<KeyUses> OptionForm::readUses(int atMost)
{
    const store::ShortWait wait(*m_database);
    try {
        return usesOfRecord(atMost);
    } catch (const RuntimeFailure&) {
        return std::nullopt; // the button says so; the screen can be used without them
    }
}

void OptionForm::recountUses()
{
    if (m_uses)
        m_uses->recount();
}

/// Of a stored record.
bool OptionForm::mayDelete()
{
    return m_editor->isAdding() || mayDeleteUsed(m_boxes, shownRecord(), usesOfRecord(namedUses));
}

} // namespace norvane::screens
