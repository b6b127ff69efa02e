// See ColumnChoices.h.
#include "articles/ColumnChoices.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

constexpr int headingPixels = 130;

/// A heading may be as long as a text.
QString labelFor(const QString& heading, const QWidget& place)
{
    if (heading.isEmpty())
        return u"(no heading)"_s;
    const QString shown = place.fontMetrics().elidedText(heading, Qt::ElideRight, ui::scaled(headingPixels));
    return QString(shown).replace(u'&', u"&&"_s);
}

} // namespace

/// The first entry has no place among the columns.
const SheetColumn* ColumnChoices::Row::column(const TableSheet& sheet) const
{
    const int place = box->currentIndex() - 1;
    return place < 0 ? nullptr : &sheet.columns[static_cast<std::size_t>(place)];
}

ColumnChoices::ColumnChoices(const TableSheet& sheet, const ColumnNames& names, const QStringList& headings,
                             const HeadingMap& map, QWidget* parent)
    : QScrollArea(parent), m_sheet(sheet)
{
    ui::nameControl(*this, u"ColumnChoices"_s);
    setFocusPolicy(Qt::NoFocus); // its lists take the keyboard
    auto* const list = new QWidget(this);
    auto* const grid = new QGridLayout(list);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(ui::spacing::controlGap);
    for (const QString& heading : headings) {
        if (std::ranges::none_of(m_rows, [&](const Row& row) {
                return row.heading.compare(heading, Qt::CaseInsensitive) == 0;
            }))
            addRow(*grid, heading, map.value(heading.toLower()), names);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    setWidget(list);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    if (!m_rows.empty())
        setFocusProxy(m_rows.front().box);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFixedWidth(list->sizeHint().width() + verticalScrollBar()->sizeHint().width() +
                  ui::spacing::controlGap);
}

void ColumnChoices::addRow(QGridLayout& grid, const QString& heading, const SheetColumn* chosen,
                           const ColumnNames& names)
{
    auto* const box = new QComboBox(this);
    box->addItem(u"(do not import)"_s);
    for (const SheetColumn& column : m_sheet.columns) {
        box->addItem(nameOf(column, names));
        if (&column == chosen)
            box->setCurrentIndex(box->count() - 1);
    }
    auto* const label = new QLabel(labelFor(heading, *this), this);
    label->setToolTip(heading);
    label->setBuddy(box);
    const int row = static_cast<int>(m_rows.size());
    ui::nameControl(*box, u"ColumnChoice%1"_s.arg(row + 1));
    connect(box, &QComboBox::currentIndexChanged, this, &ColumnChoices::changed);
    grid.addWidget(label, row, 0);
    grid.addWidget(box, row, 1);
    m_rows.push_back({heading, box});
}

HeadingMap ColumnChoices::map() const
{
    HeadingMap map;
    for (const Row& row : m_rows)
        map.insert(row.heading.toLower(), row.column(m_sheet));
    return map;
}

bool ColumnChoices::hasNumber() const
{
    return std::ranges::any_of(
        m_rows, [this](const Row& row) { return row.column(m_sheet) == &m_sheet.columns.front(); });
}

QStringList ColumnChoices::leftOut() const
{
    QStringList headings;
    for (const Row& row : m_rows) {
        if (row.column(m_sheet) == nullptr && !row.heading.isEmpty())
            headings += row.heading;
    }
    return headings;
}

} // namespace norvane::articles
