// See WholeWordsDialog.h.
#include "overlay/WholeWordsDialog.h"

#include "overlay/CellOrder.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr double largestChoice = 24; ///< points
constexpr double smallestChoice = 2;
constexpr QSize unfitListSize{420, 180};

QString keysInWords(int count)
{
    return count == 1 ? u"1 key"_s : u"%1 keys"_s.arg(count);
}

QString lineOf(const UnfitKey& unfit, const OverlayLayout& layout)
{
    const QString place = placeName(layout, layout.key(unfit.key).firstCell).section(u", line"_s, 0, 0);
    const QString size = unfit.fittingSize > 0 ? u"fits at %1 pt"_s.arg(unfit.fittingSize)
                                               : u"does not fit in any readable size"_s;
    return u"%1: \"%2\" %3"_s.arg(place, unfit.text.simplified(), size);
}

} // namespace

WholeWordsDialog::WholeWordsDialog(const Document& document, std::vector<int> selected,
                                   ProgrammeTexts programme, QWidget* parent)
    : QDialog(parent), m_document(document), m_selected(std::move(selected)),
      m_programme(std::move(programme)), m_smallest(new QDoubleSpinBox(this)),
      m_onlySelected(new QCheckBox(u"Only the selected &keys"_s, this)), m_summary(new QLabel(this)),
      m_unfit(new QListWidget(this)), m_outcome(document)
{
    setObjectName(u"WholeWords"_s);
    setWindowTitle(u"Whole Words"_s);
    QHBoxLayout* const buttons = ui::makeOkCancelRow(*this);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addWidget(makeChoices());
    ui::nameControl(*m_summary, u"WholeWordsSummary"_s);
    ui::nameControl(*m_unfit, u"UnfitKeys"_s, u"Texts that do not fit"_s);
    m_summary->setWordWrap(true);
    m_unfit->setWordWrap(true);
    m_unfit->setMinimumSize(ui::scaled(unfitListSize));
    column->addWidget(m_summary);
    column->addWidget(m_unfit);
    column->addLayout(buttons);
    connect(m_unfit, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            Q_EMIT keyShown(m_result.unfit[static_cast<std::size_t>(row)].key);
    });
    work();
}

QWidget* WholeWordsDialog::makeChoices()
{
    ui::nameControl(*m_smallest, u"SmallestSize"_s);
    ui::nameControl(*m_onlySelected, u"OnlySelected"_s);
    m_smallest->setRange(smallestChoice, largestChoice);
    m_smallest->setDecimals(1);
    m_smallest->setSingleStep(0.5);
    m_smallest->setSuffix(u" pt"_s);
    m_smallest->setValue(usualSmallestSize);
    m_onlySelected->setEnabled(!m_selected.empty());
    m_onlySelected->setChecked(!m_selected.empty());
    connect(m_smallest, &QDoubleSpinBox::valueChanged, this, &WholeWordsDialog::work);
    connect(m_onlySelected, &QCheckBox::toggled, this, &WholeWordsDialog::work);
    auto* const choices = new QWidget(this);
    auto* const form = new QFormLayout(choices);
    form->setContentsMargins({});
    form->addRow(u"&Smallest letters:"_s, m_smallest);
    form->addRow(QString(), m_onlySelected);
    return choices;
}

void WholeWordsDialog::work()
{
    std::vector<int> keys = m_selected;
    if (!m_onlySelected->isChecked()) {
        keys.resize(m_document.layout().keys().size());
        std::iota(keys.begin(), keys.end(), 0);
    }
    m_outcome = m_document;
    m_result = setWholeWords(m_outcome, keys, m_programme, static_cast<float>(m_smallest->value()));
    showResult();
}

void WholeWordsDialog::showResult()
{
    const auto unfit = static_cast<int>(m_result.unfit.size());
    QString summary = u"Change: %1."_s.arg(keysInWords(m_result.changedKeys));
    summary += unfit == 0 ? u" All texts fit in whole words."_s
                          : u" Too long even then, and left as they are: %1."_s.arg(keysInWords(unfit));
    m_summary->setText(summary);
    m_unfit->clear();
    for (const UnfitKey& each : m_result.unfit)
        m_unfit->addItem(lineOf(each, m_document.layout()));
}

} // namespace norvane::overlay
