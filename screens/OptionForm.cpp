// The record editor's window, buttons and messages; see OptionForm.h.
#include "screens/OptionForm.h"

#include "platform/FailureBox.h"
#include "platform/FilePaths.h"
#include "register/PluNumber.h"
#include "screens/FieldPanel.h"
#include "screens/FindNotices.h"
#include "screens/GridControl.h"
#include "screens/RecordEditor.h"
#include "screens/RecordList.h"
#include "screens/SaveNotices.h"
#include "ui/Announcement.h"
#include "ui/FormKit.h"
#include "ui/FrmSearch.h"
#include "ui/WaitPointer.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

OptionForm::OptionForm(const QString& screenFilePath, const ApplicationValues& values, Boxes& boxes,
                       ReportRunner* reports, std::shared_ptr<LostChangesList> losses,
                       const ScreenTools& tools)
    : m_values(values), m_boxes(boxes), m_reports(reports), m_file(screenFilePath),
      m_databasePath(values.databasePath),
      m_losses(losses ? std::move(losses) : std::make_shared<LostChangesList>()), m_sideRoom(*this)
{
    ui::nameControl(*this, u"OptionForm"_s);
    openTable();
    buildWindow();
    buildControls();
    buildList();
    buildUses();
    buildButtons(ownTools() + tools);
    takeUndoKey();
    ShowFields();
    CSPict1->focusFirst();
}

OptionForm::~OptionForm() = default;

QString OptionForm::caption() const
{
    return windowTitle().chopped(titleStar.size());
}

QString OptionForm::labelOf(const QString& field) const
{
    return CSPict1->labelOf(field);
}

void OptionForm::ShowFields()
{
    showRecord();
    const QString notice = std::exchange(m_notice, {});
    if (m_list && notice.isEmpty())
        ui::announce(*this, spokenRecord());
    Q_EMIT noticeChanged(notice);
}

/// The focus does not move, and nothing else says which record is shown.
QString OptionForm::spokenRecord() const
{
    const QString field = textField();
    for (const BoundField& shown : CSPict1->contents()) {
        if (!field.isEmpty() && shown.dataField.trimmed() == field)
            return shownRecord() + u", "_s + shown.content.toText().trimmed();
    }
    return shownRecord();
}

void OptionForm::showRecord()
{
    BoundFields fields = CSPict1->contents();
    m_editor->showFields(fields);
    showUnchanged(fields);
    markRecord();
}

/// What the controls show now is the record as it is stored, or an empty one.
void OptionForm::showUnchanged(const BoundFields& fields)
{
    CSPict1->showContents(fields);
    m_marks.clear();
    m_typed->begin();
    showStar();
    recountUses();
}

void OptionForm::refresh()
{
    attempt([this] {
        if (GridControl* const grid = CSPict1->grid())
            grid->reread();
        if (!m_editor->isAdding() && !m_typed->exist() && m_editor->reread())
            showRecord();
        recountUses();
    });
}

void OptionForm::attempt(const std::function<void()>& act)
{
    if (m_failed)
        return;
    try {
        act();
    } catch (const RuntimeFailure& failure) {
        tellFailure(failure);
    }
}

/// Closes only this screen. On a table that has become empty, a screen that can add remains open.
void OptionForm::tellFailure(const RuntimeFailure& failure)
{
    const bool canAdd =
        failure.failure() == Failure::NoCurrentRecord && m_editor->isEmpty() && m_file.buttons().add;
    m_failed = !canAdd;
    if (canAdd)
        showNothing();
    showFailure(failure, m_boxes);
    if (canAdd) {
        Q_EMIT noticeChanged(u"The table is empty. Press Add to enter a record."_s);
    } else {
        exitForm();
    }
}

void OptionForm::showNothing()
{
    BoundFields fields = CSPict1->contents();
    m_editor->showNothing(fields);
    showUnchanged(fields);
    reloadList();
}

/// A screen comes to the front with its window, too, such as after a box or a dialog.
bool OptionForm::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        refresh();
    return QWidget::event(event);
}

void OptionForm::reloadList()
{
    if (!m_list)
        return;
    m_list->reload();
    markRecord();
}

void OptionForm::markRecord()
{
    if (!m_list)
        return;
    m_list->mark(m_editor->key());
    Q_EMIT recordShown(m_editor->key());
}

void OptionForm::addRecord()
{
    drop(unsavedChanges());
    startRecord();
    Q_EMIT noticeChanged(std::exchange(m_notice, {}));
    CSPict1->focusNew();
}

void OptionForm::startRecord()
{
    BoundFields fields = CSPict1->contents();
    m_editor->add(fields);
    showUnchanged(fields);
    markRecord();
}

void OptionForm::saveRecord()
{
    static_cast<void>(save());
}

