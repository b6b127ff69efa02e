// See LineStatement.h. A statement for PLU sales, shortened:
//
//   WITH j0 AS MATERIALIZED (SELECT <number by value> AS k, "DESCRIPTION" AS c1, min(_rowid_) FROM "PLUDATA"
//                            GROUP BY 1),
//        l AS (SELECT <ID by value> AS c0, exact_sum(b."PROMO") AS c2 FROM "PLUSALES" b
//                           WHERE b."SALESDATE" >= ? GROUP BY 1)
//   SELECT l.c0, j0.c1, l.c2 FROM l LEFT JOIN j0 ON j0.k = l.c0 ORDER BY ...
//
// The rows are added up before names are looked up, so that each name is looked up once. A list has no "l":
// its lines are the rows "b". Joined tables are materialized because the engine then creates an index over
// the result; it has none over a number by value.
#include "reports/lines/LineStatement.h"

#include "store/engine/QuotedName.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

std::string byValue(const std::string& column)
{
    return "by_value(" + column + ')';
}

class Writer
{
public:
    Writer(const LineSource& source, const std::vector<Join>& joins, const Condition& condition,
           const std::string& rows)
        : m_source(source), m_joins(joins), m_condition(condition), m_rows(rows), m_fields(source.fields)
    {
        for (const auto& key : source.keys)
            need(key);
        if (source.groupBy)
            need(*source.groupBy);
        for (const auto& key : source.order)
            need(key.field);
        const auto whole = std::ranges::find_if(joins, &Join::isWhole);
        if (whole != joins.end() && source.addsUp() && source.isKey(whole->of)) {
            m_whole = &*whole;
            need(m_whole->key);
        }
        collectConditionFields(condition);
        if (source.where)
            collectConditionFields(*source.where);
        // A join may be found by a field of an earlier join, so the last join is looked at first.
        for (std::size_t number = joins.size(); number-- > 0;) {
            if (isJoined(*joins[number].table))
                need(joins[number].of);
        }
    }

    LineStatement writeRecords(const Join& join, const std::vector<store::Value>& others)
    {
        std::string keys = "SELECT k AS " + alias(join.of) + " FROM " + joinName(*join.table);
        for (const auto& other : others) {
            keys += m_statement.values.empty() ? " UNION VALUES (?)" : ", (?)";
            m_statement.values.push_back(other);
        }
        const std::string with = joinTables() + ", l AS (" + keys + ")";
        m_statement.sql = with + " SELECT " + column(join.of, false);
        for (const auto& field : m_source.fields)
            m_statement.sql += field.table == m_source.table ? "" : ", " + column(field, false);
        m_statement.sql += " FROM l" + joined(false) + order();
        return std::move(m_statement);
    }

    LineStatement writeRows()
    {
        std::string columns;
        for (const auto& field : m_source.fields)
            columns += (columns.empty() ? "" : ", ") + (m_source.isKey(field) ? keyOf(field) : plain(field));
        m_statement.sql = "SELECT " + columns + " FROM " + rows();
        m_statement.sql += where();
        return std::move(m_statement);
    }

    LineStatement write()
    {
        std::string with = joinTables();
        if (m_whole != nullptr) {
            with += ", s AS MATERIALIZED (" + sums() + ')';
            with += ", l AS MATERIALIZED (SELECT * FROM s UNION ALL " + unmetRecords() + ')';
        } else if (m_source.addsUp()) {
            with += (with.empty() ? "WITH " : ", ") + ("l AS (" + sums() + ')');
        }
        m_statement.sql = with + " SELECT " + list() + " FROM " + lines() + order();
        return std::move(m_statement);
    }

private:
    [[nodiscard]] std::string joinTables() const
    {
        std::string with;
        for (std::size_t i = 0; i < m_joins.size(); ++i) {
            if (isJoined(*m_joins[i].table))
                with += (with.empty() ? "WITH " : ", ") + joinTable(i);
        }
        return with;
    }

    void need(const FieldName& field)
    {
        if (std::ranges::find(m_fields, field) == m_fields.end())
            m_fields.push_back(field);
    }

    /// A condition can read the fields of the report's own table directly. Those of joined tables must be
    /// among the fields of the join.
    void collectConditionFields(const Condition& condition)
    {
        const auto look = [this](const FieldName& field) {
            if (field.table != m_source.table) {
                m_joinsBelow = true;
                need(field);
            }
            return false;
        };
        (void)mentions(condition, look);
    }

    [[nodiscard]] bool isJoined(const store::TableDefinition& table) const
    {
        return &table != m_source.table &&
               std::ranges::any_of(m_fields, [&table](const auto& field) { return field.table == &table; });
    }

    /// "c3" for the fourth field that is needed.
    [[nodiscard]] std::string alias(const FieldName& field) const
    {
        return 'c' + std::to_string(std::ranges::find(m_fields, field) - m_fields.begin());
    }

