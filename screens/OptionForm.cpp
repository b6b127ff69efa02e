// The record editor's window, buttons and messages; see OptionForm.h.
#include "screens/OptionForm.h"

#include "platform/FailureBox.h"
#include "platform/FilePaths.h"
#include "screens/FieldPanel.h"
#include "screens/FindNotices.h"
#include "screens/GridControl.h"
#include "screens/RecordEditor.h"
#include "screens/RecordList.h"
#include "screens/SaveNotices.h"
#include "ui/FormKit.h"
#include "ui/FrmSearch.h"
#include "ui/WaitPointer.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

OptionForm::OptionForm(const QString& screenFilePath, const ApplicationValues& values, Boxes& boxes,
                       ReportRunner* reports, QWidget* parent)
    : QWidget(parent), m_values(values), m_boxes(boxes), m_reports(reports), m_file(screenFilePath),
      m_databasePath(values.databasePath), m_sideRoom(*this)
{
    ui::nameControl(*this, u"OptionForm"_s);
    openTable();
    buildWindow();
    buildControls();
    buildList();
    buildButtons();
    ShowFields();
    CSPict1->focusFirst();
}

OptionForm::~OptionForm() = default;

void OptionForm::ShowFields()
{
    showRecord();
    Q_EMIT told({});
}

void OptionForm::showRecord()
{
    BoundFields fields = CSPict1->contents();
    m_editor->showFields(fields);
    CSPict1->showContents(fields);
    m_shown = CSPict1->contents();
    markRecord();
}

bool OptionForm::isTouched() const
{
    return !std::ranges::equal(CSPict1->contents(), m_shown, {}, &BoundField::content, &BoundField::content);
}

void OptionForm::refresh()
{
    attempt([this] {
        if (GridControl* const grid = CSPict1->grid())
            grid->reread();
        if (!m_editor->isAdding() && !isTouched() && m_editor->reread())
            showRecord();
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

/// Closes this screen and nothing else. On a table that has become empty, a screen that can add stays for it.
void OptionForm::tellFailure(const RuntimeFailure& failure)
{
    const bool canAdd =
        failure.failure() == Failure::NoCurrentRecord && m_editor->isEmpty() && m_file.buttons().add;
    m_failed = !canAdd;
    if (canAdd)
        showNothing();
    showFailure(failure, m_boxes);
    if (canAdd) {
        Q_EMIT told(u"The table is empty. Press Add to enter a record."_s);
    } else {
        exitForm();
    }
}

void OptionForm::showNothing()
{
    BoundFields fields = CSPict1->contents();
    m_editor->showNothing(fields);
    CSPict1->showContents(fields);
    m_shown = CSPict1->contents();
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
    if (m_list)
        m_list->mark(m_editor->key());
}

void OptionForm::addRecord()
{
    BoundFields fields = CSPict1->contents();
    m_editor->add(fields);
    CSPict1->showContents(fields);
    markRecord();
    Q_EMIT told({});
    CSPict1->focusFirst();
}

void OptionForm::saveRecord()
{
    BoundFields fields = CSPict1->contents();
    if (m_editor->wouldOverwrite(fields) && !mayOverwrite(m_boxes))
        return ShowFields();
    const auto refusal = m_editor->save(fields);
    CSPict1->showContents(fields);
    if (refusal) {
        tellRefusal(*refusal);
    } else {
        m_shown = CSPict1->contents();
        tellSaved();
        reloadList();
    }
}

void OptionForm::tellSaved()
{
    const QString field = m_editor->searchedField(1).name;
    const QString key = m_list ? store::shownKey(field, m_editor->key()) : QString();
    Q_EMIT told(recordSaved(windowTitle(), CSPict1->labelOf(field), key));
}

void OptionForm::tellRefusal(const RuntimeFailure& failure)
{
    Q_EMIT told(nothingStored(failure));
    if (failure.failure() == Failure::DuplicateKey) {
        m_boxes.message(u"This item code already exists!\rPlease try again"_s,
                        u"Data Error Code%1"_s.arg(failure.number()), BoxIcon::Critical);
    }
}

void OptionForm::deleteRecord()
{
    if (!m_boxes.ask(u"Are You Sure?"_s, u"Delete Record"_s, BoxIcon::Critical, BoxAnswer::No))
        return;
    m_editor->deleteRecord();
    reloadList();
    ShowFields();
}

void OptionForm::nextRecord()
{
    if (!m_editor->next())
        tellNoMoreRecords();
    ShowFields();
}

void OptionForm::previousRecord()
{
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
    const FindOutcome outcome = m_editor->find(element, *searchText);
    if (outcome != FindOutcome::Nothing) {
        ShowFields();
        if (outcome == FindOutcome::Next)
            tellNext(m_editor->searchedField(element), *searchText);
        return;
    }
    m_boxes.beep();
    m_boxes.message(u"No Record"_s, u"Search"_s, BoxIcon::Exclamation);
}

/// As a find by the first index; another screen may have deleted the record since the list was read.
void OptionForm::goTo(const QString& key)
{
    if (m_editor->find(1, key) != FindOutcome::Nothing)
        ShowFields();
}

void OptionForm::tellNext(const store::FieldDefinition& field, const QString& sought)
{
    Q_EMIT told(foundNext(windowTitle(), CSPict1->labelOf(field.name), sought, m_list != nullptr));
}

void OptionForm::exitForm()
{
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
    Q_EMIT told(why);
    m_boxes.message(u"Invalid Data Entry"_s, u"Operation Error"_s, BoxIcon::Exclamation);
    grid.retryCell(cell);
}

} // namespace norvane::screens
