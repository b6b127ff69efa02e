// See ChoiceBar.h.
#include "screens/table/ChoiceBar.h"

#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"
#include "ui/WrappingRow.h"

#include <QComboBox>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Pixels at the usual font.
constexpr int textWidth = 190;
constexpr int listWidth = 150;
constexpr int widestButton = 300; ///< of its words

QComboBox* makeList(const QString& name, const QString& spoken, QWidget* parent)
{
    auto* const list = new QComboBox(parent);
    ui::nameControl(*list, name, spoken);
    list->setMinimumWidth(ui::scaled(listWidth));
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    list->setMaxVisibleItems(20);
    return list;
}

} // namespace

ChoiceBar::ChoiceBar(QVector<ColumnChoices> choices, QWidget* parent)
    : QWidget(parent), m_choices(std::move(choices)), m_text(new ui::FilterBox(u"TableFilter"_s, this)),
      m_column(makeList(u"ChoiceColumn"_s, u"Filter by column"_s, this)),
      m_choice(makeList(u"Choice"_s, u"What the column holds"_s, this)), m_buttons(new QWidget(this))
{
    m_text->setPlaceholderText(u"Part of any column"_s);
    m_text->setAccessibleName(u"Part of any column"_s);
    m_text->setFixedWidth(ui::scaled(textWidth));
    auto* const row = new ui::WrappingRow(ui::spacing::controlGap);
    for (QWidget* const part : std::initializer_list<QWidget*>{m_text, m_column, m_choice})
        row->addWidget(part);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(ui::spacing::controlGap);
    column->addLayout(row);
    buildLists();
}

void ChoiceBar::buildLists()
{
    m_column->addItem(u"Filter by ..."_s);
    for (const ColumnChoices& column : std::as_const(m_choices))
        m_column->addItem(column.label);
    fillChoices();
    showMade();
    connect(m_column, &QComboBox::activated, this, &ChoiceBar::fillChoices);
    connect(m_choice, &QComboBox::activated, this, &ChoiceBar::choose);
}

/// The first row of each list chooses nothing.
void ChoiceBar::fillChoices()
{
    const int column = m_column->currentIndex() - 1;
    m_choice->clear();
    m_choice->setEnabled(column >= 0);
    if (column < 0)
        return;
    m_choice->addItem(u"Any"_s);
    for (const TableChoice& choice : std::as_const(m_choices[column].choices))
        m_choice->addItem(choice.caption);
    m_choice->setCurrentIndex(m_made.value(column, -1) + 1);
}

void ChoiceBar::choose(int row)
{
    const int column = m_column->currentIndex() - 1;
    if (row > 0) {
        m_made.insert(column, row - 1);
    } else {
        m_made.remove(column);
    }
    showMade();
    Q_EMIT choicesChanged();
}

void ChoiceBar::takeBack(int column)
{
    m_made.remove(column);
    fillChoices();
    showMade();
    m_text->setFocus();
    Q_EMIT choicesChanged();
}

/// The button that was pressed may be among those that go.
void ChoiceBar::showMade()
{
    m_buttons->hide();
    m_buttons->deleteLater();
    m_buttons = new QWidget(this);
    auto* const row = new ui::WrappingRow(ui::spacing::controlGap, m_buttons);
    for (auto made = m_made.cbegin(); made != m_made.cend(); ++made)
        row->addWidget(makeButton(made.key(), made.value()));
    layout()->addWidget(m_buttons);
    m_buttons->setVisible(!m_made.isEmpty());
}

QPushButton* ChoiceBar::makeButton(int column, int choice)
{
    const ColumnChoices& choices = m_choices[column];
    const QString caption = choices.label + u": "_s + choices.choices[choice].caption;
    const QString words = fontMetrics().elidedText(caption, Qt::ElideRight, ui::scaled(widestButton));
    auto* const button = new QPushButton(QString(words).replace(u'&', u"&&"_s) + u"  \u00d7"_s, m_buttons);
    ui::nameControl(*button, u"Made"_s + QString::number(column), u"Remove the filter "_s + caption);
    button->setToolTip(u"Removes the filter "_s + caption);
    connect(button, &QPushButton::clicked, this, [this, column] { takeBack(column); });
    return button;
}

std::vector<TableChoice> ChoiceBar::chosen() const
{
    std::vector<TableChoice> chosen;
    for (auto made = m_made.cbegin(); made != m_made.cend(); ++made)
        chosen.push_back(m_choices[made.key()].choices[made.value()]);
    return chosen;
}

} // namespace norvane::screens
