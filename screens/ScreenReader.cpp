// Keys of screen files as a table: which control reads which, and how each is converted; see ScreenReader.h.
#include "screens/ScreenReader.h"

#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"

#include <array>
#include <initializer_list>

namespace norvane::screens
{
namespace
{

struct KindName {
    QLatin1String name;
    ControlKind kind;
};

constexpr std::array<KindName, 8> kindNames{{
    {QLatin1String("FINDCONTROL"), ControlKind::Find},
    {QLatin1String("CHECKCONTROL"), ControlKind::Check},
    {QLatin1String("LABELCONTROL"), ControlKind::Label},
    {QLatin1String("INTEGERNUMBERCONTROL"), ControlKind::Integer},
    {QLatin1String("DECIMALNUMBERCONTROL"), ControlKind::Decimal},
    {QLatin1String("TEXTCONTROL"), ControlKind::Text},
    {QLatin1String("COMBOCONTROL"), ControlKind::Combo},
    {QLatin1String("GRIDCONTROL"), ControlKind::Grid},
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

struct KeyRule {
    QLatin1String key;
    Kinds readBy;
    void (*convert)(const QString&, ControlDefinition&);
    int limit = profileValueLimit;
};

constexpr std::array<KeyRule, 17> keyRules{{
    {QLatin1String("X"), all, takeNumber<&ControlDefinition::x>},
    {QLatin1String("Y"), all, takeNumber<&ControlDefinition::y>},
    {QLatin1String("Visible"), all, takeYesNo<&ControlDefinition::visible>},
    {QLatin1String("Width"), all & ~find, takeNumber<&ControlDefinition::width>},
    {QLatin1String("Height"), grid, takeNumber<&ControlDefinition::height>},
    {QLatin1String("Tabindex"), all, takeWhole<&ControlDefinition::tabIndex>},
    {QLatin1String("Description"), check | label, takeText<&ControlDefinition::description>},
    {QLatin1String("Enabled"), check, takeYesNo<&ControlDefinition::enabled>},
    {QLatin1String("ReadOnly"), number | text, takeYesNo<&ControlDefinition::readOnly>},
    {QLatin1String("Maxvalue"), number | text, takeMaximum},
    {QLatin1String("Datafield"), check | number | text | combo, takeText<&ControlDefinition::dataField>},
    {QLatin1String("DecimalNumbers"), decimal, takeWhole<&ControlDefinition::decimals>},
    {QLatin1String("Justify"), text, takeText<&ControlDefinition::justify>},
    {QLatin1String("Characters"), text, takeText<&ControlDefinition::characters>},
    {QLatin1String("SQLCriteria"), combo | grid, takeText<&ControlDefinition::sqlCriteria>},
    {QLatin1String("Columnwidth"), combo, takeText<&ControlDefinition::columnWidths>},
    {QLatin1String("Valuecol"), combo, takeText<&ControlDefinition::valueColumn>},
}};
constexpr KeyRule listRule{QLatin1String("List"), combo, takeText<&ControlDefinition::list>,
                           profileListLimit};

struct ColumnRule {
    QLatin1String key; ///< the column's number follows
    void (*convert)(const QString&, GridColumn&);
};

constexpr std::array<ColumnRule, 4> columnRules{{
    {QLatin1String("Colwidth"),
     [](const QString& value, GridColumn& column) {
         column.width = toNumber(value);
     }},
    {QLatin1String("locked"),
     [](const QString& value, GridColumn& column) {
         column.locked = toBoolean(value);
     }},
    {QLatin1String("numberFormat"),
     [](const QString& value, GridColumn& column) {
         column.numberFormat = value;
     }},
    {QLatin1String("Visible"),
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
void ScreenReader::read(const QString& section, const QString& key, int limit, Convert convert) const
{
    const QString value = m_file.value(section, key, {}, limit);
    if (value.isEmpty())
        return;
    try {
        convert(value);
    } catch (const RuntimeFailure& failure) {
        throw RuntimeFailure(
            failure.failure(),
            QStringLiteral("%1 (%2, section [%3], key %4)").arg(failure.text(), m_path, section, key));
    }
}

ScreenTable ScreenReader::table() const
{
    const QString section = QStringLiteral("Database");
    ScreenTable table{m_file.value(section, QStringLiteral("table")),
                      m_file.value(section, QStringLiteral("Index1")),
                      m_file.value(section, QStringLiteral("Index2"))};
    if (table.secondIndex.isEmpty())
        table.secondIndex = table.firstIndex;
    return table;
}

ScreenWindow ScreenReader::window() const
{
    const QString section = QStringLiteral("FormName");
    ScreenWindow window{m_file.value(section, QStringLiteral("Name")),
                        m_file.value(section, QStringLiteral("HelpHTML")),
                        {},
                        {}};
    read(section, QStringLiteral("Width"), profileValueLimit,
         [&](const QString& value) { window.width = toNumber(value); });
    read(section, QStringLiteral("Height"), profileValueLimit,
         [&](const QString& value) { window.height = toNumber(value); });
    return window;
}

QVector<ControlDefinition> ScreenReader::controls() const
{
    QVector<ControlDefinition> controls;
    for (int number = 1;; ++number) {
        const QString section = QStringLiteral("Field%1").arg(number);
        const QString type = m_file.value(section, QStringLiteral("ControlType"));
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
    const auto take = [&](const KeyRule& rule) {
        if ((rule.readBy & kinds({kind})) != 0)
            read(section, rule.key, rule.limit, [&](const QString& value) { rule.convert(value, control); });
    };
    for (const KeyRule& rule : keyRules)
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
    for (int number = 0;; ++number) {
        GridColumn column;
        column.caption = m_file.value(section, QStringLiteral("Caption%1").arg(number));
        if (column.caption.isEmpty())
            return columns;
        for (const ColumnRule& rule : columnRules) {
            read(section, rule.key + QString::number(number), profileValueLimit,
                 [&](const QString& value) { rule.convert(value, column); });
        }
        columns += column;
    }
}

ScreenButtons ScreenReader::buttons() const
{
    const auto says = [this](const char* key, QLatin1String word) {
        return isWord(m_file.value(QStringLiteral("visiblekeys"), QLatin1String(key)), word);
    };
    const QLatin1String yes("YES");
    return {says("ShowAddrecord", yes),
            says("Showpreviousrecord", yes),
            says("Shownextrecord", yes),
            says("Showdeleterecord", yes),
            !says("Showsaverecord", QLatin1String("NO")),
            says("Showprintrecord", yes)};
}

ScreenReport ScreenReader::report() const
{
    const QString section = QStringLiteral("CrystalReport");
    return {m_file.value(section, QStringLiteral("CrystalReportFile")),
            m_file.value(section, QStringLiteral("CrystalReportTitle"))};
}

ScreenDefinition ScreenReader::whole() const
{
    return {table(), window(), controls(), buttons(), report()};
}

} // namespace norvane::screens
