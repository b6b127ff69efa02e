// Changes in the cells: entering many, taking them back, storing them; see TableWindow.h.
#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "register/RegisterModel.h"
#include "screens/SaveNotices.h"
#include "screens/table/PastedBlock.h"
#include "screens/table/SetFieldDialog.h"
#include "screens/table/TableDelete.h"
#include "screens/table/TableGrid.h"
#include "screens/table/TableModel.h"
#include "screens/table/TableSave.h"
#include "screens/table/TableWindow.h"
#include "ui/WaitPointer.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Lines that a box shows at most.
constexpr qsizetype mostLines = 12;
/// Changes that are kept for taking back, in all states of the list together.
constexpr std::size_t mostEarlier = 100'000;

} // namespace

void TableWindow::rememberEdits()
{
    const PendingEdits& edits = m_model->edits();
    setWindowModified(!edits.isEmpty());
    if (edits.isEmpty())
        m_earlier.clear();
    m_earlier.push_back(edits);
    while (m_earlier.size() > 2 && m_earlier.size() * static_cast<std::size_t>(edits.size()) > mostEarlier)
        m_earlier.erase(m_earlier.begin());
}

bool TableWindow::takeBackLatest()
{
    if (!hasEdits())
        return false;
    if (m_earlier.size() < 2) {
        Q_EMIT noticeChanged(u"Choose other changes in the list below, and press Take Back"_s);
        return true;
    }
    m_earlier.pop_back();
    PendingEdits before = std::move(m_earlier.back());
    m_earlier.pop_back();
    m_model->changeEdits([&before](PendingEdits& edits) { edits = std::move(before); });
    Q_EMIT noticeChanged(u"The latest change was taken back"_s);
    return true;
}

TableInUse TableWindow::inUse() const
{
    ApplicationValues values = m_values;
    values.databasePath = m_databasePath;
    const auto key = std::ranges::find_if(source().columns, &TableColumn::isKey);
    const QString record = recordName(m_caption, key == source().columns.end() ? QString() : key->label);
    return {source(), m_caption, record, values, m_history.get()};
}

void TableWindow::deleteChosen()
{
    const QStringList keys = chosenKeys();
    if (keys.isEmpty())
        return Q_EMIT noticeChanged(u"Choose records first"_s);
    if (hasEdits())
        return Q_EMIT noticeChanged(u"Save your changes first, or take them back"_s);
    const int keysPerLevel = keysOfLevel(registerModelByText(m_values).family);
    const QString notice = deleteRecords(*m_database, inUse(), keys, keysPerLevel, m_boxes);
    chooseAgain([this] { m_model->reload(); });
    Q_EMIT noticeChanged(notice);
}

/// A save that stores nothing keeps the list.
void TableWindow::save()
{
    const ui::WaitPointer wait;
    QString notice;
    m_model->changeEdits(
        [&](PendingEdits& edits) { notice = saveEdits(*m_database, inUse(), edits, m_boxes); });
    chooseAgain([this] { m_model->reload(); });
    Q_EMIT noticeChanged(notice);
    if (m_model->edits().isEmpty())
        Q_EMIT stored();
}

bool TableWindow::mayPaste(const QStringList& refusals, std::size_t taken)
{
    if (refusals.isEmpty())
        return true;
    QStringList lines = refusals.first(qMin(mostLines, refusals.size()));
    if (refusals.size() > mostLines)
        lines += u"and %1 more"_s.arg(refusals.size() - mostLines);
    const QString refused = u"These cells cannot be pasted:\r\r"_s + lines.join(u'\r');
    if (taken > 0)
        return askBeforeLoss(m_boxes, refused + u"\r\rPaste the other %1?"_s.arg(taken));
    m_boxes.message(refused, pleaseCheck, BoxIcon::Exclamation);
    return false;
}

/// A single cell goes into all chosen cells.
void TableWindow::paste()
{
    const QVector<QStringList> cells = cellsOfText(QGuiApplication::clipboard()->text());
    const bool isSingle = cells.size() == 1 && cells.first().size() == 1;
    PasteTarget target{isSingle ? m_view->chosenRows() : m_view->rowsFromChoice(),
                       m_view->columnsFromChoice()};
    const auto rows = isSingle ? static_cast<qsizetype>(target.rows.size()) : 1;
    PastePlan plan =
        planPaste(*m_model, target, isSingle ? QVector<QStringList>(rows, cells.first()) : cells);
    if (!mayPaste(plan.refusals, plan.edits.size()) || plan.edits.empty())
        return Q_EMIT noticeChanged(u"Nothing was pasted"_s);
    const auto pasted = plan.edits.size();
    m_model->changeEdits([&](PendingEdits& edits) { edits.add(std::move(plan.edits)); });
    Q_EMIT noticeChanged(u"Pasted %1 cells. Press Save Changes to store them"_s.arg(pasted));
}

/// In the chosen records, or in all that are shown if not more than one is chosen.
void TableWindow::setField()
{
    std::vector<int> rows = m_view->chosenRows();
    const bool areChosen = rows.size() > 1;
    if (!areChosen)
        rows = allRows();
    if (rows.empty())
        return refuse(u"No record is shown that could be changed"_s);
    const QString scope =
        (areChosen ? u"the %1 chosen records"_s : u"all %1 records that are shown"_s).arg(rows.size());
    SetFieldDialog dialog(*m_model, std::move(rows), m_view->currentIndex().column(), scope, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    auto edits = dialog.takeEdits();
    const auto count = edits.size();
    m_model->changeEdits([&](PendingEdits& all) { all.add(std::move(edits)); });
    Q_EMIT noticeChanged(u"Changed %1 records. Press Save Changes to store them"_s.arg(count));
}

bool TableWindow::settleEdits()
{
    if (!hasEdits())
        return true;
    const QString question = u"Changes in the table of %1 are not saved."_s.arg(m_caption);
    const UnsavedAnswer answer = m_boxes.askToSave(question, u"Unsaved Changes"_s);
    if (answer == UnsavedAnswer::Save)
        save();
    if (answer == UnsavedAnswer::Discard)
        m_model->changeEdits([](PendingEdits& edits) { edits.clear(); });
    return !hasEdits();
}

void TableWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(settleEdits());
}

} // namespace norvane::screens
