// Controls and buttons of the function key editor; see FrmFunctKey.h.
#include "keys/functions/FrmFunctKey.h"

#include "base/CustomerSettings.h"
#include "keys/functions/OptionColumns.h"
#include "keys/ItemUsesButton.h"
#include "keys/KeyDatabase.h"
#include "keys/RecordPicker.h"
#include "keys/SaveOrTell.h"
#include "ui/Appearance.h"
#include "ui/DecimalBox.h"
#include "ui/FittingArea.h"
#include "ui/FormKit.h"
#include "ui/IntegerBox.h"
#include "ui/TextBox.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int numberWidth = 100;
/// Room for twelve of the widest characters.
constexpr int descriptionWidth = 180;
/// Between the key and its numbers.
constexpr int middleGap = 40;

QLabel* makeLabel(const QString& name, const QString& text, QWidget* buddy)
{
    auto* const label = new QLabel(text);
    ui::nameControl(*label, name);
    label->setBuddy(buddy);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

void keepRoomWhenHidden(QWidget& control)
{
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
    control.hide();
}

/// Width of the widest caption that a number has for any key.
int widestNumberCaption(const QLabel& label)
{
    int widest = 0;
    for (const auto* const table : {&keyOptionsTo156(), &keyOptionsFrom157()}) {
        for (const KeyOptions& options : *table) {
            for (const NumberField& field : options.numbers)
                widest = std::max(widest, label.fontMetrics().horizontalAdvance(field.caption));
        }
    }
    return widest;
}

} // namespace

FrmFunctKey::FrmFunctKey(ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_boxes(boxes), m_database(openCustomerDatabase(values)), m_keys(m_database, values)
{
    ui::nameControl(*this, u"FrmFunctKey"_s);
    setWindowTitle(u"Function Keys"_s);
    makeControls();
    m_uses = makeUsesButton(
        *m_database, keyboardOf(registerModelByText(values).family), ItemKind::Function,
        [this] { return selectkey->currentData().toString(); }, this);
    layOut();
    Form_Load();
}

void FrmFunctKey::makeControls()
{
    selectkey = new RecordPicker(u"selectkey"_s, u"Select Function Key"_s, this);
    description = new ui::TextBox(this);
    ui::nameControl(*description, u"description"_s);
    description->setLimit(m_keys.descriptionLength());
    description->setFixedWidth(ui::scaled(descriptionWidth));
    labels = makeLabel(u"labels"_s, u"Description"_s, description);
    keepRoomWhenHidden(*description);
    keepRoomWhenHidden(*labels);
    Halo = new ui::DecimalBox(this);
    m_numbers = {makeNumber(NumberControl::Halo, u"label1"_s, Halo, u"Halo"_s),
                 makeNumber(NumberControl::otherno, u"Label2"_s, new ui::IntegerBox(this), u"otherno"_s),
                 makeNumber(NumberControl::otherno2, u"Label4"_s, new ui::IntegerBox(this), u"otherno2"_s)};
    m_options = new OptionColumns(this);
    SaveRecord = ui::makeButton(u"SaveRecord"_s, u"&Save"_s, this);
    connect(selectkey, &QComboBox::activated, this, &FrmFunctKey::selectkey_Click);
    connect(SaveRecord, &QPushButton::clicked, this, &FrmFunctKey::saveRecord);
}

FrmFunctKey::NumberRow FrmFunctKey::makeNumber(NumberControl control, const QString& label,
                                               ui::NumberBox* box, const QString& name)
{
    ui::nameControl(*box, name);
    box->setFixedWidth(ui::scaled(numberWidth));
    connect(box, &ui::NumberBox::maximumExceeded, this, [this, box] { ui::rejectNumber(*box, m_boxes); });
    const NumberRow row{control, makeLabel(label, {}, box), box};
    row.label->setFixedWidth(widestNumberCaption(*row.label));
    keepRoomWhenHidden(*row.label);
    keepRoomWhenHidden(*row.box);
    return row;
}

/// Every control has a fixed place: controls that a key does not show leave a blank.
QGridLayout* FrmFunctKey::makeGrid()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(ui::spacing::controlGap);
    grid->setVerticalSpacing(ui::spacing::controlGap);
    grid->addWidget(makeLabel(u"Label3"_s, u"Select Key"_s, selectkey), 0, 0);
    grid->addWidget(selectkey, 0, 1);
    grid->addWidget(labels, 1, 0);
    grid->addWidget(description, 1, 1);
    grid->setColumnMinimumWidth(2, middleGap);
    int line = 0;
    for (const NumberRow& row : std::as_const(m_numbers)) {
        grid->addWidget(row.label, line, 3);
        grid->addWidget(row.box, line++, 4);
    }
    grid->setColumnStretch(5, 1);
    return grid;
}

