// See FrmSearch.h.
#include "screens/FrmSearch.h"

#include "ui/Appearance.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace norvane::screens
{
namespace
{

constexpr int boxWidth = 300;

void name(QWidget& widget, const QString& objectName)
{
    widget.setObjectName(objectName);
    widget.setAccessibleName(objectName);
}

} // namespace

FrmSearch::FrmSearch(ApplicationValues& values, QWidget* parent)
    : QDialog(parent), m_values(values), SearchData(new QLineEdit(this))
{
    m_values.searchConfirmed = false;
    name(*this, QStringLiteral("FrmSearch"));
    name(*SearchData, QStringLiteral("SearchData"));
    setWindowTitle(QStringLiteral("Find Record....."));
    SearchData->setMinimumWidth(boxWidth);

    auto* const label =
        new QLabel(QStringLiteral("Find the record with this number or name, or the next:"), this);
    label->setBuddy(SearchData);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(ui::spacing::controlGap);
    buttons->addStretch();
    const auto addButton = [&](int element, const QString& caption, auto pressed) {
        auto* const button = new QPushButton(caption, this);
        name(*button, QStringLiteral("ExitControl_%1").arg(element));
        button->setMinimumWidth(ui::buttonWidth);
        button->setDefault(element == 0);
        connect(button, &QPushButton::clicked, this, pressed);
        buttons->addWidget(button);
    };
    addButton(0, QStringLiteral("&Find"), &QDialog::accept);
    addButton(1, QStringLiteral("&Cancel"), &QDialog::reject);

    auto* const column = new QVBoxLayout(this);
    const int margin = ui::spacing::formMargin;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(label);
    column->addWidget(SearchData);
    column->addSpacing(ui::spacing::groupGap - ui::spacing::controlGap);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void FrmSearch::done(int result)
{
    m_values.searchConfirmed = result == Accepted;
    m_values.searchText = SearchData->text();
    QDialog::done(result);
}

} // namespace norvane::screens
