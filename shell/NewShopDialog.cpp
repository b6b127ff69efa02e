// Boxes for what a new customer takes over; see NewShopDialog.h.
#include "shell/NewShopDialog.h"

#include "customers/CustomerFolders.h"
#include "platform/RuntimeFailure.h"
#include "programme/ProgrammeParts.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FittingArea.h"
#include "ui/FormKit.h"
#include "ui/WaitPointer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// What is above and below the boxes, in device-independent pixels: names, notice and buttons.
constexpr int aroundChoices = 330;
constexpr int partColumns = 2;

const auto newCustomerTitle = u"New Customer"_s;

} // namespace

NewShopDialog::NewShopDialog(QString appPath, const QString& typed, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_appPath(std::move(appPath)), m_boxes(boxes), m_name(new QLineEdit(this)),
      m_like(new QComboBox(this)), m_notice(new QLabel(this))
{
    ui::nameControl(*this, u"NewShopDialog"_s);
    setWindowTitle(newCustomerTitle);
    listCustomers(typed);
    layOut();
    connect(m_like, &QComboBox::currentIndexChanged, this, &NewShopDialog::showNotice);
    tickAll(true);
}

QCheckBox* NewShopDialog::addBox(const QString& name, const QString& caption)
{
    auto* const box = new QCheckBox(caption, this);
    ui::nameControl(*box, name);
    connect(box, &QCheckBox::clicked, this, &NewShopDialog::showNotice);
    return box;
}

void NewShopDialog::layOut()
{
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addLayout(makeNames());
    column->addWidget(new ui::FittingArea(makeChoices(), aroundChoices));
    ui::nameControl(*m_notice, u"ModelNotice"_s);
    m_notice->setWordWrap(true);
    column->addWidget(m_notice);
    QPushButton* const all = ui::makeButton(u"SelectAll"_s, u"Select &All"_s, this);
    QPushButton* const none = ui::makeButton(u"SelectNone"_s, u"S&elect None"_s, this);
    connect(all, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { tickAll(false); });
    column->addLayout(ui::makeOkCancelRow(*this, {all, none}));
    for (QPushButton* const button : {all, none})
        button->setAutoDefault(false);
}

QLayout* NewShopDialog::makeNames()
{
    ui::nameControl(*m_name, u"NewName"_s);
    ui::nameControl(*m_like, u"LikeCustomer"_s);
    auto* const rows = new QFormLayout;
    rows->setSpacing(ui::spacing::controlGap);
    rows->addRow(u"&Name of the new customer"_s, m_name);
    rows->addRow(u"&Like"_s, m_like);
    return rows;
}

QGroupBox* NewShopDialog::makeChoices()
{
    auto* const frame = new QGroupBox(u"Take From It"_s, this);
    auto* const column = new QVBoxLayout(frame);
    column->setSpacing(ui::spacing::controlGap);
    m_settings = addBox(u"TakeSettings"_s, u"&Settings: model, registers, port, modem"_s);
    column->addWidget(m_settings);
    column->addLayout(makeParts());
    auto* const never = new QLabel(u"Sales, points of PLUs, the log, safety copies and the telephone number "
                                   "are not taken."_s);
    never->setWordWrap(true);
    column->addWidget(never);
    return frame;
}

/// The parts of the programme and the overlays, column by column.
QLayout* NewShopDialog::makeParts()
{
    for (const auto& part : programme::programmeParts())
        m_parts << addBox(u"Take_"_s + part.name, part.label);
    m_overlays = addBox(u"TakeOverlays"_s, u"Overlay &documents"_s);
    auto* const grid = new QGridLayout;
    grid->setSpacing(ui::spacing::controlGap);
    const QList boxes = m_parts + QList{m_overlays};
    const qsizetype rows = (boxes.size() + partColumns - 1) / partColumns;
    for (qsizetype i = 0; i < boxes.size(); ++i)
        grid->addWidget(boxes[i], static_cast<int>(i % rows), static_cast<int>(i / rows));
    return grid;
}

void NewShopDialog::tickAll(bool isTicked)
{
    for (QCheckBox* const box : QList{m_settings, m_overlays} + m_parts)
        box->setChecked(isTicked);
    showNotice();
}

/// What was typed is a customer of the list or the name of the new one.
void NewShopDialog::listCustomers(const QString& typed)
{
    const QStringList folders = customers::customerNames(m_appPath);
    const QStringList shown = customers::customerFolders(m_appPath);
    for (qsizetype i = 0; i < folders.size(); ++i)
        m_like->addItem(shown[i], QDir(m_appPath).filePath(folders[i]));
    const int place = m_like->findText(typed, Qt::MatchFixedString);
    if (place >= 0) {
        m_like->setCurrentIndex(place);
    } else {
        m_name->setText(typed);
    }
}

void NewShopDialog::showNotice()
{
    const QString notice = programme::modelNotice(shop());
    m_notice->setVisible(!notice.isEmpty());
    if (notice == m_notice->text())
        return;
    m_notice->setText(notice);
    ui::announce(*m_notice, notice);
}

programme::NewShop NewShopDialog::shop() const
{
    programme::NewShop shop;
    shop.appPath = m_appPath;
    shop.name = name();
    shop.likePath = m_like->currentData().toString();
    shop.takesSettings = m_settings->isChecked();
    shop.takesOverlays = m_overlays->isChecked();
    const auto parts = programme::programmeParts();
    for (qsizetype i = 0; i < m_parts.size(); ++i) {
        if (m_parts[i]->isChecked())
            shop.tables << programme::tablesOf(parts[static_cast<std::size_t>(i)]);
    }
    return shop;
}

QString NewShopDialog::name() const
{
    return m_name->text();
}

void NewShopDialog::make()
{
    const ui::WaitPointer wait;
    const auto taken = programme::makeNewShop(shop(), m_boxes);
    m_summary = u"%1 is a new customer. From %2 it has: %3."_s.arg(name(), m_like->currentText(),
                                                                   programme::inWords(taken));
    if (taken.lacksTelephone)
        m_summary += u"\r\r"_s + programme::telephoneNotice();
}

void NewShopDialog::accept()
{
    QString refusal;
    try {
        make();
        return QDialog::accept();
    } catch (const programme::NewShopError& error) {
        refusal = error.text();
    } catch (const RuntimeFailure& failure) {
        refusal = u"The customer was not made.\r\r"_s + failure.text();
    }
    if (!refusal.isEmpty())
        m_boxes.message(refusal, newCustomerTitle, BoxIcon::Critical);
    m_name->setFocus();
    m_name->selectAll();
}

} // namespace norvane::shell
