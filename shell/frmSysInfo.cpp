// See frmSysInfo.h.
#include "shell/frmSysInfo.h"

#include "shell/SystemReport.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/ScreenShare.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr QSize textSize{640, 400};
constexpr double textShare = 0.8; ///< of the height of a small screen, at most

} // namespace

frmSysInfo::frmSysInfo(const QString& report, QWidget* parent) : QDialog(parent)
{
    ui::nameControl(*this, u"frmSysInfo"_s);
    setWindowTitle(u"System Information"_s);
    auto* const text = new QPlainTextEdit(report, this);
    ui::nameControl(*text, u"SystemReport"_s);
    text->setAccessibleName(windowTitle());
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setMinimumSize(ui::scaledOnScreen(*this, textSize, textShare));
    QPushButton* const copy = ui::makeButton(u"CopyButton"_s, u"&Copy"_s, this);
    QPushButton* const done = ui::makeButton(u"CloseButton"_s, u"C&lose"_s, this);
    done->setDefault(true);
    connect(copy, &QPushButton::clicked, this, [copy, report] {
        QGuiApplication::clipboard()->setText(report);
        copy->setText(u"&Copied"_s);
    });
    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::controlGap);
    column->addWidget(text);
    column->addLayout(ui::makeButtonRow({copy, done}));
}

void showSystemInfo(const ApplicationValues& values, Boxes& boxes, QWidget* parent)
{
    const QString report = systemReport(values, QPrinterInfo::availablePrinterNames());
    if (report.isEmpty()) {
        boxes.message(u"System Information Is Unavailable At This Time"_s);
        return;
    }
    auto* const window = new frmSysInfo(report, parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->open();
}

} // namespace norvane::shell
