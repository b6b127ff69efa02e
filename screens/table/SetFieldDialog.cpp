// Controls and preview of the dialog; see SetFieldDialog.h.
#include "screens/table/SetFieldDialog.h"

#include "screens/table/EditsModel.h"
#include "screens/table/TableModel.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/WaitPointer.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <array>
#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr QSize previewSize{560, 220};
constexpr int previewRowPixels = 20;
constexpr qsizetype shownRefusals = 3;
constexpr std::chrono::milliseconds restBeforePlan{200};

struct KindRow {
    ChangeKind kind;
    QLatin1StringView label;
    bool isForNumbers;
};
constexpr KindRow kinds[] = {
    {ChangeKind::Value, "Set to"_L1, false},
    {ChangeKind::Copy, "Copy from"_L1, false},
    {ChangeKind::Amount, "Add the amount (- subtracts)"_L1, true},
    {ChangeKind::Percent, "Add per cent (- subtracts)"_L1, true},
};

QString summaryOf(const FieldPlan& plan)
{
    QStringList lines{plan.edits.size() == 1 ? u"1 record changes."_s
                                             : u"%1 records change."_s.arg(plan.edits.size())};
    lines += plan.refusals.first(qMin(shownRefusals, plan.refusals.size()));
    if (plan.refusals.size() > shownRefusals)
        lines += u"and %1 more that cannot be changed"_s.arg(plan.refusals.size() - shownRefusals);
    return lines.join(u'\n');
}

} // namespace

SetFieldDialog::SetFieldDialog(TableModel& table, std::vector<int> rows, int column, const QString& scope,
                               QWidget* parent)
    : QDialog(parent), m_table(table), m_rows(std::move(rows)), m_column(new QComboBox(this)),
      m_kind(new QComboBox(this)), m_text(new QLineEdit(this)), m_source(new QComboBox(this)),
      m_rounding(new QComboBox(this)), m_model(new EditsModel(table, m_plan.edits, this)),
      m_view(new QTableView(this)), m_summary(new QLabel(this))
{
    ui::nameControl(*this, u"SetFieldDialog"_s);
    setWindowTitle(u"Set a Field"_s);
    addColumns(column);
    layOut(scope);
    showKinds();
    m_rest.setSingleShot(true);
    m_rest.setInterval(restBeforePlan);
    connect(&m_rest, &QTimer::timeout, this, &SetFieldDialog::showPlan);
    connect(m_column, &QComboBox::currentIndexChanged, this, &SetFieldDialog::showKinds);
    connect(m_kind, &QComboBox::currentIndexChanged, this, &SetFieldDialog::showChoices);
    connect(m_text, &QLineEdit::textChanged, this, [this] { m_rest.start(); });
    for (QComboBox* const list : {m_source, m_rounding})
        connect(list, &QComboBox::currentIndexChanged, this, [this] { m_rest.start(); });
}

void SetFieldDialog::addColumns(int column)
{
    for (int each = 0; each < m_table.columnCount(); ++each) {
        m_source->addItem(m_table.column(each).label, each);
        if (m_table.column(each).isEditable())
            m_column->addItem(m_table.column(each).label, each);
    }
    m_column->setCurrentIndex(qMax(0, m_column->findData(column)));
    for (const ChangeRounding& rounding : changeRoundings())
        m_rounding->addItem(rounding.label);
}

QFormLayout* SetFieldDialog::makeQuestions(const QString& scope)
{
    ui::nameControl(*m_column, u"FieldToSet"_s);
    ui::nameControl(*m_kind, u"HowToSet"_s);
    ui::nameControl(*m_text, u"NewValue"_s);
    ui::nameControl(*m_source, u"SourceField"_s);
    ui::nameControl(*m_rounding, u"Rounding"_s);
    auto* const rows = new QFormLayout;
    rows->setSpacing(ui::spacing::controlGap);
    rows->addRow(u"In"_s, new QLabel(scope, this));
    rows->addRow(u"&Field"_s, m_column);
    rows->addRow(u"&How"_s, m_kind);
    rows->addRow(u"&Value"_s, m_text);
    rows->addRow(u"F&rom field"_s, m_source);
    rows->addRow(u"Roun&ded"_s, m_rounding);
    return rows;
}

void SetFieldDialog::buildPreview()
{
    ui::nameControl(*m_view, u"PreviewOfChanges"_s, u"What will change"_s);
    m_view->setModel(m_model);
    m_view->setTabKeyNavigation(false);
    m_view->setMinimumSize(ui::scaled(previewSize));
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setMinimumSectionSize(ui::scaled(previewRowPixels));
    m_view->verticalHeader()->setDefaultSectionSize(ui::scaled(previewRowPixels));
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui::nameControl(*m_summary, u"SummaryOfChanges"_s);
    m_summary->setWordWrap(true);
}

void SetFieldDialog::layOut(const QString& scope)
{
    buildPreview();
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addLayout(makeQuestions(scope));
    column->addWidget(m_view);
    column->addWidget(m_summary);
    column->addLayout(ui::makeOkCancelRow(*this));
    m_ok = findChild<QPushButton*>(u"OkButton"_s);
}

/// Texts and lists are set or copied; only numbers are computed.
void SetFieldDialog::showKinds()
{
    const bool isNumber = m_table.column(m_column->currentData().toInt()).isNumber();
    const QSignalBlocker quiet(m_kind);
    const QString chosen = m_kind->currentText();
    m_kind->clear();
    for (const KindRow& row : kinds) {
        if (isNumber || !row.isForNumbers)
            m_kind->addItem(row.label, static_cast<int>(row.kind));
    }
    m_kind->setCurrentIndex(qMax(0, m_kind->findText(chosen)));
    proposeSource();
    showChoices();
}

/// Prices are copied from prices: the first other column with a control of this kind.
void SetFieldDialog::proposeSource()
{
    const int field = m_column->currentData().toInt();
    for (int each = 0; each < m_table.columnCount(); ++each) {
        if (each != field && m_table.column(each).kind() == m_table.column(field).kind())
            return m_source->setCurrentIndex(m_source->findData(each));
    }
}

void SetFieldDialog::showChoices()
{
    const bool isComputed = kind() == ChangeKind::Amount || kind() == ChangeKind::Percent;
    m_text->setEnabled(kind() != ChangeKind::Copy);
    m_source->setEnabled(kind() == ChangeKind::Copy);
    m_rounding->setEnabled(isComputed);
    showPlan();
}

ChangeKind SetFieldDialog::kind() const
{
    return static_cast<ChangeKind>(m_kind->currentData().toInt());
}

FieldChange SetFieldDialog::change() const
{
    return {kind(), m_column->currentData().toInt(), m_text->text(), m_source->currentData().toInt(),
            changeRoundings()[static_cast<std::size_t>(m_rounding->currentIndex())]};
}

void SetFieldDialog::accept()
{
    const bool isDue = m_rest.isActive();
    if (isDue)
        showPlan();
    if (m_ok->isEnabled() && (!isDue || m_plan.refusals.isEmpty()))
        QDialog::accept();
}

void SetFieldDialog::showPlan()
{
    m_rest.stop();
    const ui::WaitPointer wait;
    const bool isUntouched = m_text->text().isEmpty() && kind() != ChangeKind::Copy;
    m_plan = isUntouched ? FieldPlan{} : planChange(m_table, change(), m_rows);
    m_model->showChanges();
    m_summary->setText(isUntouched ? u"Enter a value."_s : summaryOf(m_plan));
    m_ok->setEnabled(!m_plan.edits.empty());
}

} // namespace norvane::screens
