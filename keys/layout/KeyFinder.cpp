// See KeyFinder.h.
#include "keys/layout/KeyFinder.h"

#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"
#include "ui/KeptInFront.h"
#include "ui/ScreenShare.h"
#include "ui/WaitPointer.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

struct FilterRow {
    KeyFilter filter;
    QLatin1StringView caption;
};

constexpr FilterRow filterRows[] = {
    {KeyFilter::Programmed, "All programmed keys"_L1},
    {KeyFilter::Missing, "Keys that point at nothing"_L1},
    {KeyFilter::Repeated, "Same article twice"_L1},
    {KeyFilter::OnNoKey, "On no key"_L1},
};

constexpr QSize finderSize(430, 380);
/// The longest place that a hit can have.
constexpr QLatin1StringView longestPlace{"Level 5 key 169"};

} // namespace

KeyFinder::KeyFinder(const KeyLevel& level, std::shared_ptr<store::Database> database, QWidget* parent)
    : QDialog(parent), m_level(level), m_database(std::move(database)), m_hits(new KeyHitList(this)),
      m_text(new ui::FilterBox(u"FindText"_s, this)), m_filter(new QComboBox(this)),
      m_list(ui::makeListTable(u"FindHits"_s, u"Keys found"_s, m_hits, this)), m_count(new QLabel(this)),
      m_open(ui::makeButton(u"OpenFound"_s, u"&Open Item"_s, this))
{
    setObjectName(u"KeyFinder"_s);
    setWindowTitle(u"Find Keys"_s);
    ui::nameControl(*m_filter, u"FindFilter"_s, u"Show"_s);
    ui::nameControl(*m_count, u"FindCount"_s);
    for (const FilterRow& row : filterRows)
        m_filter->addItem(row.caption, static_cast<int>(row.filter));
    m_count->setWordWrap(true);
    m_open->setToolTip(u"Opens the function key, article or look-up (Ctrl+Enter)"_s);
    ui::fitFirstColumn(*m_list, longestPlace);
    layOut();
    connectControls();
    new ui::KeptInFront(*this);
    refresh();
}

void KeyFinder::layOut()
{
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(m_text);
    column->addWidget(m_filter);
    column->addWidget(m_list, 1);
    column->addWidget(m_count);
    QPushButton* const leave = ui::makeButton(u"CloseFind"_s, u"&Close"_s, this);
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);
    for (QPushButton* const button : {m_open, leave})
        button->setAutoDefault(false); // Enter belongs to the list
    column->addLayout(ui::makeButtonRow({leave}, {m_open}));
    m_text->setList(m_list);
    resize(ui::scaledOnScreen(*this, finderSize));
}

void KeyFinder::connectControls()
{
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString& part) {
        m_hits->setPart(part.trimmed());
        chooseFirst();
    });
    connect(m_text, &QLineEdit::returnPressed, this, [this] { goTo(m_list->currentIndex()); });
    connect(m_filter, &QComboBox::currentIndexChanged, this, &KeyFinder::refresh);
    connect(m_list, &QTableView::clicked, this, &KeyFinder::goTo);
    connect(m_list, &QTableView::activated, this, &KeyFinder::goTo);
    connect(m_list, &QTableView::doubleClicked, this, &KeyFinder::openItem);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { m_open->setEnabled(canOpen()); });
    connect(m_open, &QPushButton::clicked, this, &KeyFinder::openItem);
    auto* const byKeys = new QAction(this);
    byKeys->setShortcuts(QKeySequence::listFromString(u"Ctrl+Return; Ctrl+Enter"_s));
    connect(byKeys, &QAction::triggered, this, &KeyFinder::openItem);
    addAction(byKeys);
}

void KeyFinder::openToType()
{
    if (!isVisible()) {
        show();
        placeBeside();
        refresh();
    }
    activateWindow();
    m_text->setFocus();
    m_text->selectAll();
}

/// Over the lists, not over the keys.
void KeyFinder::placeBeside()
{
    const QRect room = ui::roomOnScreen(*this);
    const QRect editor = parentWidget()->window()->geometry();
    const QPoint corner = editor.bottomRight() - QPoint(width(), height());
    move(qBound(room.left(), corner.x(), room.right() - width()),
         qBound(room.top(), corner.y(), room.bottom() - height()));
}

void KeyFinder::refresh()
{
    const ui::WaitPointer wait;
    const QModelIndex current = m_list->currentIndex();
    const auto kept = current.isValid() ? m_hits->hit(current.row()).key : std::nullopt;
    const KeyboardKeys keyboard = keysOfAllLevels(m_level, m_database);
    m_failures = keyboard.failures;
    m_hits->setHits(
        searchKeys(keyboard, static_cast<KeyFilter>(m_filter->currentData().toInt()), *m_database));
    chooseFirst();
    if (const int row = kept ? m_hits->rowOf(kept->place) : -1; row >= 0)
        m_list->selectRow(row);
}

void KeyFinder::chooseFirst()
{
    if (m_hits->rowCount() > 0)
        m_list->selectRow(0);
    m_open->setEnabled(canOpen());
    showCount();
}

void KeyFinder::showCount()
{
    QStringList lines = m_failures;
    lines.prepend(u"%1 found"_s.arg(m_hits->rowCount()));
    m_count->setText(lines.join(u'\n'));
}

void KeyFinder::goTo(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    // The search is repeated on the way: the hit is gone by then.
    const std::optional<PlacedKey> key = m_hits->hit(index.row()).key;
    if (key)
        Q_EMIT placeWanted(key->place, key->cell);
}

/// An item that does not exist has no record; the first one would be shown in its place.
bool KeyFinder::canOpen() const
{
    const QModelIndex index = m_list->currentIndex();
    if (!index.isValid())
        return false;
    const std::optional<PlacedKey>& key = m_hits->hit(index.row()).key;
    return !key || key->key.state != KeyState::Missing;
}

void KeyFinder::openItem()
{
    if (!canOpen())
        return;
    const KeyHit hit = m_hits->hit(m_list->currentIndex().row());
    Q_EMIT itemWanted(hit.kind, hit.number);
}

} // namespace norvane::keys
