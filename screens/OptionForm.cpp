// The record editor's window, buttons and messages; see OptionForm.h.
#include "screens/OptionForm.h"

#include "paper/Length.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "screens/FieldPanel.h"
#include "screens/FrmSearch.h"
#include "screens/GridControl.h"
#include "screens/RecordEditor.h"
#include "screens/RegisterTexts.h"
#include "ui/Appearance.h"
#include "ui/NumberBox.h"
#include "ui/WaitPointer.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace norvane::screens
{
namespace
{

/// Size and caption of the form before a screen file says otherwise.
constexpr double designedWidth = 9000;
constexpr double designedHeight = 6600;
const QString& designedCaption()
{
    static const QString caption = QStringLiteral("Options");
    return caption;
}

/// Where the form is too narrow for buttons of the usual width, they become narrower, down to this.
constexpr int narrowestButton = 64;

/// The fixed buttons from left to right, those that move before those that change something.
struct ButtonRow {
    const char* name;
    const char* caption;
    bool (*shown)(const ScreenButtons&);
    bool beginsRightGroup = false;
};
constexpr std::array<ButtonRow, 7> buttonRows{{
    {"PreviousRecord", "Previous",
     [](const ScreenButtons& told) {
         return told.previous;
     }},
    {"NextRecord", "&Next",
     [](const ScreenButtons& told) {
         return told.next;
     }},
    {"AddRecord", "&Add ", [](const ScreenButtons& told) { return told.add; }, true},
    {"DeleteRecord", "&Delete",
     [](const ScreenButtons& told) {
         return told.remove;
     }},
    {"SaveRecord", "&Save",
     [](const ScreenButtons& told) {
         return told.save;
     }},
    {"PrintReport", "&Print",
     [](const ScreenButtons& told) {
         return told.print;
     }},
    {"ExitForm", "E&xit",
     [](const ScreenButtons&) {
         return true;
     }},
}};

} // namespace

OptionForm::OptionForm(ApplicationValues& values, Boxes& boxes, ReportRunner* reports, QWidget* parent)
    : QWidget(parent), m_values(values), m_boxes(boxes), m_reports(reports), m_file(values.screenFilePath),
      m_databasePath(values.databasePath)
{
    setObjectName(QStringLiteral("OptionForm"));
    setAccessibleName(objectName());
    openTable();
    buildWindow();
    buildControls();
    buildButtons();
    ShowFields();
    CSPict1->focusFirst();
}

OptionForm::~OptionForm() = default;

void OptionForm::openTable()
{
    const ScreenTable table = m_file.table();
    const auto tellMissing = [&](const char* what) {
        m_boxes.message(QStringLiteral("No %1 defined in %2 file").arg(QLatin1String(what), m_file.path()),
                        QStringLiteral("Initialisation Error"), BoxIcon::Critical);
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
    m_size = QSize(paper::screenPixels(paper::twips(window.width.value_or(designedWidth))),
                   paper::screenPixels(paper::twips(window.height.value_or(designedHeight))));
}

void OptionForm::buildControls()
{
    CSPict1 = new FieldPanel(m_database, this);
    const QString table = m_file.table().table;
    for (ControlDefinition& definition : m_file.controls()) {
        try {
            fitToRegister(definition, table, m_values);
            CSPict1->addControl(definition);
        } catch (const RuntimeFailure& failure) {
            throw RuntimeFailure(failure.failure(),
                                 QStringLiteral("%1 (%2, section [%3])")
                                     .arg(failure.text(), m_file.path(), definition.section));
        }
    }
    CSPict1->finish();
    connect(CSPict1, &FieldPanel::findPressed, this, &OptionForm::findRecord);
    connect(CSPict1, &FieldPanel::maximumExceeded, this, [this](ui::NumberBox* box) { rejectNumber(*box); });
    connect(CSPict1, &FieldPanel::gridDataError, this,
            [this](GridControl* grid, const QModelIndex& index) { rejectCell(*grid, index); });
}

void OptionForm::buildButtons()
{
    constexpr std::array actions{&OptionForm::previousRecord, &OptionForm::nextRecord,
                                 &OptionForm::addRecord,      &OptionForm::deleteRecord,
                                 &OptionForm::saveRecord,     &OptionForm::printReport};
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(ui::spacing::formMargin, 0, ui::spacing::formMargin, ui::spacing::controlGap);
    row->setSpacing(ui::spacing::controlGap);
    const ScreenButtons told = m_file.buttons();
    QVector<QPushButton*> shown;
    QWidget* before = CSPict1->tabOrder().isEmpty() ? nullptr : CSPict1->tabOrder().constLast();
    for (std::size_t place = 0; place < buttonRows.size(); ++place) {
        const ButtonRow& entry = buttonRows[place];
        auto* const button = new QPushButton(QLatin1String(entry.caption), this);
        button->setObjectName(QLatin1String(entry.name));
        button->setAccessibleName(button->objectName());
        // Enter presses the button that has the focus, and no other.
        button->setAutoDefault(true);
        if (place < actions.size()) {
            connect(button, &QPushButton::clicked, this, actions[place]);
        } else {
            connect(button, &QPushButton::clicked, this, &QWidget::close);
        }
        if (entry.beginsRightGroup)
            row->addStretch();
        row->addWidget(button);
        button->setVisible(entry.shown(told));
        if (entry.shown(told))
            shown += button;
        if (before)
            setTabOrder(before, button);
        before = button;
    }
    findChild<QPushButton*>(QStringLiteral("PrintReport"))->setEnabled(m_reports != nullptr);
    fitButtons(shown);

    auto* const line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(CSPict1, 1);
    column->addWidget(line);
    column->addLayout(row);
    m_size = m_size.expandedTo(QSize(minimumSizeHint().width(), 0));
    resize(m_size);
}

void OptionForm::fitButtons(const QVector<QPushButton*>& shown)
{
    const int count = static_cast<int>(shown.size());
    const int room = m_size.width() - 2 * ui::spacing::formMargin - (count - 1) * ui::spacing::controlGap;
    for (QPushButton* const button : shown)
        button->setFixedWidth(qBound(narrowestButton, room / count, ui::buttonWidth));
}

void OptionForm::ShowFields()
{
    BoundFields fields = CSPict1->contents();
    m_editor->showFields(fields);
    CSPict1->showContents(fields);
}

void OptionForm::addRecord()
{
    BoundFields fields = CSPict1->contents();
    m_editor->add(fields);
    CSPict1->showContents(fields);
    CSPict1->focusFirst();
}

void OptionForm::saveRecord()
{
    BoundFields fields = CSPict1->contents();
    const SaveOutcome outcome = m_editor->save(fields);
    CSPict1->showContents(fields);
    if (outcome == SaveOutcome::DuplicateKey) {
        m_boxes.message(QStringLiteral("This item code already exists!\rPlease try again"),
                        QStringLiteral("Data Error Code%1").arg(static_cast<int>(Failure::DuplicateKey)),
                        BoxIcon::Critical);
    }
}

void OptionForm::deleteRecord()
{
    if (!m_boxes.ask(QStringLiteral("Are You Sure?"), QStringLiteral("Delete Record"), BoxIcon::Critical))
        return;
    m_editor->deleteRecord();
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
    m_boxes.message(QStringLiteral("No More Records"), QStringLiteral("Searching..."), BoxIcon::Exclamation);
}

void OptionForm::findRecord(int element)
{
    m_values.searchText.clear();
    m_values.searchConfirmed = false;
    FrmSearch dialog(m_values, window());
    dialog.exec();
    if (!m_values.searchConfirmed)
        return;
    if (m_editor->find(element, m_values.searchText))
        return ShowFields();
    m_boxes.beep();
    m_boxes.message(QStringLiteral("No Record"), QStringLiteral("Search"), BoxIcon::Exclamation);
}

void OptionForm::printReport()
{
    const ui::WaitPointer wait;
    const ScreenReport report = m_file.report();
    m_reports->run(
        {joinPath(m_values.appPath, report.file.toUpper()), report.title.toUpper(), m_databasePath});
}

void OptionForm::rejectNumber(ui::NumberBox& box)
{
    box.setValue({});
    m_boxes.message(QStringLiteral("Maximum Value Exceeded"), QStringLiteral("Input Error"),
                    BoxIcon::Exclamation);
    box.setFocus();
    box.selectAll();
}

void OptionForm::rejectCell(GridControl& grid, const QModelIndex& index)
{
    m_boxes.message(QStringLiteral("Invalid Data Entry"), QStringLiteral("Operation Error"),
                    BoxIcon::Exclamation);
    grid.retryCell(index);
}

} // namespace norvane::screens
