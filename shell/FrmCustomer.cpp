// Controls and messages of the customer dialog; see FrmCustomer.h. CustomerFolders has the rules.
#include "shell/FrmCustomer.h"

#include "customers/CustomerFolders.h"
#include "shell/ConversionBox.h"
#include "shell/CopiesDialog.h"
#include "shell/CopyMenu.h"
#include "shell/NewShopDialog.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr QSize listSize{360, 220};

} // namespace

FrmCustomer::FrmCustomer(ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_values(values), m_before(values), m_boxes(boxes), List1(new QListWidget(this)),
      text1(new QLineEdit(this)), CSCmdBtn1(ui::makeButton(u"CSCmdBtn1"_s, u"&Ok"_s, this))
{
    ui::nameControl(*this, u"FrmCustomer"_s);
    ui::nameControl(*List1, u"List1"_s, u"Select Existing Customer"_s);
    ui::nameControl(*text1, u"text1"_s, u"Customer to open, or to create"_s);
    setWindowTitle(u"Select Customer"_s);
    List1->addItems(customers::customerFolders(m_values.appPath));
    layOut();
    connectList();
    text1->setFocus();
}

void FrmCustomer::layOut()
{
    CSCmdBtn1->setDefault(true);
    connect(CSCmdBtn1, &QPushButton::clicked, this, &FrmCustomer::takeCustomer);
    auto* const column = new QVBoxLayout(this);
    constexpr int margin = ui::spacing::formMargin;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(ui::spacing::groupGap);
    column->addWidget(makeFrame());
    column->addLayout(makeButtons());
}

QLayout* FrmCustomer::makeButtons()
{
    auto* const CmdNewLike = ui::makeButton(u"CmdNewLike"_s, u"New Customer &Like..."_s, this);
    CmdNewLike->setAutoDefault(false);
    CmdNewLike->setEnabled(List1->count() > 0);
    connect(CmdNewLike, &QPushButton::clicked, this, &FrmCustomer::makeLikeAnother);
    auto* const CmdCopies = ui::makeButton(u"CmdCopies"_s, u"Safety &Copies..."_s, this);
    CmdCopies->setAutoDefault(false);
    CmdCopies->setEnabled(false);
    connect(CmdCopies, &QPushButton::clicked, this, &FrmCustomer::showCopiesOfChosen);
    connect(List1, &QListWidget::itemSelectionChanged, CmdCopies,
            [this, CmdCopies] { CmdCopies->setEnabled(!List1->selectedItems().isEmpty()); });
    return ui::makeButtonRow({CSCmdBtn1}, {CmdNewLike, CmdCopies});
}

QGroupBox* FrmCustomer::makeFrame()
{
    auto* const frame = new QGroupBox(u"Select / Create Customer"_s, this);
    auto* const label = new QLabel(u"Select Existing Customer"_s, frame);
    label->setBuddy(List1);
    List1->setMinimumSize(ui::scaled(listSize));
    auto* const column = new QVBoxLayout(frame);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(label);
    column->addWidget(List1);
    column->addWidget(text1);
    return frame;
}

void FrmCustomer::connectList()
{
    connect(List1, &QListWidget::itemSelectionChanged, this, &FrmCustomer::copyChosenRow);
    // Tab into the list makes a row the current one without selecting it.
    connect(List1, &QListWidget::currentItemChanged, this, [](QListWidgetItem* current) {
        if (current)
            current->setSelected(true);
    });
    connect(List1, &QListWidget::itemClicked, this, &FrmCustomer::copyChosenRow);
    connect(List1, &QListWidget::itemDoubleClicked, CSCmdBtn1, &QPushButton::click);
    List1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(List1, &QListWidget::customContextMenuRequested, this, &FrmCustomer::showCopies);
}

void FrmCustomer::copyChosenRow()
{
    if (const auto chosen = List1->selectedItems(); !chosen.isEmpty())
        text1->setText(chosen.first()->text());
}

void FrmCustomer::showCopies(QPoint place)
{
    const QListWidgetItem* const line = List1->itemAt(place);
    if (line == nullptr)
        return;
    auto* const menu = new CopyMenu(m_values.appPath, line->text(), m_boxes, this);
    menu->popup(List1->viewport()->mapToGlobal(place));
}

void FrmCustomer::showCopiesOfChosen()
{
    if (const auto chosen = List1->selectedItems(); !chosen.isEmpty())
        CopiesDialog(m_values.appPath, chosen.first()->text(), m_boxes, this).exec();
}

void FrmCustomer::takeCustomer()
{
    switch (customers::chooseCustomer(m_values, text1->text())) {
    case customers::CustomerChoice::InvalidEntry:
        m_boxes.message(u"Invalid Entry"_s, {}, BoxIcon::Critical);
        return;
    case customers::CustomerChoice::Failed:
        m_boxes.message(u"Error Creating Directory \rRe run software"_s, u"System Error"_s,
                        BoxIcon::Critical);
        return;
    case customers::CustomerChoice::Damaged:
        m_boxes.message(customers::damageReport(m_values.customerPath), u"Damaged Database"_s,
                        BoxIcon::Critical);
        return;
    case customers::CustomerChoice::Former:
        if (convertAfterQuestion(m_values.customerPath, m_values.appPath, m_boxes, this))
            takeCustomer();
        return;
    case customers::CustomerChoice::Taken:
        return accept();
    case customers::CustomerChoice::Created:
        return welcomeNewCustomer();
    case customers::CustomerChoice::NewSettings:
        accept();
        m_boxes.message(customers::newSettingsReport(), u"Settings Missing"_s, BoxIcon::Exclamation);
        return;
    }
}

void FrmCustomer::welcomeNewCustomer()
{
    accept();
    m_boxes.message(
        u"Your new database has been created please\rupload program from your cash register.  \r"_s,
        u"Information "_s, BoxIcon::Information);
}

/// The new customer is taken as if its name had been typed. It has a programme already, so there is nothing
/// to upload.
void FrmCustomer::makeLikeAnother()
{
    NewShopDialog dialog(m_values.appPath, text1->text(), m_boxes, this);
    if (dialog.exec() != Accepted)
        return;
    text1->setText(dialog.name());
    takeCustomer();
    if (!isVisible()) {
        m_boxes.message(
            dialog.summary() +
                u"\r\rCheck the setup and what only one shop has, such as its address in the "
                "messages. Then download the programme to the cash registers, without PLU Stock and "
                "other files that the new customer does not have."_s,
            u"Information"_s, BoxIcon::Information);
    }
}

/// A name that was refused has set the customer's name already.
void FrmCustomer::reject()
{
    if (m_before.databasePath.isEmpty())
        return endProgram();
    m_values = m_before;
    done(Returned);
}

void FrmCustomer::endProgram()
{
    if (m_boxes.ask(u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question, BoxAnswer::No))
        done(Rejected);
}

void FrmCustomer::closeEvent(QCloseEvent* event)
{
    endProgram();
    event->setAccepted(!isVisible());
}

} // namespace norvane::shell
