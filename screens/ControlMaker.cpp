// See ControlMaker.h.
#include "screens/ControlMaker.h"

#include "paper/Length.h"
#include "platform/Numbers.h"
#include "screens/ComboRows.h"
#include "screens/GridControl.h"
#include "ui/Appearance.h"
#include "ui/DecimalBox.h"
#include "ui/IntegerBox.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// A read-only box looks like the form, so nobody tries to type into it.
void makeReadOnly(QLineEdit& box)
{
    box.setReadOnly(true);
    box.setToolTip({}); // the range of what can be typed
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    box.setPalette(palette);
}

ui::NumberBox* makeNumberBox(const ControlDefinition& definition, QWidget& parent)
{
    if (definition.kind == ControlKind::Integer)
        return new ui::IntegerBox(&parent, definition.digits.value_or(1));
    auto* const box = new ui::DecimalBox(&parent);
    box->setDecimals(definition.decimals.value_or(box->decimals()));
    return box;
}

int textLimit(const Decimal& maximum)
{
    constexpr std::int64_t longest = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(std::int64_t{0}, maximum.toWhole(), longest));
}

/// @return nothing for a box that takes all characters of the register.
std::optional<ui::TextBox::Characters> charactersOf(const ControlDefinition& definition)
{
    if (definition.characters.compare("NUMERIC"_L1, Qt::CaseInsensitive) == 0)
        return ui::TextBox::Characters::Digits;
    return definition.isHexadecimal ? std::optional(ui::TextBox::Characters::Hexadecimal) : std::nullopt;
}

QVector<int> listWidths(const QString& text)
{
    QVector<int> widths;
    for (const QString& width : text.split(u';', Qt::SkipEmptyParts))
        widths += ui::scaled(paper::screenPixels(paper::twips(toNumber(width))));
    return widths;
}

} // namespace

ControlMaker::ControlMaker(std::shared_ptr<store::Database> database, QWidget& parent)
    : m_database(std::move(database)), m_parent(parent)
{
}

QWidget* ControlMaker::make(const ControlDefinition& definition)
{
    using Maker = QWidget* (ControlMaker::*)(const ControlDefinition&);
    // In the order of ControlKind.
    constexpr std::array<Maker, 8> makers{&ControlMaker::makeFind,   &ControlMaker::makeCheck,
                                          &ControlMaker::makeLabel,  &ControlMaker::makeNumber,
                                          &ControlMaker::makeNumber, &ControlMaker::makeText,
                                          &ControlMaker::makeCombo,  &ControlMaker::makeGrid};
    return (this->*makers.at(static_cast<std::size_t>(definition.kind)))(definition);
}

QWidget* ControlMaker::makeCheck(const ControlDefinition& definition)
{
    auto* const box = new QCheckBox(definition.description, &m_parent);
    box->setEnabled(definition.enabled.value_or(true));
    return box;
}

QWidget* ControlMaker::makeLabel(const ControlDefinition& definition)
{
    auto* const label = new QLabel(definition.description, &m_parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QWidget* ControlMaker::makeFind(const ControlDefinition& /*definition*/)
{
    auto* const button = new QPushButton(u"F&ind"_s, &m_parent);
    button->setAutoDefault(true);
    return button;
}

QWidget* ControlMaker::makeNumber(const ControlDefinition& definition)
{
    ui::NumberBox* const box = makeNumberBox(definition, m_parent);
    if (definition.maximum)
        box->setMaximum(*definition.maximum);
    if (definition.readOnly.value_or(false))
        makeReadOnly(*box);
    return box;
}

QWidget* ControlMaker::makeText(const ControlDefinition& definition)
{
    auto* const box = new ui::TextBox(&m_parent);
    if (definition.maximum)
        box->setLimit(textLimit(*definition.maximum));
    if (definition.readOnly.value_or(false))
        makeReadOnly(*box);
    box->setJustify(definition.justify);
    if (const auto characters = charactersOf(definition))
        box->setCharacters(*characters);
    if (definition.largest)
        box->setLargest(*definition.largest);
    return box;
}

QWidget* ControlMaker::makeCombo(const ControlDefinition& definition)
{
    auto* const list = new ui::ValueList(&m_parent);
    if (!definition.columnWidths.isEmpty())
        list->setColumnWidths(listWidths(definition.columnWidths));
    if (!definition.valueColumn.isEmpty())
        list->setValueColumn(toWholeNumber(definition.valueColumn));
    list->setRows(definition.sqlCriteria.isEmpty() ? rowsOfList(definition.list)
                                                   : queriedRows(definition.sqlCriteria));
    return list;
}

const QVector<QStringList>& ControlMaker::queriedRows(const QString& query)
{
    const auto known = m_queriedRows.constFind(query);
    if (known != m_queriedRows.cend())
        return *known;
    return *m_queriedRows.insert(query, rowsOfQuery(*m_database, query));
}

QWidget* ControlMaker::makeGrid(const ControlDefinition& definition)
{
    auto* const grid = new GridControl(&m_parent);
    grid->showQuery(m_database, definition);
    return grid;
}

} // namespace norvane::screens
