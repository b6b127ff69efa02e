// Makes, places and reads the controls of a screen; see FieldPanel.h.
#include "screens/FieldPanel.h"

#include "paper/Length.h"
#include "platform/Numbers.h"
#include "screens/ComboRows.h"
#include "screens/ControlContents.h"
#include "screens/GridControl.h"
#include "screens/LabelPairs.h"
#include "ui/DecimalBox.h"
#include "ui/FormKit.h"
#include "ui/IntegerBox.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr double marginBelow = 10; ///< twips between the lowest "Y" and the end of the panel

int pixels(double twips)
{
    return paper::screenPixels(paper::twips(twips));
}

/// How controls of a kind are called and what they are before the file says otherwise.
struct Template {
    const char* array;
    int firstElement;
    double width; ///< twips
    double height;
};

/// In the order of ControlKind. The first label is the template itself; the other arrays keep theirs unused.
constexpr std::array<Template, 8> templates{{
    {"FindControl", 1, findButtonWidth, controlHeight},
    {"CheckControl", 1, 2400, checkHeight},
    {"LabelControl", 0, 1500, controlHeight},
    {"IntegerNumberControl", 1, 1200, controlHeight},
    {"DecimalNumberControl", 1, 1200, controlHeight},
    {"TextControl", 1, 2400, controlHeight},
    {"ComboControl", 1, 2400, controlHeight},
    {"gridcontrol", 0, 6000, 3600},
}};

const Template& templateOf(ControlKind kind)
{
    return templates[static_cast<std::size_t>(kind)];
}

/// A read-only box looks like the form, so that nobody tries to type into it.
void makeReadOnly(QLineEdit& box)
{
    box.setReadOnly(true);
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    box.setPalette(palette);
}

QVector<int> listWidths(const QString& text)
{
    QVector<int> widths;
    for (const QString& width : text.split(u';', Qt::SkipEmptyParts))
        widths += pixels(toNumber(width));
    return widths;
}

/// Where a control without a tab index of its own comes: behind all others.
int tabPlace(const ControlDefinition& definition)
{
    return definition.tabIndex.value_or(std::numeric_limits<int>::max());
}

bool isBound(const ControlDefinition& definition)
{
    return !definition.dataField.trimmed().isEmpty();
}

/// Whether a user comes to the screen for this control: it is in view and takes an entry.
bool isEditable(const ControlDefinition& definition, const QWidget& widget)
{
    return definition.kind != ControlKind::Label && definition.kind != ControlKind::Find &&
           !definition.readOnly.value_or(false) && widget.isEnabled() && !widget.isHidden();
}

} // namespace

FieldPanel::FieldPanel(std::shared_ptr<store::Database> database, QWidget* parent)
    : QScrollArea(parent), m_database(std::move(database)), m_picture(new QWidget(this))
{
    ui::nameControl(*this, u"CSPict1"_s);
    setFrameShape(QFrame::NoFrame);
    m_picture->setObjectName(u"Picture1"_s);
    m_picture->resize(0, 0);
}

void FieldPanel::addControl(const ControlDefinition& definition)
{
    const int element = definition.kind == ControlKind::Grid ? 0 : nextElement(definition.kind);
    QWidget* const widget = make(definition, element);
    ui::nameControl(*widget, u"%1_%2"_s.arg(QLatin1String(templateOf(definition.kind).array)).arg(element));
    place(definition, *widget);
    countBottom(definition);
    m_controls.append({definition, widget});
}

int FieldPanel::nextElement(ControlKind kind)
{
    const auto counter = m_counters.find(kind);
    if (counter != m_counters.end())
        return ++*counter;
    return *m_counters.insert(kind, templateOf(kind).firstElement);
}

QWidget* FieldPanel::make(const ControlDefinition& definition, int element)
{
    switch (definition.kind) {
    case ControlKind::Find:
        return makeFind(element);
    case ControlKind::Check: {
        auto* const box = new QCheckBox(definition.description, m_picture);
        box->setEnabled(definition.enabled.value_or(true));
        return box;
    }
    case ControlKind::Label: {
        auto* const label = new QLabel(definition.description, m_picture);
        label->setTextFormat(Qt::PlainText);
        return label;
    }
    case ControlKind::Integer:
    case ControlKind::Decimal:
        return makeNumber(definition);
    case ControlKind::Text:
        return makeText(definition);
    case ControlKind::Combo:
        return makeCombo(definition);
    case ControlKind::Grid:
        break;
    }
    return makeGrid(definition);
}

QWidget* FieldPanel::makeFind(int element)
{
    auto* const button = new QPushButton(u"F&ind"_s, m_picture);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, element] { Q_EMIT findPressed(element); });
    return button;
}

QWidget* FieldPanel::makeNumber(const ControlDefinition& definition)
{
    ui::NumberBox* box = nullptr;
    if (definition.kind == ControlKind::Integer) {
        box = new ui::IntegerBox(m_picture);
    } else {
        auto* const decimalBox = new ui::DecimalBox(m_picture);
        decimalBox->setDecimals(definition.decimals.value_or(decimalBox->decimals()));
        box = decimalBox;
    }
    if (definition.maximum)
        box->setMaximum(*definition.maximum);
    if (definition.readOnly.value_or(false))
        makeReadOnly(*box);
    connect(box, &ui::NumberBox::maximumExceeded, this, [this, box] { Q_EMIT maximumExceeded(box); });
    return box;
}