void FrmFunctKey::layOut()
{
    auto* const ExitForm = ui::makeButton(u"ExitForm"_s, u"E&xit"_s, this);
    // Without any question: what is not saved is lost.
    connect(ExitForm, &QPushButton::clicked, this, [this] { done(Rejected); });
    // Enter in a box must not save.
    for (QPushButton* const button : {SaveRecord, ExitForm})
        button->setAutoDefault(false);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    auto* const contents = new QWidget;
    auto* const rows = new QVBoxLayout(contents);
    rows->setContentsMargins({});
    rows->setSpacing(ui::spacing::groupGap);
    rows->addLayout(makeGrid());
    rows->addWidget(m_options);
    column->addWidget(new ui::FittingArea(contents));
    column->addLayout(ui::makeButtonRow({SaveRecord, ExitForm}, {m_uses}));
}

void FrmFunctKey::Form_Load()
{
    selectkey->setItems(m_keys.readItems());
    selectkey->setFocus();
    SaveRecord->setEnabled(false);
}

/// A key is found by its place: the first column is how many rows from the first one it is.
void FrmFunctKey::selectkey_Click(int row)
{
    m_keys.moveTo(selectkey->itemData(row).toString().toLongLong());
    readControls();
    m_keys.GetData(m_controls);
    showControls();
    readControls();
    m_shown = m_controls;
    SaveRecord->setEnabled(true);
    m_uses->recount();
}

void FrmFunctKey::showKey(const QString& number)
{
    const int row = selectkey->findData(number);
    if (row < 0)
        return;
    selectkey->setCurrentIndex(row);
    selectkey_Click(row);
}

/// @return false when nothing was stored.
bool FrmFunctKey::saveRecord()
{
    readControls();
    if (!saveOrTell(m_boxes, [this] { m_keys.SaveData(m_controls); }))
        return false;
    m_shown = m_controls;
    Q_EMIT noticeChanged(u"Saved function key %1"_s.arg(selectkey->currentData().toString()));
    return true;
}

/// @return false if the form remains open: the user has closed the question, or the key could not be saved.
bool FrmFunctKey::mayLeave()
{
    readControls();
    if (!SaveRecord->isEnabled() || m_controls == m_shown)
        return true;
    const auto answer = m_boxes.askBeforeGoingOn(u"Save Changes?"_s, u"Save Details."_s);
    return answer == true ? saveRecord() : answer.has_value();
}

void FrmFunctKey::reject()
{
    close();
}

void FrmFunctKey::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayLeave());
    if (event->isAccepted())
        done(Rejected);
}

void FrmFunctKey::showControls()
{
    setUpdatesEnabled(false);
    labels->show();
    description->showText(m_controls.description);
    description->show();
    Halo->setDecimals(m_controls.haloDigits);
    for (const NumberRow& row : std::as_const(m_numbers))
        showNumber(row);
    m_options->showChecks(m_controls.Check1);
    setUpdatesEnabled(true);
}

void FrmFunctKey::showNumber(const NumberRow& row)
{
    const KeyControls::Number& number = m_controls.number(row.control);
    row.label->setText(number.caption);
    row.box->setMaximum(number.largest);
    row.box->setValue(number.value);
    row.label->setVisible(number.visible);
    row.box->setVisible(number.visible);
}

/// Hidden controls keep what they hold, too.
void FrmFunctKey::readControls()
{
    m_controls.description = description->text();
    for (const NumberRow& row : std::as_const(m_numbers))
        m_controls.number(row.control).value = row.box->value();
    m_options->readTicks(m_controls.Check1);
}

} // namespace norvane::keys
