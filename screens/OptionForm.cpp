// The record editor's window, buttons and messages; see OptionForm.h.
#include "screens/OptionForm.h"

#include "paper/Length.h"
#include "platform/FailurePlace.h"
#include "platform/FilePaths.h"
#include "screens/FieldPanel.h"
#include "screens/GridControl.h"
#include "screens/GridFindBar.h"
#include "screens/RecordEditor.h"
#include "screens/RecordList.h"
#include "screens/RegisterTexts.h"
#include "screens/SaveNotices.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/FrmSearch.h"
#include "ui/WaitPointer.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Size and caption before a screen file says otherwise.
constexpr double designedWidth = 9000;
constexpr double designedHeight = 6600;
const QString& designedCaption()
{
    static const QString caption = u"Options"_s;
    return caption;
}

/// What the find dialog calls the keys of @p field. PLU numbers are texts of digits.
QString kindOfKey(const store::FieldDefinition& field)
{
    if (field.name.compare("PLUNUMBER"_L1, Qt::CaseInsensitive) == 0)
        return u"PLU number"_s;
    return field.type == store::FieldType::Text ? u"text"_s : u"number"_s;
}

/// In a narrow form the buttons shrink down to this width.
constexpr int narrowestButton = 64;

} // namespace

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

void OptionForm::openTable()
{
    const ScreenTable table = m_file.table();
    const auto tellMissing = [&](const char* what) {
        m_boxes.message(u"No %1 defined in %2 file"_s.arg(QLatin1String(what), m_file.path()),
                        u"Initialisation Error"_s, BoxIcon::Critical);
    };
    if (table.table.isEmpty())
        tellMissing("database table");
    if (table.firstIndex.isEmpty())
        tellMissing("index");
    m_database = std::make_shared<store::Database>(m_databasePath);
    m_editor = std::make_unique<RecordEditor>(m_database, table, m_file.path());
}

void OptionForm::buildWindow()
{
    const ScreenWindow window = m_file.window();
    setWindowTitle(window.name.isEmpty() ? designedCaption() : window.name);
    m_size = ui::scaled(QSize(paper::screenPixels(paper::twips(window.width.value_or(designedWidth))),
                              paper::screenPixels(paper::twips(window.height.value_or(designedHeight)))));
}

void OptionForm::buildControls()
{
    CSPict1 = new FieldPanel(m_database, this);
    const QString table = m_file.table().table;
    for (ControlDefinition& definition : m_file.controls()) {
        const auto explain = [&](const QString& text) {
            return u"%1 (%2, section [%3])"_s.arg(text, m_file.path(), definition.section);
        };
        atPlace(explain, [&] {
            fitToRegister(definition, table, m_values);
            CSPict1->addControl(definition);
        });
    }
    CSPict1->finish();
    connect(CSPict1, &FieldPanel::findPressed, this, &OptionForm::findRecord);
    connect(CSPict1, &FieldPanel::maximumExceeded, this,
            [this](QLineEdit* box) { ui::rejectNumber(*box, m_boxes); });
    connect(CSPict1, &FieldPanel::gridDataError, this,
            [this](GridControl* grid, const QModelIndex& index, const QString& why) {
                rejectCell(*grid, index, why);
            });
}

/// From left to right: buttons that move, then those that change something. Only "E&xit" is always shown.
const QVector<OptionForm::ButtonRow>& OptionForm::buttonRows()
{
    static const QVector<ButtonRow> rows{
        {"PreviousRecord", "Previous", &ScreenButtons::previous, &OptionForm::previousRecord},
        {"NextRecord", "&Next", &ScreenButtons::next, &OptionForm::nextRecord},
        {"AddRecord", "&Add ", &ScreenButtons::add, &OptionForm::addRecord, true},
        {"DeleteRecord", "&Delete", &ScreenButtons::remove, &OptionForm::deleteRecord},
        {"SaveRecord", "&Save", &ScreenButtons::save, &OptionForm::saveRecord},
        {"PrintReport", "&Print", &ScreenButtons::print, &OptionForm::printReport},
        {"ExitForm", "E&xit", nullptr, &OptionForm::exitForm},
    };
    return rows;
}

void OptionForm::buildButtons()
{
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(ui::spacing::formMargin, 0, ui::spacing::formMargin, ui::spacing::controlGap);
    row->setSpacing(ui::spacing::controlGap);
    const ScreenButtons told = m_file.buttons();
    QVector<QPushButton*> shown;
    for (const ButtonRow& entry : buttonRows()) {
        QPushButton* const button = addButton(entry, *row);
        const bool isShown = entry.shown == nullptr || told.*entry.shown;
        button->setVisible(isShown);
        if (isShown)
            shown += button;
    }
    findChild<QPushButton*>(u"PrintReport"_s)->setEnabled(m_reports != nullptr);
    fitButtons(shown);
    layOut(row);
}

