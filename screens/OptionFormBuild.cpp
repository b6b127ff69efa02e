// How a screen builds itself from its file: controls, list, buttons; see OptionForm.h.
#include "paper/Length.h"
#include "platform/FailurePlace.h"
#include "screens/FieldPanel.h"
#include "screens/GridControl.h"
#include "screens/GridFindBar.h"
#include "screens/OptionForm.h"
#include "screens/RecordList.h"
#include "screens/RegisterRules.h"
#include "screens/SaveNotices.h"
#include "screens/ToolMenu.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

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

/// In a narrow form the buttons shrink down to this width.
constexpr int narrowestButton = 64;

} // namespace

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
    setWindowTitle((window.name.isEmpty() ? designedCaption() : window.name) + titleStar);
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
    CSPict1->finish(m_editor->searchedField(1).name);
    m_typed.emplace(*CSPict1);
    connect(CSPict1, &FieldPanel::edited, this, &OptionForm::showStar);
    connect(CSPict1, &FieldPanel::findPressed, this,
            [this](int element) { attempt([&] { findRecord(element); }); });
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

void OptionForm::buildButtons(const ScreenTools& tools)
{
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(ui::spacing::formMargin, 0, ui::spacing::formMargin, ui::spacing::controlGap);
    row->setSpacing(ui::spacing::controlGap);
    const ScreenButtons wanted = m_file.buttons();
    QVector<QPushButton*> shown;
    for (const ButtonRow& entry : buttonRows()) {
        QPushButton* const button = addButton(entry, *row);
        const bool isShown = entry.shown == nullptr || wanted.*entry.shown;
        button->setVisible(isShown);
        if (isShown)
            shown += button;
    }
    if (QPushButton* const more = addToolsButton(tools, *row))
        shown += more;
    findChild<QPushButton*>(u"PrintReport"_s)->setEnabled(m_reports != nullptr);
    fitButtons(shown);
    layOut(row);
}

QPushButton* OptionForm::addButton(const ButtonRow& entry, QHBoxLayout& row)
{
    QPushButton* const button = ui::makeButton(QLatin1String(entry.name), QLatin1String(entry.caption), this);
    // Enter presses the button that has the focus, and no other.
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this,
            [this, act = entry.pressed] { attempt([&] { (this->*act)(); }); });
    if (entry.beginsRightGroup)
        row.addStretch();
    row.addWidget(button, 1);
    return button;
}

/// @return nullptr if none of @p tools is for this screen.
QPushButton* OptionForm::addToolsButton(const ScreenTools& tools, QHBoxLayout& row)
{
    ScreenTools shown;
    std::ranges::copy_if(tools, std::back_inserter(shown),
                         [this](const ScreenTool& tool) { return !tool.forManyRecords || m_list; });
    QPushButton* const button = makeMoreButton(shown, *this);
    if (button != nullptr)
        row.insertWidget(row.count() - 1, button, 1);
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
    if (m_uses)
        addUsesRow(*column);
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
    grid.setAccessibleName(caption());
    connect(&grid, &GridControl::stored, this, &OptionForm::noticeChanged);
    grid.setRecorder([this](const QString& record, const std::function<void()>& store) {
        auto work = recordWork();
        work.setName(recordSaved(record));
        store();
    });
    auto* const bar = new GridFindBar(grid, this);
    column.insertWidget(0, bar);
    m_size.rheight() += bar->sizeHint().height() + column.spacing();
}

void OptionForm::buildList()
{
    const ScreenButtons wanted = m_file.buttons();
    if (!wanted.next && !wanted.previous)
        return;
    const ScreenTable table = m_file.table();
    const ui::RecordListSource source{table.table, table.firstIndex, m_editor->searchedField(1).name,
                                      textField()};
    m_list = new RecordList(m_database, source, this);
    m_size.rwidth() += m_list->handleWidth();
    connect(m_list, &RecordList::chosen, this, [this](const QString& key) { attempt([&] { goTo(key); }); });
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

/// They grow to the usual width, or to what a narrow form has for them; the list of records may shrink them
/// to their texts.
void OptionForm::fitButtons(const QVector<QPushButton*>& shown)
{
    const int count = static_cast<int>(shown.size());
    const int besides = 2 * ui::spacing::formMargin + (count - 1) * ui::spacing::controlGap;
    const int width =
        qBound(ui::scaled(narrowestButton), (m_size.width() - besides) / count, ui::scaled(ui::buttonWidth));
    for (QPushButton* const button : shown) {
        const int arrow = button->menu() ? style()->pixelMetric(QStyle::PM_MenuButtonIndicator) : 0;
        const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + arrow;
        button->setMinimumWidth(qMin(width, text + 2 * ui::spacing::controlGap));
        button->setMaximumWidth(width);
    }
    const int handle = m_list ? m_list->handleWidth() : 0;
    m_size.setWidth(qMax(m_size.width(), count * width + besides + handle));
}

} // namespace norvane::screens