QWidget* FieldPanel::makeText(const ControlDefinition& definition)
{
    auto* const box = new ui::TextBox(m_picture);
    if (definition.maximum) {
        box->setLimit(static_cast<int>(qBound(std::int64_t{0}, definition.maximum->toWhole(),
                                              std::int64_t{std::numeric_limits<int>::max()})));
    }
    if (definition.readOnly.value_or(false))
        makeReadOnly(*box);
    box->setJustify(definition.justify);
    if (definition.characters.compare("NUMERIC"_L1, Qt::CaseInsensitive) == 0) {
        box->setCharacters(ui::TextBox::Characters::Digits);
    } else if (definition.isHexadecimal) {
        box->setCharacters(ui::TextBox::Characters::Hexadecimal);
    }
    return box;
}

QWidget* FieldPanel::makeCombo(const ControlDefinition& definition)
{
    auto* const list = new ui::ValueList(m_picture);
    list->setRows(definition.sqlCriteria.isEmpty() ? rowsOfList(definition.list)
                                                   : rowsOfQuery(*m_database, definition.sqlCriteria));
    if (!definition.columnWidths.isEmpty())
        list->setColumnWidths(listWidths(definition.columnWidths));
    if (!definition.valueColumn.isEmpty())
        list->setValueColumn(toWholeNumber(definition.valueColumn));
    return list;
}

QWidget* FieldPanel::makeGrid(const ControlDefinition& definition)
{
    if (!m_grid) {
        m_grid = new GridControl(m_picture);
        connect(m_grid, &GridControl::dataError, this,
                [this](const QModelIndex& index) { Q_EMIT gridDataError(m_grid, index); });
    }
    m_grid->showQuery(m_database, definition);
    return m_grid;
}

void FieldPanel::place(const ControlDefinition& definition, QWidget& widget)
{
    const Template& made = templateOf(definition.kind);
    widget.setGeometry(pixels(definition.x.value_or(0)), pixels(definition.y.value_or(0)),
                       pixels(definition.width.value_or(made.width)),
                       pixels(definition.height.value_or(made.height)));
    // A control starts hidden; the first label is the template itself, which is in view.
    const bool isTemplate =
        definition.kind == ControlKind::Label && m_counters.value(ControlKind::Label) == 0;
    widget.setVisible(definition.visible.value_or(isTemplate));
}

void FieldPanel::countBottom(const ControlDefinition& definition)
{
    switch (definition.kind) {
    case ControlKind::Check:
    case ControlKind::Label:
        break;
    case ControlKind::Grid:
        m_bottom = qMax(m_bottom, definition.height.value_or(0));
        break;
    default:
        m_bottom = qMax(m_bottom, definition.y.value_or(0));
        break;
    }
}

void FieldPanel::finish()
{
    int right = 0;
    QVector<QLabel*> labels;
    QVector<QWidget*> controls;
    for (const Control& control : std::as_const(m_controls)) {
        if (control.widget->isHidden())
            continue;
        right = qMax(right, control.widget->geometry().right() + 1);
        if (control.definition.kind == ControlKind::Label) {
            labels += static_cast<QLabel*>(control.widget);
        } else {
            controls += control.widget;
        }
    }
    tieLabels(labels, controls);
    m_picture->resize(right, pixels(m_bottom + marginBelow));
    setWidget(m_picture);
    chain();
}

void FieldPanel::chain()
{
    QVector<Control> ordered = m_controls;
    std::stable_sort(ordered.begin(), ordered.end(), [](const Control& left, const Control& right) {
        return tabPlace(left.definition) < tabPlace(right.definition);
    });
    for (const Control& control : std::as_const(ordered)) {
        if (control.definition.kind != ControlKind::Label && !m_tabOrder.contains(control.widget))
            m_tabOrder += control.widget;
    }
    for (qsizetype place = 1; place < m_tabOrder.size(); ++place)
        setTabOrder(m_tabOrder[place - 1], m_tabOrder[place]);
    const auto first = std::find_if(ordered.cbegin(), ordered.cend(), [](const Control& control) {
        return isEditable(control.definition, *control.widget);
    });
    m_firstEditable = first == ordered.cend() ? nullptr : first->widget;
}

void FieldPanel::focusFirst()
{
    if (m_firstEditable != nullptr) {
        m_firstEditable->setFocus();
    } else if (!m_tabOrder.isEmpty()) {
        m_tabOrder.constFirst()->setFocus();
    }
}

BoundFields FieldPanel::contents() const
{
    BoundFields fields;
    for (const Control& control : m_controls) {
        if (isBound(control.definition)) {
            fields.append({control.definition.kind, control.definition.dataField,
                           control.definition.readOnly.value_or(false),
                           contentOf(control.definition.kind, *control.widget)});
        }
    }
    return fields;
}

void FieldPanel::showContents(const BoundFields& fields)
{
    auto field = fields.cbegin();
    for (const Control& control : std::as_const(m_controls)) {
        if (isBound(control.definition))
            showContent(control.definition.kind, *control.widget, (field++)->content);
    }
}

} // namespace norvane::screens
