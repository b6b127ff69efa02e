// Reads and counts, and stores nothing; see Examination.h.
#include "former/Examination.h"

#include "former/FormerValues.h"
#include "former/TablePlan.h"
#include "platform/FilePaths.h"
#include "store/catalogue/SalesTables.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::former
{
namespace
{

/// No shop is without it, and no other program has it.
constexpr auto tableOfPlus = "PLUDATA"_L1;

/// Converts every value as the conversion will, to see which are lost.
class Examiner : public FormerContents
{
public:
    void setFormat(const QString& year) override { m_found.format = year; }

    void beginTable(const FormerTable& table) override
    {
        m_former = table;
        m_isKnown = m_plans.plan(m_plan, table);
        m_record = 0;
        m_day = -1;
        if (!m_isKnown) {
            m_found.unknownTables << table.name;
            return;
        }
        for (const QString& field : m_plan.unknownFields)
            m_found.unknownFields << m_plan.table.name + u'.' + field;
        const auto& fields = m_plan.table.fields;
        for (int field = 0; field < fields.size(); ++field) {
            if (fields.at(field).name.compare(QLatin1StringView(store::salestable::day),
                                              Qt::CaseInsensitive) == 0)
                m_day = field;
        }
    }

    void takeRow(std::span<const std::string_view> values) override
    {
        ++m_record;
        if (!m_isKnown)
            return;
        for (std::size_t field = 0; field < m_plan.columnOfField.size(); ++field)
            look(static_cast<int>(field), values);
    }

    void endTable(qint64 read) override
    {
        if (read != m_former.recordCount)
            m_found.shortTables.append({m_former.name, m_former.recordCount, read});
        if (!m_isKnown)
            return;
        m_found.tables.append({m_plan.table.name, read});
        m_found.recordCount += read;
    }

    void takeUnreadableTable(const QString& name) override { m_found.shortTables.append({name, -1, 0}); }

    [[nodiscard]] Examination& found() { return m_found; }

private:
    void look(int field, std::span<const std::string_view> values)
    {
        const int column = m_plan.columnOfField[static_cast<std::size_t>(field)];
        const std::string_view raw = values[static_cast<std::size_t>(column)];
        const auto& definition = m_plan.table.fields.at(field);
        const Loss loss =
            convertValue(m_value, raw, m_former.fields.at(column).kind, definition, m_plan.table.name);
        const bool isKey = m_value.isNull() && mayNotBeEmpty(definition);
        if (loss != Loss::None || isKey)
            note(definition.name, raw, isKey);
        if (field == m_day)
            widenDays(m_value.toDate());
    }

    void note(const QString& field, std::string_view raw, bool isKey)
    {
        ++m_found.unfitCount;
        if (m_found.unfitValues.size() < mostUnfitValues) {
            m_found.unfitValues.append(
                {m_plan.table.name, m_record, field, shownValue(raw), m_value.toText(), isKey});
        }
    }

    void widenDays(QDate day)
    {
        if (!day.isValid())
            return;
        m_found.firstSales = m_found.firstSales.isValid() ? std::min(m_found.firstSales, day) : day;
        m_found.lastSales = m_found.lastSales.isValid() ? std::max(m_found.lastSales, day) : day;
    }

    Examination m_found;
    TablePlans m_plans;
    TablePlan m_plan;
    FormerTable m_former;
    store::Value m_value;
    qint64 m_record = 0;
    int m_day = -1; ///< the field of a sales table's day
    bool m_isKnown = false;
};

} // namespace

Examination examine(const QString& path, const QString& programFolder, const KeepGoing& keepGoing)
{
    const auto begun = std::chrono::steady_clock::now();
    Examiner examiner;
    Examination& found = examiner.found();
    const QFileInfo file(path);
    found.fileTime = file.lastModified();
    found.isOpen = pathExists(joinPath(file.path(), file.completeBaseName() + u".ldb"_s));
    readFormerFile(path, programFolder, examiner, keepGoing);
    found.readingTime =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begun);
    const auto hasPlus = [](const FoundTable& table) {
        return table.name == tableOfPlus;
    };
    if (std::ranges::none_of(found.tables, hasPlus)) {
        throw FormerError(FormerProblem::NotOurs,
                          u"%1 is a database of another program: it has no table of PLUs."_s.arg(
                              QDir::toNativeSeparators(path)));
    }
    return std::move(found);
}

} // namespace norvane::former
