// See LevelTools.h.
#include "keys/layout/LevelTools.h"

#include "keys/layout/CompareLevels.h"
#include "keys/layout/KeyFinder.h"
#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyWords.h"
#include "keys/layout/LevelRow.h"
#include "keys/layout/MapPreview.h"
#include "paper/DefaultPrinter.h"
#include "platform/FailureBox.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{

/// A menu entry; without a name a separator.
struct LevelTools::Entry {
    const char* name = "";
    const char* caption = "";
    const char* keys = "";
    Handler handler = nullptr;
};

LevelTools::LevelTools(const LevelGround& ground)
    : QObject(&ground.form), m_ground(ground),
      m_exchange(ground.level, ground.editor, ground.database, ground.values, ground.boxes, ground.form),
      m_button(makeFormButton(u"MoreButton"_s, u"&More"_s, &ground.form))
{
    m_button->setMenu(new QMenu(m_button));
    m_button->menu()->setObjectName(u"MoreMenu"_s);
    addActions();
    connect(&ground.grid, &QTableView::doubleClicked, this, &LevelTools::openItem);
}

/// The entries of a key are in the context menu of the keys, too. Ctrl+F belongs to the form and is only
/// named.
void LevelTools::addActions()
{
    static constexpr Entry entries[] = {
        {"OpenItem", "&Open Item of Key", "Ctrl+Return; Ctrl+Enter", &LevelTools::openItem},
        {},
        {"FindKeys", "&Find on All Levels...\tCtrl+F", "", &LevelTools::find},
        {"CompareLevels", "&Compare Levels...", "Ctrl+L", &LevelTools::compareLevels},
        {},
        {"ExportLevel", "&Export Level...", "", &LevelTools::exportLevel},
        {"ImportLevelFile", "&Import Level...", "", &LevelTools::importLevel},
        {},
        {"ShowMap", "&Map on Paper...", "Ctrl+P", &LevelTools::showMap},
    };
    for (const Entry& entry : entries) {
        auto* const action = new QAction(QLatin1StringView(entry.caption), this);
        m_button->menu()->addAction(action);
        if (entry.handler == nullptr) {
            action->setSeparator(true);
            continue;
        }
        action->setObjectName(QLatin1StringView(entry.name));
        action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(entry.keys)));
        m_ground.form.addAction(action);
        connect(action, &QAction::triggered, this, entry.handler);
    }
    m_ground.grid.addAction(findChild<QAction*>(u"OpenItem"_s));
}

void LevelTools::levelChanged()
{
    if (m_finder != nullptr && m_finder->isVisible())
        m_finder->refresh();
}

void LevelTools::find()
{
    if (m_finder == nullptr) {
        m_finder = new KeyFinder(m_ground.level, m_ground.database, &m_ground.form);
        connect(m_finder, &KeyFinder::placeWanted, this, &LevelTools::placeWanted);
        connect(m_finder, &KeyFinder::itemWanted, this, &LevelTools::openFound);
    }
    m_finder->openToType();
}

void LevelTools::openFound(ItemKind kind, const QString& number)
{
    m_isFound = true;
    Q_EMIT itemWanted(kind, number);
}

/// The list of hits has the focus again if the item was opened from there.
void LevelTools::itemClosed()
{
    if (std::exchange(m_isFound, false) && m_finder->isVisible())
        m_finder->activateWindow();
}

/// An item that does not exist has no record.
void LevelTools::openItem()
{
    const Key& key = m_ground.level.key(m_ground.grid.currentCell());
    if (key.function.isEmpty() || key.state == KeyState::Missing || key.state == KeyState::Fixed) {
        Q_EMIT noticed(u"This key has no item to open"_s);
        m_ground.boxes.beep();
    } else {
        Q_EMIT itemWanted(kindOf(key.function), shownItemNumber(key));
    }
}

void LevelTools::compareLevels()
{
    openOrTell(m_ground.boxes, [this] {
        CompareLevels dialog(m_ground.level, m_ground.database, m_ground.boxes, &m_ground.form);
        if (dialog.exec() == QDialog::Accepted)
            Q_EMIT placeWanted(dialog.wantedPlace(), dialog.wantedCell());
    });
}

void LevelTools::exportLevel()
{
    Q_EMIT noticed(m_exchange.exportLevel());
}

void LevelTools::importLevel()
{
    const QString outcome = m_exchange.importLevel();
    if (!outcome.isEmpty())
        Q_EMIT changed();
    Q_EMIT noticed(outcome);
}

void LevelTools::showMap()
{
    LevelMap map(m_ground.level, m_ground.values.customerName, QDateTime::currentDateTime());
    MapPreview(std::move(map), m_ground.boxes, paper::defaultPrinter, &m_ground.form).exec();
}

} // namespace norvane::keys