/// @return false if nothing was stored.
bool OptionForm::save()
{
    BoundFields fields = CSPict1->contents();
    if (m_editor->wouldOverwrite(fields) && !mayOverwrite(m_boxes)) {
        drop(unsavedChanges());
        ShowFields();
        return false;
    }
    if (!mayRenumberRecord(fields)) {
        keepNumber(fields);
        return false;
    }
    if (!storeRecord(fields))
        return false;
    showUnchanged(fields);
    Q_EMIT noticeChanged(recordSaved(shownRecord()));
    reloadList();
    return true;
}

/// @return false if the record was refused.
bool OptionForm::storeRecord(BoundFields& fields)
{
    auto work = recordWork();
    const QString done = m_editor->isAdding() ? u"Added "_s : u"Saved "_s;
    const auto refusal = m_editor->save(fields);
    if (refusal) {
        CSPict1->showContents(fields);
        tellRefusal(*refusal);
        return false;
    }
    work.setName(done + shownRecord());
    return true;
}

bool OptionForm::mayRenumberRecord(const BoundFields& fields)
{
    const auto number = m_editor->newNumber(fields);
    if (!number)
        return true;
    const auto shown = [this](const store::Value& key) {
        return shownKey(m_editor->searchedField(1).name, key.toText());
    };
    return mayRenumber(m_boxes, shownRecord(), shown(number->before), shown(number->after),
                       holdersOfKey(*m_database, m_file.table().table, number->before));
}

/// Other input remains on the screen.
void OptionForm::keepNumber(BoundFields fields)
{
    m_editor->restoreNumber(fields);
    CSPict1->showContents(fields);
    showStar();
    Q_EMIT noticeChanged(u"Nothing was stored: %1 keeps its number"_s.arg(shownRecord()));
}

QString OptionForm::shownRecord() const
{
    const QString field = m_editor->searchedField(1).name;
    const QString key = m_list ? shownKey(field, m_editor->key()) : QString();
    return recordName(caption(), CSPict1->labelOf(field), key);
}

void OptionForm::tellRefusal(const RuntimeFailure& failure)
{
    Q_EMIT noticeChanged(nothingStored(failure));
    if (failure.failure() == Failure::DuplicateKey) {
        m_boxes.message(u"This item code already exists!\rPlease try again"_s,
                        u"Data Error Code%1"_s.arg(failure.number()), BoxIcon::Critical);
    }
}

void OptionForm::deleteRecord()
{
    if (!mayDelete() ||
        !m_boxes.ask(u"Are You Sure?"_s, u"Delete Record"_s, BoxIcon::Critical, BoxAnswer::No))
        return;
    {
        auto work = recordWork();
        work.setName(u"Deleted "_s + shownRecord());
        m_editor->deleteRecord();
    }
    reloadList();
    ShowFields();
}

void OptionForm::nextRecord()
{
    drop(unsavedChanges());
    if (!m_editor->next())
        tellNoMoreRecords();
    ShowFields();
}

void OptionForm::previousRecord()
{
    drop(unsavedChanges());
    if (!m_editor->previous())
        tellNoMoreRecords();
    ShowFields();
}

void OptionForm::tellNoMoreRecords()
{
    m_boxes.message(u"No More Records"_s, u"Searching..."_s, BoxIcon::Exclamation);
}

void OptionForm::findRecord(int element)
{
    const auto searchText = ui::FrmSearch::ask(window(), kindOfKey(m_editor->searchedField(element)));
    if (!searchText)
        return;
    const auto changes = unsavedChanges();
    const FindOutcome outcome = m_editor->find(element, *searchText);
    if (outcome != FindOutcome::Nothing) {
        drop(changes);
        ShowFields();
        if (outcome == FindOutcome::Next && !changes)
            tellNext(m_editor->searchedField(element), *searchText);
        return;
    }
    m_boxes.beep();
    m_boxes.message(u"No Record"_s, u"Search"_s, BoxIcon::Exclamation);
}

void OptionForm::showKey(const QString& key)
{
    if (key != m_editor->key())
        attempt([&] { goTo(key); });
}

/// As a find by the first index; another screen may have deleted the record since the list was read.
void OptionForm::goTo(const QString& key)
{
    if (mayLeave() && m_editor->find(1, key) != FindOutcome::Nothing)
        return ShowFields();
    markRecord();
}

void OptionForm::tellNext(const store::FieldDefinition& field, const QString& sought)
{
    Q_EMIT noticeChanged(foundNext(caption(), CSPict1->labelOf(field.name), sought, m_list != nullptr));
}

void OptionForm::exitForm()
{
    drop(unsavedChanges());
    close();
}

void OptionForm::printReport()
{
    const ui::WaitPointer wait;
    const ScreenReport report = m_file.report();
    m_reports->run(
        {joinPath(m_values.appPath, report.file.toUpper()), report.title.toUpper(), m_databasePath});
}

void OptionForm::rejectCell(GridControl& grid, const QModelIndex& index, const QString& why)
{
    const QPersistentModelIndex cell = index; // the rows may be read again while the box is open
    Q_EMIT noticeChanged(why);
    m_boxes.message(u"Invalid Data Entry"_s, u"Operation Error"_s, BoxIcon::Exclamation);
    grid.retryCell(cell);
}

} // namespace norvane::screens
