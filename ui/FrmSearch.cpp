// See FrmSearch.h.
#include "ui/FrmSearch.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

constexpr int boxWidth = 300;

} // namespace

std::optional<QString> FrmSearch::ask(QWidget* parent, const QString& sought)
{
    FrmSearch dialog(parent, sought);
    return dialog.exec() == Accepted ? std::optional(dialog.SearchData->text()) : std::nullopt;
}

FrmSearch::FrmSearch(QWidget* parent, const QString& sought)
    : QDialog(parent), SearchData(new QLineEdit(this))
{
    nameControl(*this, u"FrmSearch"_s);
    nameControl(*SearchData, u"SearchData"_s);
    setWindowTitle(u"Find Record....."_s);
    SearchData->setMinimumWidth(scaled(boxWidth));
    auto* const label = new QLabel(u"Find the record with this %1, or the next:"_s.arg(sought), this);
    label->setBuddy(SearchData);
    QPushButton* const find = makeButton(u"ExitControl_0"_s, u"&Find"_s, this);
    QPushButton* const cancel = makeButton(u"ExitControl_1"_s, u"&Cancel"_s, this);
    find->setDefault(true);
    connect(find, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    QVBoxLayout* const column = makeFormColumn(*this, spacing::controlGap);
    column->addWidget(label);
    column->addWidget(SearchData);
    column->addSpacing(spacing::groupGap - spacing::controlGap);
    column->addLayout(makeButtonRow({find, cancel}));
}

} // namespace norvane::ui