QPushButton* OptionForm::addButton(const ButtonRow& entry, QHBoxLayout& row)
{
    QPushButton* const button = ui::makeButton(QLatin1String(entry.name), QLatin1String(entry.caption), this);
    // Enter presses the button that has the focus, and no other.
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, entry.pressed);
    if (entry.beginsRightGroup)
        row.addStretch();
    row.addWidget(button, 1);
    return button;
}

void OptionForm::layOut(QHBoxLayout* buttons)
{
    auto* const line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    auto* const column = new QVBoxLayout;
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(CSPict1, 1);
    column->addWidget(line);
    column->addLayout(buttons);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addLayout(column, 1);
    if (m_list)
        row->addWidget(m_list);
    if (auto* const grid = CSPict1->grid())
        addFindBar(*grid, *column);
    m_size = m_size.expandedTo(QSize(minimumSizeHint().width(), 0));
    resize(m_size);
}

/// The form grows with it: the grid keeps its rows.
void OptionForm::addFindBar(GridControl& grid, QVBoxLayout& column)
{
    grid.setAccessibleDescription(windowTitle());
    connect(&grid, &GridControl::stored, this, &OptionForm::told);
    auto* const bar = new GridFindBar(grid, this);
    column.insertWidget(0, bar);
    m_size.rheight() += bar->sizeHint().height() + column.spacing();
}

void OptionForm::buildList()
{
    const ScreenButtons told = m_file.buttons();
    if (!told.next && !told.previous)
        return;
    const ScreenTable table = m_file.table();
    const store::RecordListSource source{table.table, table.firstIndex, m_editor->searchedField(1).name,
                                         textField()};
    m_list = new RecordList(m_database, source, this);
    m_size.rwidth() += m_list->handleWidth();
    connect(m_list, &RecordList::chosen, this, &OptionForm::goTo);
    connect(m_list, &RecordList::widened, this, [this](int pixels) { m_sideRoom.widen(pixels); });
    auto* const shortcut =
        new QShortcut(QKeySequence(u"Ctrl+L"_s), this, {}, {}, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, m_list, &RecordList::toggle);
}

/// The text by which users know a record: the first on the screen that is not its number.
QString OptionForm::textField() const
{
    const QString number = m_editor->searchedField(1).name;
    for (const BoundField& field : CSPict1->contents()) {
        QString name = field.dataField.trimmed();
        if (field.kind == ControlKind::Text && name.compare(number, Qt::CaseInsensitive) != 0)
            return name;
    }
    return {};
}

/// They grow to the usual width, or to what a narrow form has for them; the list of records may press them
/// together to their texts.
void OptionForm::fitButtons(const QVector<QPushButton*>& shown)
{
    const int count = static_cast<int>(shown.size());
    const int besides = 2 * ui::spacing::formMargin + (count - 1) * ui::spacing::controlGap;
    const int width =
        qBound(ui::scaled(narrowestButton), (m_size.width() - besides) / count, ui::scaled(ui::buttonWidth));
    for (QPushButton* const button : shown) {
        const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        button->setMinimumWidth(qMin(width, text + 2 * ui::spacing::controlGap));
        button->setMaximumWidth(width);
    }
    const int handle = m_list ? m_list->handleWidth() : 0;
    m_size.setWidth(qMax(m_size.width(), count * width + besides + handle));
}

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
    if (!m_editor->isAdding() && !isTouched() && m_editor->reread())
        showRecord();
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
    if (!m_boxes.ask(u"Are You Sure?"_s, u"Delete Record"_s, BoxIcon::Critical))
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
    if (m_editor->find(element, *searchText))
        return ShowFields();
    m_boxes.beep();
    m_boxes.message(u"No Record"_s, u"Search"_s, BoxIcon::Exclamation);
}

/// As a find by the first index; another screen may have deleted the record since the list was read.
void OptionForm::goTo(const QString& key)
{
    if (m_editor->find(1, key))
        ShowFields();
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
    Q_EMIT told(why);
    m_boxes.message(u"Invalid Data Entry"_s, u"Operation Error"_s, BoxIcon::Exclamation);
    grid.retryCell(index);
}

} // namespace norvane::screens
