// Unsaved changes: what happens to them, and how they are restored; see OptionForm.h.
#include "screens/FieldPanel.h"
#include "screens/OptionForm.h"
#include "screens/SaveNotices.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QShortcut>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

/// A box handles Ctrl+Z itself, even if it has nothing to undo.
void OptionForm::takeUndoKey()
{
    connect(new QShortcut(QKeySequence::Undo, this, {}, {}, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, this, &OptionForm::getBack);
    for (auto* const box : CSPict1->findChildren<QLineEdit*>())
        box->installEventFilter(this);
}

bool OptionForm::eventFilter(QObject* box, QEvent* event)
{
    const bool isUndo = event->type() == QEvent::ShortcutOverride &&
                        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Undo);
    return (isUndo && !m_typed->exist()) || QWidget::eventFilter(box, event);
}

store::RecordedWork OptionForm::recordWork()
{
    return {m_history.get(), *m_database, m_databasePath, {m_file.table().table}};
}

void OptionForm::refreshAll()
{
    refresh();
    attempt([this] {
        if (!m_editor->isAdding() && !m_typed->exist() && !m_editor->reread()) {
            m_editor->goToFirst();
            showRecord();
        }
        reloadList();
    });
}

void OptionForm::showStar()
{
    setWindowModified(m_typed->exist());
}

/// @return nothing if everything is saved.
std::optional<LostChanges> OptionForm::unsavedChanges() const
{
    if (!m_typed->exist())
        return std::nullopt;
    return LostChanges{m_databasePath,       m_file.path(),    unsavedRecord(),
                       m_editor->isAdding(), m_editor->seen(), m_typed->fields()};
}

QString OptionForm::unsavedRecord() const
{
    return m_editor->isAdding() ? u"the new record"_s : shownRecord();
}

/// They can be restored; the next notice says so.
void OptionForm::drop(std::optional<LostChanges> changes)
{
    if (!changes)
        return;
    m_notice = changesLost(changes->record);
    m_losses->add(std::move(*changes));
    m_typed->begin();
    showStar();
}

/// Asks before a control that is not a button of the screen leads away. @return false to remain.
bool OptionForm::mayLeave()
{
    if (!m_typed->exist())
        return true;
    const UnsavedAnswer answer = askToSave(m_boxes, unsavedRecord());
    if (answer != UnsavedAnswer::Save)
        return answer == UnsavedAnswer::Discard;
    if (!save())
        return false;
    m_notice = recordSaved(shownRecord());
    return true;
}

void OptionForm::closeEvent(QCloseEvent* event)
{
    bool leaves = false;
    attempt([&] { leaves = mayLeave(); });
    event->setAccepted(leaves || m_failed);
    if (event->isAccepted())
        Q_EMIT noticeChanged(std::exchange(m_notice, {}));
}

void OptionForm::getBack()
{
    const auto lost = m_losses->take(m_databasePath, m_file.path());
    if (!lost)
        return Q_EMIT nothingToGetBack();
    attempt([&] { returnTo(*lost); });
}

void OptionForm::returnTo(const LostChanges& lost)
{
    const auto changes = unsavedChanges();
    if (!lost.isNew && !m_editor->goBackTo(lost.seen))
        return Q_EMIT noticeChanged(changesGone(lost.record));
    drop(changes);
    putBack(lost);
    Q_EMIT noticeChanged(m_notice.isEmpty() ? changesBack(lost.record) : std::exchange(m_notice, {}));
    CSPict1->focusFirst();
}

/// The rest of the record is shown as it is stored now. What others have stored over the typed fields since
/// then, Save asks about.
void OptionForm::putBack(const LostChanges& lost)
{
    if (lost.isNew) {
        startRecord();
        m_editor->copyUnshown(lost.seen, CSPict1->contents());
    } else {
        showRecord();
        m_editor->setSeen(lost.seen);
    }
    m_typed->putBack(lost.typed);
    showStar();
}

} // namespace norvane::screens
