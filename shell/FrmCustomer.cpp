// Controls and messages of the customer dialog; see FrmCustomer.h. The rules are in CustomerFolders.
#include "shell/FrmCustomer.h"

#include "shell/CustomerFolders.h"
#include "ui/Appearance.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvane::shell
{
namespace
{

constexpr int listWidth = 360;
constexpr int listHeight = 220;

} // namespace

FrmCustomer::FrmCustomer(ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), List1(new QListWidget(this)),
      text1(new QLineEdit(this)), CSCmdBtn1(new QPushButton(QStringLiteral("&Ok"), this))
{
    setObjectName(QStringLiteral("FrmCustomer"));
    setWindowTitle(QStringLiteral("Select Customer"));
    List1->setObjectName(QStringLiteral("List1"));
    text1->setObjectName(QStringLiteral("text1"));
    CSCmdBtn1->setObjectName(QStringLiteral("CSCmdBtn1"));
    for (QWidget* const control : std::initializer_list<QWidget*>{this, List1, text1, CSCmdBtn1})
        control->setAccessibleName(control->objectName());
    CSCmdBtn1->setDefault(true);
    layOut();

    connect(List1, &QListWidget::itemSelectionChanged, this, &FrmCustomer::copyChosenRow);
    // Going into the list with the keyboard makes a row the current one, which then is the one chosen.
    connect(List1, &QListWidget::currentItemChanged, this, [](QListWidgetItem* current) {
        if (current)
            current->setSelected(true);
    });
    connect(List1, &QListWidget::itemClicked, this, &FrmCustomer::copyChosenRow);
    connect(List1, &QListWidget::itemDoubleClicked, CSCmdBtn1, &QPushButton::click);
    connect(CSCmdBtn1, &QPushButton::clicked, this, &FrmCustomer::takeCustomer);
    List1->addItems(customerFolders(m_values.appPath));
    text1->setFocus();
}

void FrmCustomer::layOut()
{
    auto* const frame = new QGroupBox(QStringLiteral("Select / Create Customer"), this);
    auto* const label = new QLabel(QStringLiteral("Select Existing Customer"), frame);
    label->setBuddy(List1);
    List1->setMinimumSize(listWidth, listHeight);
    auto* const inFrame = new QVBoxLayout(frame);
    inFrame->setSpacing(ui::spacing::controlGap);
    inFrame->addWidget(label);
    inFrame->addWidget(List1);
    inFrame->addWidget(text1);

    CSCmdBtn1->setMinimumWidth(ui::buttonWidth);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(ui::spacing::formMargin, ui::spacing::formMargin, ui::spacing::formMargin,
                               ui::spacing::formMargin);
    column->setSpacing(ui::spacing::groupGap);
    column->addWidget(frame);
    column->addWidget(CSCmdBtn1, 0, Qt::AlignRight);
}

void FrmCustomer::copyChosenRow()
{
    if (const auto chosen = List1->selectedItems(); !chosen.isEmpty())
        text1->setText(chosen.first()->text());
}

void FrmCustomer::takeCustomer()
{
    switch (chooseCustomer(m_values, text1->text())) {
    case CustomerChoice::InvalidEntry:
        m_boxes.message(QStringLiteral("Invalid Entry"), {}, BoxIcon::Critical);
        break;
    case CustomerChoice::Failed:
        m_boxes.message(QStringLiteral("Error Creating Directory \rRe run software"),
                        QStringLiteral("System Error"), BoxIcon::Critical);
        break;
    case CustomerChoice::Taken:
        accept();
        break;
    case CustomerChoice::Created:
        accept();
        m_boxes.message(
            QStringLiteral("Your new database has been created please\rupload program from your cash "
                           "register.  \r"),
            QStringLiteral("Information "), BoxIcon::Information);
        break;
    }
}

void FrmCustomer::reject()
{
    if (m_boxes.ask(QStringLiteral("Are You Sure?"), QStringLiteral("Exit Program"), BoxIcon::Question))
        QDialog::reject();
}

} // namespace norvane::shell
