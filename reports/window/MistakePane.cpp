// See MistakePane.h.
#include "reports/window/MistakePane.h"

#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

QString countOf(std::size_t mistakes)
{
    return mistakes == 1 ? u"1 mistake"_s : u"%1 mistakes"_s.arg(mistakes);
}

/// "[Column2] Width"
QString keyOf(const LayoutMistake& mistake)
{
    return mistake.section.isEmpty() ? QString() : u"[%1] %2"_s.arg(mistake.section, mistake.key).trimmed();
}

} // namespace

MistakePane::MistakePane(QWidget* parent)
    : QWidget(parent), m_heading(new QLabel(this)), m_list(new QTreeWidget(this)), m_reason(new QLabel(this))
{
    ui::nameControl(*this, u"MistakePane"_s);
    ui::nameControl(*m_heading, u"MistakeHeading"_s);
    ui::nameControl(*m_reason, u"MistakeReason"_s);
    ui::nameControl(*m_list, u"Mistakes"_s, u"Mistakes of the layout"_s);
    m_list->setHeaderLabels({u"Line"_s, u"Key"_s, u"Mistake"_s});
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    for (QLabel* const label : {m_heading, m_reason}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
    }
    connect(m_list, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* item) { m_reason->setText(item ? item->text(2) : QString()); });
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(m_heading);
    column->addWidget(m_list, 1);
    column->addWidget(m_reason);
    hide();
}

void MistakePane::showMistakes(const QString& path, const std::vector<LayoutMistake>& mistakes)
{
    m_list->clear();
    for (const LayoutMistake& mistake : mistakes) {
        auto* const item =
            new QTreeWidgetItem(m_list, {mistake.line > 0 ? QString::number(mistake.line) : QString(),
                                         keyOf(mistake), mistake.reason});
        item->setToolTip(2, mistake.reason);
    }
    setVisible(!mistakes.empty());
    if (mistakes.empty())
        return;
    m_heading->setText(u"%1 has %2. The report is as it was before them."_s.arg(
        QDir::toNativeSeparators(path), countOf(mistakes.size())));
    m_list->setCurrentItem(m_list->topLevelItem(0));
    ui::announce(*m_list, u"%1: %2"_s.arg(mistakes.front().place(), mistakes.front().reason));
}

} // namespace norvane::reports
