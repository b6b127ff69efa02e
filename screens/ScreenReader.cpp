// Keys of screen files as a table: which control reads which, and how each is converted; see ScreenReader.h.
#include "screens/ScreenReader.h"

#include "platform/FailurePlace.h"
#include "platform/Numbers.h"

#include <array>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

struct KindName {
    QLatin1String name;
    ControlKind kind;
};

constexpr std::array<KindName, 8> kindNames{{
    {"FINDCONTROL"_L1, ControlKind::Find},
    {"CHECKCONTROL"_L1, ControlKind::Check},
    {"LABELCONTROL"_L1, ControlKind::Label},
    {"INTEGERNUMBERCONTROL"_L1, ControlKind::Integer},
    {"DECIMALNUMBERCONTROL"_L1, ControlKind::Decimal},
    {"TEXTCONTROL"_L1, ControlKind::Text},
    {"COMBOCONTROL"_L1, ControlKind::Combo},
    {"GRIDCONTROL"_L1, ControlKind::Grid},
}};

template <auto member>
void takeText(const QString& text, ControlDefinition& control)
{
    control.*member = text;
}

template <auto member>
void takeNumber(const QString& text, ControlDefinition& control)
{
    control.*member = toNumber(text);
}

template <auto member>
void takeWhole(const QString& text, ControlDefinition& control)
{
    control.*member = toWholeNumber(text, 16);
}

template <auto member>
void takeYesNo(const QString& text, ControlDefinition& control)
{
    control.*member = toBoolean(text);
}

void takeMaximum(const QString& text, ControlDefinition& control)
{
    control.maximum = Decimal::parse(text.toStdString());
    if (!control.maximum)
        control.maximum = Decimal::fromDouble(toNumber(text));
}

/// One bit for each control kind.
using Kinds = unsigned;

constexpr Kinds kinds(std::initializer_list<ControlKind> list)
{
    Kinds bits = 0;
    for (const ControlKind kind : list)
        bits |= 1U << static_cast<unsigned>(kind);
    return bits;
}

constexpr Kinds find = kinds({ControlKind::Find});
constexpr Kinds check = kinds({ControlKind::Check});
constexpr Kinds label = kinds({ControlKind::Label});
constexpr Kinds number = kinds({ControlKind::Integer, ControlKind::Decimal});
constexpr Kinds decimal = kinds({ControlKind::Decimal});
constexpr Kinds text = kinds({ControlKind::Text});
constexpr Kinds combo = kinds({ControlKind::Combo});
constexpr Kinds grid = kinds({ControlKind::Grid});
constexpr Kinds all = find | check | label | number | text | combo | grid;

struct ScreenKey {
    QStringView key;
    Kinds readBy;
    void (*convert)(const QString&, ControlDefinition&);
    int limit = profileValueLimit;
};

constexpr std::array<ScreenKey, 17> screenKeys{{
    {u"X", all, takeNumber<&ControlDefinition::x>},
    {u"Y", all, takeNumber<&ControlDefinition::y>},
    {u"Visible", all, takeYesNo<&ControlDefinition::visible>},
    {u"Width", all & ~find, takeNumber<&ControlDefinition::width>},
    {u"Height", grid, takeNumber<&ControlDefinition::height>},
    {u"Tabindex", all, takeWhole<&ControlDefinition::tabIndex>},
    {u"Description", check | label, takeText<&ControlDefinition::description>},
    {u"Enabled", check, takeYesNo<&ControlDefinition::enabled>},
    {u"ReadOnly", number | text, takeYesNo<&ControlDefinition::readOnly>},
    {u"Maxvalue", number | text, takeMaximum},
    {u"Datafield", check | number | text | combo, takeText<&ControlDefinition::dataField>},
    {u"DecimalNumbers", decimal, takeWhole<&ControlDefinition::decimals>},
    {u"Justify", text, takeText<&ControlDefinition::justify>},
    {u"Characters", text, takeText<&ControlDefinition::characters>},
    {u"SQLCriteria", combo | grid, takeText<&ControlDefinition::sqlCriteria>},
    {u"Columnwidth", combo, takeText<&ControlDefinition::columnWidths>},
    {u"Valuecol", combo, takeText<&ControlDefinition::valueColumn>},
}};
constexpr ScreenKey listRule{u"List", combo, takeText<&ControlDefinition::list>, profileListLimit};

struct GridColumnKey {
    QLatin1String key; ///< the column's number follows
    void (*convert)(const QString&, GridColumn&);
};