    [[nodiscard]] std::string joinName(const store::TableDefinition& table) const
    {
        return 'j' + std::to_string(std::ranges::find(m_joins, &table, &Join::table) - m_joins.begin());
    }

    [[nodiscard]] std::string joinTable(std::size_t number) const
    {
        const Join& join = m_joins[number];
        std::string sql = 'j' + std::to_string(number) + " AS MATERIALIZED (SELECT " +
                          meeting(join, store::quotedName(join.key.name())) + " AS k";
        for (const auto& field : m_fields) {
            if (field.table == join.table)
                sql += ", " + store::quotedName(field.name()) + " AS " + alias(field);
        }
        // Beside min() the engine takes the other columns from the same row.
        return sql + ", min(_rowid_) FROM " + store::quotedName(join.table->name) + " GROUP BY 1)";
    }

    /// A column as a join compares it: by value when one of the two is a text.
    [[nodiscard]] static std::string meeting(const Join& join, const std::string& column)
    {
        return join.key.isText() || join.of.isText() ? byValue(column) : column;
    }

    /// @param below true inside "l", where the column comes from a row; false where rows are added up
    /// already.
    [[nodiscard]] std::string column(const FieldName& field, bool below) const
    {
        if (field.table != m_source.table)
            return joinName(*field.table) + '.' + alias(field);
        return below ? plain(field) : "l." + alias(field);
    }

    [[nodiscard]] std::string joined(bool below) const
    {
        std::string sql;
        for (const auto& join : m_joins) {
            if (isJoined(*join.table))
                sql += leftJoin(join, below);
        }
        return sql;
    }

    [[nodiscard]] std::string leftJoin(const Join& join, bool below) const
    {
        const std::string name = joinName(*join.table);
        const std::string of = column(join.of, below);
        // The keys of lines are by value already.
        const bool isDone = !below && m_source.isKey(join.of) && join.of.isText();
        return " LEFT JOIN " + name + " ON " + name + ".k = " + (isDone ? of : meeting(join, of));
    }

    [[nodiscard]] std::string rows() const
    {
        return (m_rows.empty() ? store::quotedName(m_source.table->name) : m_rows) + " b";
    }

    std::string where()
    {
        std::string sql;
        const auto named = [this](const FieldName& field) {
            return column(field, true);
        };
        if (m_rows.empty() && !m_condition.isAlwaysTrue())
            sql += " WHERE " + conditionSql(m_condition, named, m_statement.values);
        if (m_source.where) {
            sql += sql.empty() ? " WHERE " : " AND ";
            sql += conditionSql(*m_source.where, named, m_statement.values);
        }
        return sql;
    }

    /// A field of the report's own table, in a row.
    [[nodiscard]] static std::string plain(const FieldName& field)
    {
        return "b." + store::quotedName(field.name());
    }

    [[nodiscard]] static std::string keyOf(const FieldName& field)
    {
        return field.isText() ? byValue(plain(field)) : plain(field);
    }

    std::string sums()
    {
        std::string columns;
        std::string groups;
        int number = 0;
        for (const auto& field : m_fields) {
            if (field.table != m_source.table)
                continue;
            ++number;
            std::string value = "exact_sum(" + plain(field) + ')';
            if (m_source.isKey(field)) {
                value = keyOf(field);
                groups += (groups.empty() ? "" : ", ") + std::to_string(number);
            }
            columns += (columns.empty() ? "" : ", ") + value + " AS " + alias(field);
        }
        return "SELECT " + columns + " FROM " + rows() + (m_joinsBelow ? joined(true) : std::string()) +
               where() + " GROUP BY " + groups;
    }

    /// Lines of zeros for the records of the whole join that no row meets. A record without a number is none.
    std::string unmetRecords()
    {
        std::string columns;
        for (const auto& field : m_fields) {
            if (field.table == m_source.table)
                columns += (columns.empty() ? "" : ", ") + (field == m_whole->of ? wholeKey() : "'0'");
        }
        const std::string joins = unmetJoins();
        const std::string met = "SELECT " + alias(m_whole->of) + " FROM s WHERE " + alias(m_whole->of);
        return "SELECT " + columns + " FROM " + joinName(*m_whole->table) + joins + " WHERE " + wholeKey() +
               " NOT IN (" + met + " IS NOT NULL) AND " + wholeKey() +
               (m_whole->key.isText() || m_whole->of.isText() ? " NOT IN ('', '0')" : " <> 0") +
               unmetCondition();
    }

    [[nodiscard]] std::string wholeKey() const { return joinName(*m_whole->table) + ".k"; }

    /// The tables that are found from a record of the whole join.
    std::string unmetJoins()
    {
        std::string sql;
        m_unmet = {m_whole->table};
        for (const auto& join : m_joins) {
            if (!isJoined(*join.table) || std::ranges::find(m_unmet, join.of.table) == m_unmet.end())
                continue;
            sql += leftJoin(join, true);
            m_unmet.push_back(join.table);
        }
        return sql;
    }

