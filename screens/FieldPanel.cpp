// See FieldPanel.h.
#include "screens/FieldPanel.h"

#include "paper/Length.h"
#include "screens/ControlContents.h"
#include "screens/GridControl.h"
#include "screens/LabelPairs.h"
#include "screens/ListRoom.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/NumberBox.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr double marginBelow = 10; ///< twips between the lowest "Y" and the end of the panel

int pixels(double twips)
{
    return ui::scaled(paper::screenPixels(paper::twips(twips)));
}

/// How controls of a kind are called and what they are before the file says otherwise.
struct Template {
    const char* array;
    int firstElement;
    double width; ///< twips
    double height;
};

/// In the order of ControlKind. The first label is the template itself; the other templates are unused.
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

/// The place of a control without a tab index: last.
int tabPlace(const ControlDefinition& definition)
{
    return definition.tabIndex.value_or(std::numeric_limits<int>::max());
}

bool isBound(const ControlDefinition& definition)
{
    return !definition.dataField.trimmed().isEmpty();
}

bool isBoundTo(const ControlDefinition& definition, const QString& field)
{
    return definition.dataField.trimmed().compare(field, Qt::CaseInsensitive) == 0;
}

/// Whether the user can use this control: it is in view and takes an entry.
bool isEditable(const ControlDefinition& definition, const QWidget& widget)
{
    return definition.kind != ControlKind::Label && definition.kind != ControlKind::Find &&
           !definition.readOnly.value_or(false) && widget.isEnabled() && !widget.isHidden();
}

} // namespace

FieldPanel::FieldPanel(std::shared_ptr<store::Database> database, QWidget* parent)
    : QScrollArea(parent), m_database(std::move(database)), m_picture(new QWidget(this)),
      m_maker(m_database, *m_picture)
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

/// Every grid section describes the one grid of the screen.
QWidget* FieldPanel::make(const ControlDefinition& definition, int element)
{
    if (definition.kind == ControlKind::Grid && m_grid) {
        m_grid->showQuery(m_database, definition);
        return m_grid;
    }
    QWidget* const widget = m_maker.make(definition);
    listenTo(*widget, element);
    return widget;
}

void FieldPanel::listenTo(QWidget& widget, int element)
{
    if (auto* const number = qobject_cast<ui::NumberBox*>(&widget)) {
        connect(number, &QLineEdit::textChanged, this, &FieldPanel::tellEdited);
        connect(number, &ui::NumberBox::maximumExceeded, this,
                [this, number] { Q_EMIT maximumExceeded(number); });
    } else if (auto* const text = qobject_cast<ui::TextBox*>(&widget)) {
        connect(text, &QLineEdit::textChanged, this, &FieldPanel::tellEdited);
        connect(text, &ui::TextBox::maximumExceeded, this, [this, text] { Q_EMIT maximumExceeded(text); });
    } else if (auto* const check = qobject_cast<QCheckBox*>(&widget)) {
        connect(check, &QCheckBox::toggled, this, &FieldPanel::tellEdited);
    } else if (auto* const list = qobject_cast<ui::ValueList*>(&widget)) {
        connect(list, &ui::ValueList::valueEdited, this, &FieldPanel::tellEdited);
    } else if (auto* const find = qobject_cast<QPushButton*>(&widget)) {
        connect(find, &QPushButton::clicked, this, [this, element] { Q_EMIT findPressed(element); });
    } else if (auto* const grid = qobject_cast<GridControl*>(&widget)) {
        m_grid = grid;
        connect(grid, &GridControl::dataError, this, [this](const QModelIndex& index, const QString& why) {
            Q_EMIT gridDataError(m_grid, index, why);
        });
    }
}

void FieldPanel::tellEdited()
{
    if (!m_isShowing)
        Q_EMIT edited();
}

