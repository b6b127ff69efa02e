// Controls of the window of safety copies; see CopiesDialog.h.
#include "shell/CopiesDialog.h"

#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/ShownTime.h"
#include "programme/CopyDifferences.h"
#include "shell/RestoreCopy.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/ScreenShare.h"
#include "ui/WaitPointer.h"

#include <QDirIterator>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr QSize copyListSize{520, 200};
constexpr QSize differencesSize{520, 120};
/// Of the height of a small screen, where large type would make both higher.
constexpr double listShare = 0.4;
constexpr double differencesShare = 0.25;

qint64 sizeOf(const customers::SafetyCopy& copy)
{
    qint64 bytes = 0;
    for (QDirIterator files(copy.path, QDir::Files | QDir::Hidden); files.hasNext();)
        bytes += files.nextFileInfo().size();
    return bytes;
}

} // namespace

CopiesDialog::CopiesDialog(const QString& appPath, const QString& customer, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_boxes(boxes), m_list(new QTreeWidget(this)), m_differences(new QPlainTextEdit(this))
{
    m_values.appPath = appPath;
    m_values.customerName = customer;
    m_values.customerPath = existingPath(joinPath(appPath, customer));
    ui::nameControl(*this, u"CopiesDialog"_s);
    setWindowTitle(u"%1 of %2"_s.arg(copiesTitle, customer));
    layOut();
    listCopies();
}

void CopiesDialog::layOut()
{
    ui::nameControl(*m_list, u"CopyList"_s, copiesTitle);
    ui::nameControl(*m_differences, u"CopyDifferences"_s);
    m_list->setHeaderLabels({u"Made"_s, u"Reason"_s, u"Size"_s});
    m_list->setRootIsDecorated(false);
    m_list->setMinimumSize(ui::scaledOnScreen(*this, copyListSize, listShare));
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_differences->setReadOnly(true);
    m_differences->setTabChangesFocus(true);
    m_differences->setFixedHeight(ui::scaledOnScreen(*this, differencesSize, differencesShare).height());
    auto* const label = new QLabel(u"What a restore would change:"_s, this);
    label->setBuddy(m_differences);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::controlGap);
    column->addWidget(m_list);
    column->addLayout(makeButtons());
    column->addWidget(label);
    column->addWidget(m_differences);
    connect(m_list, &QTreeWidget::currentItemChanged, m_differences, &QPlainTextEdit::clear);
}

QPushButton* CopiesDialog::addButton(const QString& name, const QString& caption,
                                     void (CopiesDialog::*pressed)())
{
    QPushButton* const button = ui::makeButton(name, caption, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

QLayout* CopiesDialog::makeButtons()
{
    QPushButton* const make = addButton(u"MakeCopy"_s, u"&Make a Copy"_s, &CopiesDialog::makeCopy);
    m_needCopy = {addButton(u"CompareCopy"_s, u"&Compare"_s, &CopiesDialog::showDifferences),
                  addButton(u"RestoreCopy"_s, u"&Restore..."_s, &CopiesDialog::restore)};
    QPushButton* const close = addButton(u"CloseButton"_s, u"Close"_s, &CopiesDialog::accept);
    return ui::makeButtonRow({close}, {make, m_needCopy[0], m_needCopy[1]});
}

void CopiesDialog::listCopies()
{
    m_list->clear();
    m_copies = customers::safetyCopies(m_values.customerPath);
    for (const auto& copy : m_copies) {
        auto* const line = new QTreeWidgetItem(
            m_list, {shownTime(copy.made), copy.reason, QLocale::c().formattedDataSize(sizeOf(copy))});
        line->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));
    for (QPushButton* const button : m_needCopy)
        button->setEnabled(!m_copies.isEmpty());
}

customers::SafetyCopy CopiesDialog::chosen() const
{
    return m_copies.value(m_list->indexOfTopLevelItem(m_list->currentItem()));
}

void CopiesDialog::showDifferences()
{
    const ui::WaitPointer pointer;
    try {
        const QStringList lines = programme::copyDifferences(m_values, chosen());
        m_differences->setPlainText(lines.isEmpty() ? u"Nothing"_s : lines.join(u'\n'));
    } catch (const RuntimeFailure& failure) {
        m_boxes.message(failure.text(), copiesTitle, BoxIcon::Critical);
    }
}

void CopiesDialog::restore()
{
    restoreAfterQuestion(m_values, chosen(), m_boxes);
    listCopies();
}

/// With the sales: nobody knows what the user is about to do.
void CopiesDialog::makeCopy()
{
    const auto lock = customers::RunLock::take(m_values, m_boxes);
    if (lock == nullptr)
        return;
    const ui::WaitPointer pointer;
    customers::LoggedWork work(m_values.customerPath, u"safety copy by hand"_s);
    try {
        (void)work.during([this] {
            return customers::makeSafetyCopy(m_values.customerPath, u"by hand"_s, store::CopyOf::Everything);
        });
        work.setResult(customers::completeResult);
    } catch (const RuntimeFailure& failure) {
        m_boxes.message(failure.text(), copiesTitle, BoxIcon::Critical);
    }
    listCopies();
}

} // namespace norvane::shell
