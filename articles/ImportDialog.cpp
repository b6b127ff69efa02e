// Controls and work of the dialog; see ImportDialog.h.
#include "articles/ImportDialog.h"

#include "articles/ColumnChoices.h"
#include "articles/DifferenceList.h"
#include "articles/SheetImport.h"
#include "base/CustomerSettings.h"
#include "customers/RunLock.h"
#include "customers/SetupSettings.h"
#include "platform/RuntimeFailure.h"
#include "platform/ShownTime.h"
#include "reports/window/RunProgress.h"
#include "store/engine/ShortWait.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QVBoxLayout>

#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

constexpr QSize usualSize{980, 520};
constexpr double roomOfScreen = 0.94;
constexpr std::array columnPixels{72, 130, 130, 130};

struct KindEntry {
    QLatin1StringView word;
    std::optional<DifferenceKind> kind;
};
constexpr auto kindEntries = std::to_array<KindEntry>({
    {"All differences"_L1, {}},
    {"Mistakes"_L1, DifferenceKind::Mistake},
    {"Changed records"_L1, DifferenceKind::Changed},
    {"New records"_L1, DifferenceKind::New},
});

} // namespace

ImportDialog::ImportDialog(ImportOrder order, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_order(std::move(order)),
      m_file(m_order.values.databasePath, std::move(m_order.sheet), std::move(m_order.content)),
      m_boxes(boxes), m_list(new DifferenceList(this)), m_kinds(new QComboBox(this)),
      m_day(new QDateEdit(QDate::currentDate(), this)), m_state(new QLabel(this)),
      m_import(ui::makeButton(u"ImportButton"_s, u"&Import"_s, this))
{
    ui::nameControl(*this, u"ImportDialog"_s);
    setWindowTitle(u"Import %1"_s.arg(m_order.fileName));
    buildColumns();
    layOut();
    compare();
    (m_columns->hasNumber() ? static_cast<QWidget*>(m_view) : m_columns)->setFocus();
}

ImportDialog::~ImportDialog() = default;

void ImportDialog::buildColumns()
{
    const TableSheet& sheet = m_file.sheet();
    m_headings = headingsOf(m_file.content(), [&](const QString& heading) {
        return columnMeantBy(sheet, m_order.names, heading) != nullptr;
    });
    m_proposed = proposedMap(sheet, m_order.names, m_headings.headings);
    HeadingMemory::ofCustomer(m_order.values.customerPath).addTo(m_proposed, sheet, m_headings.headings);
    m_columns = new ColumnChoices(sheet, m_order.names, m_headings.headings, m_proposed, this);
    connect(m_columns, &ColumnChoices::changed, this, &ImportDialog::compare);
}

QTableView* ImportDialog::makeList()
{
    QTableView* const view = ui::makeListTable(u"Differences"_s, u"What the file changes"_s, m_list, this);
    view->horizontalHeader()->show();
    view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (std::size_t column = 0; column < columnPixels.size(); ++column)
        view->setColumnWidth(static_cast<int>(column), ui::scaled(columnPixels.at(column)));
    return view;
}

void ImportDialog::fillKinds()
{
    ui::nameControl(*m_kinds, u"DifferenceKinds"_s);
    for (const KindEntry& entry : kindEntries)
        m_kinds->addItem(entry.word);
    connect(m_kinds, &QComboBox::currentIndexChanged, this, &ImportDialog::showKind);
}

void ImportDialog::prepareDay()
{
    ui::nameControl(*m_day, u"StoreOn"_s);
    m_day->setDisplayFormat(shownDayFormat());
    m_day->setCalendarPopup(true);
    m_day->setMinimumDate(m_day->date());
    m_day->setKeyboardTracking(false);
    connect(m_day, &QDateEdit::dateChanged, this, &ImportDialog::chooseDay);
}

QHBoxLayout* ImportDialog::makeButtons()
{
    QPushButton* const close = ui::makeButton(u"CloseButton"_s, u"&Close"_s, this);
    connect(m_import, &QPushButton::clicked, this, &ImportDialog::importFile);
    connect(close, &QPushButton::clicked, this, &ImportDialog::reject);
    m_import->setAutoDefault(false);
    close->setAutoDefault(false);
    ui::nameControl(*m_state, u"State"_s);
    m_state->setWordWrap(true);
    QHBoxLayout* const row = ui::makeButtonRow({m_import, close});
    row->insertWidget(0, m_state, 1);
    return row;
}

void ImportDialog::layOut()
{
    m_view = makeList();
    fillKinds();
    prepareDay();
    auto* const columns = new QVBoxLayout;
    columns->addWidget(new QLabel(u"Columns of the file"_s, this));
    columns->addWidget(m_columns, 1);
    auto* const caption = new QLabel(u"&Show"_s, this);
    caption->setBuddy(m_kinds);
    auto* const kinds = new QHBoxLayout;
    kinds->addWidget(caption);
    kinds->addWidget(m_kinds);
    kinds->addStretch();
    auto* const day = new QLabel(u"S&tore on"_s, this);
    day->setBuddy(m_day);
    kinds->addWidget(day);
    kinds->addWidget(m_day);
    auto* const found = new QVBoxLayout;
    found->addLayout(kinds);
    found->addWidget(m_view, 1);
    auto* const content = new QHBoxLayout;
    content->setSpacing(ui::spacing::groupGap);
    content->addLayout(columns);
    content->addLayout(found, 1);
    constexpr int margin = ui::spacing::formMargin;
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(margin, margin, margin, margin);
    all->setSpacing(ui::spacing::groupGap);
    all->addLayout(content, 1);
    all->addLayout(makeButtons());
    resize(ui::scaled(usualSize).boundedTo(screen()->availableSize() * roomOfScreen));
}

bool ImportDialog::isPlanned() const
{
    return m_day->date() > m_day->minimumDate();
}

/// Earlier lists may change what the file would change.
void ImportDialog::chooseDay()
{
    const int width = registerModel(m_order.values).messageWidth;
    m_file.setDay(isPlanned() ? std::optional(StoreDay{m_day->date(), m_order.values.customerPath, width})
                              : std::nullopt);
    m_import->setText(isPlanned() ? u"&Plan"_s : u"&Import"_s);
    compare();
}

void ImportDialog::compare()
{
    m_import->setEnabled(false);
    m_list->clear();
    if (!m_headings.separator)
        return say(u"The file is empty."_s);
    if (!m_columns->hasNumber()) {
        return say(u"Choose which column of the file has the %1."_s.arg(
            nameOf(m_file.sheet().columns.front(), m_order.names)));
    }
    try {
        reports::RunProgress progress(*this, u"The file is compared with the records."_s, windowTitle());
        m_file.compare({m_headings.separator, headingsBy(m_columns->map())},
                       [&progress] { return progress.goOn(); });
    } catch (const RuntimeFailure& failure) {
        return say(u"The file was not compared. "_s + failure.text().simplified());
    }
    showFound();
}

/// The last column, with the reasons of mistakes, gets what the others leave.
void ImportDialog::fitColumns()
{
    for (std::size_t column = 0; column < columnPixels.size(); ++column) {
        const int place = static_cast<int>(column);
        m_view->resizeColumnToContents(place);
        m_view->setColumnWidth(place, qMin(m_view->columnWidth(place), ui::scaled(columnPixels.at(column))));
    }
}

void ImportDialog::showFound()
{
    m_list->list(m_file.comparison(), m_order.names);
    fitColumns();
    m_import->setEnabled(m_file.comparison().mistakes().isEmpty() && m_file.comparison().changeCount() > 0);
    say(findings());
}

QString ImportDialog::findings() const
{
    const SheetComparison& comparison = m_file.comparison();
    QStringList parts;
    if (const auto mistakes = comparison.mistakes().count(); mistakes > 0) {
        parts += u"Mistakes: %1. Nothing can be imported before they are mended."_s.arg(mistakes);
    } else if (comparison.changeCount() == 0) {
        parts += u"The file changes nothing: %1 unchanged."_s.arg(comparison.unchangedCount());
    } else {
        const QString next = isPlanned() ? u"Nothing is planned before you press Plan."_s
                                         : u"Nothing is stored before you press Import."_s;
        parts += u"%1, %2 unchanged. %3"_s.arg(changesInWords(comparison),
                                               QString::number(comparison.unchangedCount()), next);
    }
    if (m_list->isCut())
        parts += u"Not all lines are listed."_s;
    if (const QStringList leftOut = m_columns->leftOut(); !leftOut.isEmpty())
        parts += u"Not imported: %1."_s.arg(leftOut.join(u", "_s));
    return parts.join(u' ');
}

void ImportDialog::showKind()
{
    m_list->showOnly(kindEntries.at(static_cast<std::size_t>(m_kinds->currentIndex())).kind);
}

void ImportDialog::importFile()
{
    try {
        m_notice = imported();
    } catch (const RuntimeFailure& failure) {
        return compareAgain(failure.text());
    }
    if (m_notice.isEmpty())
        return;
    accept();
}

/// Columns are remembered also when the user closes the dialog to mend mistakes in the file.
void ImportDialog::done(int result)
{
    HeadingMap chosen = m_columns->map();
    erase_if(chosen, [this](const auto& entry) { return m_proposed.value(entry.key()) == entry.value(); });
    if (m_columns->hasNumber())
        HeadingMemory::ofCustomer(m_order.values.customerPath).keep(chosen, m_file.sheet());
    QDialog::done(result);
}

/// @return what was imported or planned; empty after a message if another run uses the customer or no
/// copy can be made.
QString ImportDialog::imported()
{
    const auto lock = customers::RunLock::take(m_order.values, m_boxes);
    if (lock == nullptr)
        return {};
    const store::ShortWait wait(m_file.database());
    reports::RunProgress progress(*this, u"The file is imported."_s, windowTitle());
    const auto goOn = [&progress] {
        return progress.goOn();
    };
    bool isStillTrue = false;
    const auto compare = [&]() -> ComparedSheet& {
        isStillTrue = m_file.isStillTrue(goOn);
        return m_file;
    };
    const auto review = [&isStillTrue](const SheetComparison& /*comparison*/) {
        if (!isStillTrue) {
            throw RuntimeFailure(Failure::RecordDeleted,
                                 u"Records were changed after the file was compared."_s);
        }
    };
    const ImportPlace place{m_order.values, m_file.sheet(), m_boxes, m_order.history.get()};
    if (isPlanned()) {
        const QString model = customers::modelInWords(registerModel(m_order.values));
        return u"Planned: %1. \"Planned Changes...\" in the menu More shows it"_s.arg(
            planSheet(place, {compare, review}, {m_day->date(), model, m_order.fileName}));
    }
    const auto result = importSheet(place, {compare, review}, goOn);
    return result ? u"Imported %1: %2. Ctrl+Z undoes it"_s.arg(m_order.fileName, *result) : QString();
}

void ImportDialog::compareAgain(const QString& why)
{
    compare();
    m_boxes.message(u"Nothing was %2. %1\r\rThe list shows what the file would change now."_s.arg(
                        why, isPlanned() ? u"planned"_s : u"imported"_s),
                    u"Import"_s, BoxIcon::Exclamation);
}

void ImportDialog::say(const QString& text)
{
    m_state->setText(text);
    ui::announce(*m_state, text);
}

} // namespace norvane::articles