constexpr std::array<GridColumnKey, 4> gridColumnKeys{{
    {"Colwidth"_L1,
     [](const QString& value, GridColumn& column) {
         column.width = toNumber(value);
     }},
    {"locked"_L1,
     [](const QString& value, GridColumn& column) {
         column.locked = toBoolean(value);
     }},
    {"numberFormat"_L1,
     [](const QString& value, GridColumn& column) {
         column.numberFormat = value;
     }},
    {"Visible"_L1,
     [](const QString& value, GridColumn& column) {
         column.visible = toBoolean(value);
     }},
}};

bool isWord(const QString& value, QLatin1String word)
{
    return value.compare(word, Qt::CaseInsensitive) == 0;
}

} // namespace

ScreenReader::ScreenReader(const QString& path) : m_path(path), m_file(path) {}

template <typename Convert>
void ScreenReader::read(QStringView section, QStringView key, int limit, Convert convert) const
{
    const QString value = m_file.value(section, key, {}, limit);
    if (value.isEmpty())
        return;
    const auto explain = [&](const QString& what) {
        return u"%1 (%2, section [%3], key %4)"_s.arg(what, m_path, section, key);
    };
    atPlace(explain, [&] { convert(value); });
}

ScreenTable ScreenReader::table() const
{
    const QString section = u"Database"_s;
    ScreenTable table{m_file.value(section, u"table"_s), m_file.value(section, u"Index1"_s),
                      m_file.value(section, u"Index2"_s)};
    if (table.secondIndex.isEmpty())
        table.secondIndex = table.firstIndex;
    return table;
}

ScreenWindow ScreenReader::window() const
{
    const QString section = u"FormName"_s;
    ScreenWindow window{m_file.value(section, u"Name"_s), {}, {}};
    read(section, u"Width"_s, profileValueLimit,
         [&](const QString& value) { window.width = toNumber(value); });
    read(section, u"Height"_s, profileValueLimit,
         [&](const QString& value) { window.height = toNumber(value); });
    return window;
}

QVector<ControlDefinition> ScreenReader::controls() const
{
    QVector<ControlDefinition> controls;
    for (int index = 1;; ++index) {
        const QString section = u"Field%1"_s.arg(index);
        const QString type = m_file.value(section, u"ControlType"_s);
        if (type.isEmpty())
            return controls;
        for (const KindName& known : kindNames) {
            if (isWord(type, known.name))
                controls += control(section, known.kind);
        }
    }
}

ControlDefinition ScreenReader::control(const QString& section, ControlKind kind) const
{
    ControlDefinition control;
    control.section = section;
    control.kind = kind;
    const auto take = [&](const ScreenKey& rule) {
        if ((rule.readBy & kinds({kind})) != 0)
            read(section, rule.key, rule.limit, [&](const QString& value) { rule.convert(value, control); });
    };
    for (const ScreenKey& rule : screenKeys)
        take(rule);
    if (kind == ControlKind::Grid) {
        control.gridColumns = gridColumns(section);
    } else if (control.sqlCriteria.isEmpty()) {
        take(listRule);
    }
    return control;
}

QVector<GridColumn> ScreenReader::gridColumns(const QString& section) const
{
    QVector<GridColumn> columns;
    for (int index = 0;; ++index) {
        GridColumn column;
        column.caption = m_file.value(section, u"Caption%1"_s.arg(index));
        if (column.caption.isEmpty())
            return columns;
        for (const GridColumnKey& rule : gridColumnKeys) {
            read(section, rule.key + QString::number(index), profileValueLimit,
                 [&](const QString& value) { rule.convert(value, column); });
        }
        columns += column;
    }
}

ScreenButtons ScreenReader::buttons() const
{
    const auto says = [this](QStringView key, QLatin1String word) {
        return isWord(m_file.value(u"visiblekeys", key), word);
    };
    const QLatin1String yes("YES");
    return {says(u"ShowAddrecord", yes),    says(u"Showpreviousrecord", yes),  says(u"Shownextrecord", yes),
            says(u"Showdeleterecord", yes), !says(u"Showsaverecord", "NO"_L1), says(u"Showprintrecord", yes)};
}

ScreenReport ScreenReader::report() const
{
    const QString section = u"CrystalReport"_s;
    return {m_file.value(section, u"CrystalReportFile"_s), m_file.value(section, u"CrystalReportTitle"_s)};
}

} // namespace norvane::screens
