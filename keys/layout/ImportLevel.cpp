// See ImportLevel.h.
#include "keys/layout/ImportLevel.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/ScreenShare.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr QSize importSize(560, 340);

QString summaryOf(const LevelImport& plan, int level)
{
    QString text = u"%1 of %2 keys of level %3 will do something else."_s.arg(plan.changed)
                       .arg(plan.keys.size())
                       .arg(level);
    if (!plan.missing.isEmpty()) {
        text += u" Items that this shop does not have are listed first: until they are made, their keys will "
                "point at nothing."_s;
    }
    return text + u" Nothing is stored before you save the level."_s;
}

void addLines(QListWidget& list, const QString& heading, const QStringList& lines)
{
    if (lines.isEmpty())
        return;
    auto* const item = new QListWidgetItem(u"%1 (%2)"_s.arg(heading).arg(lines.size()), &list);
    QFont bold = list.font();
    bold.setBold(true);
    item->setFont(bold);
    list.addItems(lines);
}

} // namespace

ImportLevel::ImportLevel(const LevelImport& plan, int level, QWidget* parent) : QDialog(parent)
{
    setObjectName(u"ImportLevel"_s);
    setWindowTitle(u"Import Level"_s);
    auto* const summary = new QLabel(summaryOf(plan, level), this);
    ui::nameControl(*summary, u"ImportSummary"_s);
    summary->setWordWrap(true);
    auto* const list = new QListWidget(this);
    ui::nameControl(*list, u"ImportLines"_s, u"What is not as in the file"_s);
    addLines(*list, u"Missing here"_s, plan.missing);
    addLines(*list, u"Another number or name here"_s, plan.renamed);
    if (list->count() == 0)
        list->addItem(u"All items of the file are in this shop."_s);
    QPushButton* const import = ui::makeButton(u"ImportButton"_s, u"&Import"_s, this);
    QPushButton* const cancel = ui::makeButton(u"CancelButton"_s, u"&Cancel"_s, this);
    connect(import, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    import->setAutoDefault(false);
    cancel->setDefault(true);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(summary);
    column->addWidget(list, 1);
    column->addLayout(ui::makeButtonRow({import, cancel}));
    resize(ui::scaledOnScreen(*this, importSize));
    cancel->setFocus();
}

} // namespace norvane::keys