void FieldPanel::place(const ControlDefinition& definition, QWidget& widget)
{
    const Template& made = templateOf(definition.kind);
    widget.setGeometry(pixels(definition.x.value_or(0)), pixels(definition.y.value_or(0)),
                       pixels(definition.width.value_or(made.width)),
                       pixels(definition.height.value_or(made.height)));
    // A control starts hidden, except the first label, the template itself.
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

void FieldPanel::finish(const QString& numberField)
{
    QVector<QWidget*> shown;
    for (const Control& control : std::as_const(m_controls)) {
        if (!control.widget->isHidden())
            shown += control.widget;
    }
    widenLists(shown);
    tieShownLabels(shown);
    m_picture->resize(rightEdge(shown), pixels(m_bottom + marginBelow));
    setWidget(m_picture);
    const auto ordered = inTabOrder();
    chain(ordered);
    setFocusPolicy(Qt::NoFocus); // the keyboard belongs to the controls
    m_firstNew = firstEditable(ordered, {});
    m_first = firstEditable(ordered, numberField);
}

void FieldPanel::tieShownLabels(const QVector<QWidget*>& shown)
{
    QVector<QLabel*> labels;
    QVector<QWidget*> controls;
    for (QWidget* const widget : shown) {
        if (auto* const label = qobject_cast<QLabel*>(widget)) {
            labels += label;
        } else {
            controls += widget;
        }
    }
    tieLabels(labels, controls);
}

QVector<FieldPanel::Control> FieldPanel::inTabOrder() const
{
    QVector<Control> ordered = m_controls;
    std::ranges::stable_sort(ordered, {},
                             [](const Control& control) { return tabPlace(control.definition); });
    return ordered;
}

void FieldPanel::chain(const QVector<Control>& ordered)
{
    for (const Control& control : ordered) {
        if (control.definition.kind != ControlKind::Label && !m_tabOrder.contains(control.widget))
            m_tabOrder += control.widget;
    }
    for (qsizetype place = 1; place < m_tabOrder.size(); ++place)
        setTabOrder(m_tabOrder[place - 1], m_tabOrder[place]);
}

/// @return nullptr without one; the control of the field @p except does not count.
QWidget* FieldPanel::firstEditable(const QVector<Control>& ordered, const QString& except)
{
    const auto first = std::ranges::find_if(ordered, [&](const Control& control) {
        return isEditable(control.definition, *control.widget) &&
               (except.isEmpty() || !isBoundTo(control.definition, except));
    });
    return first == ordered.end() ? nullptr : first->widget;
}

void FieldPanel::focusOn(QWidget* control)
{
    if (control != nullptr) {
        control->setFocus();
    } else if (!m_tabOrder.isEmpty()) {
        m_tabOrder.constFirst()->setFocus();
    }
}

void FieldPanel::focusFirst()
{
    focusOn(m_first);
}

void FieldPanel::focusNew()
{
    focusOn(m_firstNew);
}

QString FieldPanel::labelOf(const QString& dataField) const
{
    const auto control = std::ranges::find_if(
        m_controls, [&](const Control& known) { return isBoundTo(known.definition, dataField); });
    return control == m_controls.end() ? QString() : ui::spokenName(*control->widget);
}

BoundField FieldPanel::contentOfControl(const Control& control)
{
    return {control.definition.kind, control.definition.dataField,
            control.definition.readOnly.value_or(false), contentOf(control.definition.kind, *control.widget)};
}

BoundFields FieldPanel::contents() const
{
    BoundFields fields;
    for (const Control& control : m_controls) {
        if (isBound(control.definition))
            fields += contentOfControl(control);
    }
    return fields;
}

BoundFields FieldPanel::entries() const
{
    BoundFields fields;
    for (const Control& control : m_controls) {
        if (isBound(control.definition) && !control.definition.readOnly.value_or(false) &&
            control.definition.enabled.value_or(true))
            fields += contentOfControl(control);
    }
    return fields;
}

QLineEdit* FieldPanel::entryBox(const QString& dataField) const
{
    const auto control = std::ranges::find_if(m_controls, [&](const Control& known) {
        return isBoundTo(known.definition, dataField) && isEditable(known.definition, *known.widget);
    });
    return control == m_controls.end() ? nullptr : qobject_cast<QLineEdit*>(control->widget);
}

void FieldPanel::showContents(const BoundFields& fields)
{
    m_isShowing = true;
    auto field = fields.cbegin();
    for (const Control& control : std::as_const(m_controls)) {
        if (isBound(control.definition))
            showContent(control.definition.kind, *control.widget, (field++)->content);
    }
    m_isShowing = false;
}

} // namespace norvane::screens