    /// What the selection asks of these tables; its days are for the rows of sales.
    std::string unmetCondition()
    {
        QStringList others;
        const auto reads = [this](const store::TableDefinition& table) {
            return std::ranges::find(m_unmet, &table) != m_unmet.end();
        };
        const auto named = [this](const FieldName& field) {
            return column(field, true);
        };
        std::string sql;
        for (const Condition& whole : {m_condition, m_source.where.value_or(Condition())}) {
            const Condition condition = restrictedTo(whole, reads, others);
            if (!condition.isAlwaysTrue())
                sql += " AND " + conditionSql(condition, named, m_statement.values);
        }
        return sql;
    }

    [[nodiscard]] std::string list() const
    {
        std::string sql;
        for (const auto& field : m_source.fields)
            sql += (sql.empty() ? "" : ", ") + column(field, !m_source.addsUp());
        return sql;
    }

    std::string lines()
    {
        if (m_source.addsUp())
            return 'l' + joined(false);
        const std::string tables = rows() + joined(true);
        return tables + where();
    }

    [[nodiscard]] std::string order() const
    {
        std::string sql;
        const auto add = [&sql](const std::string& term) {
            sql += (sql.empty() ? " ORDER BY " : ", ") + term;
        };
        if (m_source.groupBy) {
            // Lines without a group are one group, whether the register left the number empty or put zeros.
            const std::string none = isNoGroup(*m_source.groupBy);
            add(none);
            add("CASE WHEN " + none + " THEN NULL ELSE " + column(*m_source.groupBy, !m_source.addsUp()) +
                " END" + (m_source.groupBy->isText() ? " COLLATE NOCASE" : ""));
        }
        for (const auto& key : m_source.order)
            add(orderTerm(key));
        return sql;
    }

    /// True, and so last, for a row without a group: the register left the number empty or put zeros there.
    [[nodiscard]] std::string isNoGroup(const FieldName& field) const
    {
        return namesNothingSql(field, column(field, !m_source.addsUp()));
    }

    [[nodiscard]] std::string orderTerm(const SortKey& key) const
    {
        const std::string plain = column(key.field, !m_source.addsUp());
        if (m_source.isSum(key.field))
            return "CAST(" + plain + " AS REAL)" + (key.order == Order::Descending ? " DESC" : "");
        switch (key.order) {
        case Order::ByValue:
            return "trim(" + plain + ") COLLATE norvane_digits NULLS LAST";
        case Order::Descending:
            return plain + (key.field.isText() ? " COLLATE NOCASE DESC" : " DESC");
        default:
            return plain + (key.field.isText() ? " COLLATE NOCASE" : "") + " NULLS LAST";
        }
    }

    const LineSource& m_source;
    const std::vector<Join>& m_joins;
    const Condition& m_condition;
    const std::string& m_rows;
    std::vector<FieldName> m_fields; ///< those of the source first, then those that only the statement needs
    bool m_joinsBelow = false;
    const Join* m_whole = nullptr; ///< adds lines for records that no row meets
    std::vector<const store::TableDefinition*> m_unmet;
    LineStatement m_statement;
};

} // namespace

LineStatement makeLineStatement(const LineSource& source, const std::vector<Join>& joins,
                                const Condition& condition, const std::string& rows)
{
    return Writer(source, joins, condition, rows).write();
}

const Join* recordJoinOf(const LineSource& source, const std::vector<Join>& joins, const Condition& condition)
{
    const auto isOther = [&source](const FieldName& field) {
        return field.table != source.table;
    };
    const auto isSum = [&source](const SortKey& key) {
        return source.isSum(key.field);
    };
    if (source.keys.size() != 1 || std::ranges::any_of(joins, &Join::isWhole) ||
        std::ranges::any_of(source.order, isSum) || mentions(condition, isOther) ||
        (source.where && mentions(*source.where, isOther)))
        return nullptr;
    const auto found = std::ranges::find(joins, source.keys.front(), &Join::of);
    const bool isUsed =
        found != joins.end() && std::ranges::any_of(source.fields, [&found](const FieldName& field) {
            return field.table == found->table;
        });
    return isUsed ? &*found : nullptr;
}

LineStatement makeRowStatement(const LineSource& source, const Condition& condition, const std::string& rows)
{
    return Writer(source, {}, condition, rows).writeRows();
}

LineStatement makeRecordStatement(const LineSource& source, const std::vector<Join>& joins,
                                  const std::vector<store::Value>& others)
{
    const Join* const join = recordJoinOf(source, joins, {});
    return Writer(source, joins, {}, {}).writeRecords(*join, others);
}

} // namespace norvane::reports
