// Controls of the setup dialog, made from the table of settings; see FrmSetup.h.
#include "shell/FrmSetup.h"

#include "base/CustomerSettings.h"
#include "platform/ProfileFile.h"
#include "shell/MainStatusBar.h"
#include "ui/Appearance.h"
#include "ui/FittingArea.h"
#include "ui/FormKit.h"

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

using namespace customers;

namespace
{

constexpr int controlWidth = 200;
constexpr int labelWidth = 100;
/// What is above and below the settings, in device-independent pixels: the program's bars and the buttons.
constexpr int aboveAndBelow = 200;

bool hasList(const Setting& setting)
{
    return setting.form != SettingForm::UpperText;
}

QWidget* makeList(const Setting& setting)
{
    auto* const list = new QComboBox;
    list->addItems(itemsOf(setting));
    return list;
}

QWidget* makeTextBox()
{
    auto* const box = new QLineEdit;
    box->setMaxLength(profileValueLimit); // the next reading would cut a longer text
    return box;
}

QWidget* makeControl(const Setting& setting)
{
    QWidget* const control = hasList(setting) ? makeList(setting) : makeTextBox();
    ui::nameControl(*control, setting.control);
    control->setFixedWidth(ui::scaled(controlWidth));
    return control;
}

/// All labels are equally wide, so that the controls of both frames line up.
QLabel* makeLabel(const Setting& setting, QWidget* control)
{
    auto* const label = new QLabel(setting.label);
    label->setBuddy(control);
    label->setMinimumWidth(ui::scaled(labelWidth));
    return label;
}

} // namespace

FrmSetup::FrmSetup(const ApplicationValues& values, MainStatusBar& status, QWidget* parent)
    : StatusForm(u"FrmSetup"_s, u"Setup"_s, u"Setup....."_s, status, parent), m_values(values),
      m_statusBar(status), m_controls(static_cast<qsizetype>(settings().size()))
{
    layOut();
    load();
}

void FrmSetup::layOut()
{
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    auto* const frames = new QWidget;
    auto* const below = new QVBoxLayout(frames);
    below->setContentsMargins({});
    below->setSpacing(ui::spacing::groupGap);
    below->addWidget(makeFrame(u"PC Setup"_s, true));
    below->addWidget(makeFrame(u"Modem Settings"_s, false));
    column->addWidget(new ui::FittingArea(frames, aboveAndBelow));
    column->addLayout(makeButtons());
}

QLayout* FrmSetup::makeButtons()
{
    QPushButton* const CmdSave = ui::makeButton(u"CmdSave"_s, u"&Save"_s, this);
    QPushButton* const CmdExit = ui::makeButton(u"CmdExit"_s, u"E&xit"_s, this);
    setKeys(CmdSave, CmdExit);
    connect(CmdSave, &QPushButton::clicked, this, &FrmSetup::save);
    connect(CmdExit, &QPushButton::clicked, this, &QWidget::close);
    return ui::makeButtonRow({CmdSave, CmdExit});
}

QGroupBox* FrmSetup::makeFrame(const QString& caption, bool withLists)
{
    auto* const frame = new QGroupBox(caption, this);
    auto* const rows = new QFormLayout(frame);
    rows->setSpacing(ui::spacing::controlGap);
    for (qsizetype row = 0; const Setting& setting : settings()) {
        if (hasList(setting) == withLists) {
            m_controls[row] = makeControl(setting);
            rows->addRow(makeLabel(setting, m_controls[row]), m_controls[row]);
        }
        ++row;
    }
    return frame;
}

void FrmSetup::load()
{
    m_read = readSettings(m_values);
    m_shown = m_values;
    for (qsizetype row = 0; row < m_read.size(); ++row) {
        if (auto* const combo = qobject_cast<QComboBox*>(m_controls[row])) {
            combo->setCurrentIndex(m_read[row].index);
        } else if (auto* const text = qobject_cast<QLineEdit*>(m_controls[row])) {
            text->setText(m_read[row].text);
        }
    }
}

void FrmSetup::followCustomer()
{
    if (m_shown.customerPath == m_values.customerPath)
        return;
    const QString former = m_shown.customerName;
    const bool isTyped = shownSettings() != m_read;
    load();
    const QString notice = u"Setup now shows the settings of %1"_s.arg(m_values.customerName);
    m_statusBar.setNotice(isTyped ? u"%1. Changes for %2 were not saved"_s.arg(notice, former) : notice);
}

QList<SettingValue> FrmSetup::shownSettings() const
{
    QList<SettingValue> shown;
    for (const QWidget* const control : m_controls) {
        if (const auto* const combo = qobject_cast<const QComboBox*>(control)) {
            shown.append(SettingValue{combo->currentIndex(), {}});
        } else if (const auto* const text = qobject_cast<const QLineEdit*>(control)) {
            shown.append(SettingValue{-1, text->text()});
        }
    }
    return shown;
}

void FrmSetup::save()
{
    m_statusBar.setNotice(outcome(writeSettings(m_values, shownSettings())));
    close();
}

/// The platform's profile routines report no failure, so the user would go on with settings that are not
/// stored.
QString FrmSetup::outcome(int written) const
{
    if (written == m_controls.size())
        return u"Saved Setup"_s;
    const QString what = written == 0 ? u"Nothing was stored"_s : u"Not all settings were stored"_s;
    return u"%1: %2 cannot be written, or the disk is full"_s.arg(
        what, QDir::toNativeSeparators(settingsPath(m_values)));
}

} // namespace norvane::shell
