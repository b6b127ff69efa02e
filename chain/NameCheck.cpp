// See NameCheck.h.
#include "chain/NameCheck.h"

#include "chain/RowText.h"
#include "chain/SourceRows.h"

#include <map>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

using store::Value;

/// The rows of a table as COPY reads them, by their keys.
using NameRows = std::map<std::string, std::string>;

void addRow(NameRows& rows, const std::string& line)
{
    rows[line.substr(0, line.find('\t'))] = line;
}

NameRows rowsInShop(store::Database& database, const NameTable& table)
{
    NameRows rows;
    (void)readNames(database, table, [&rows](const std::string& line) { addRow(rows, line); });
    return rows;
}

/// A text was trimmed, and a time formatted, when it was sent.
Content asSent(Content content)
{
    return content == Content::Text || content == Content::Time ? Content::Key : content;
}

std::string lineOf(const pqxx::row& row, const NameTable& table)
{
    std::string line;
    for (std::size_t at = 0; at < table.columns.size(); ++at) {
        const auto field = row[static_cast<pqxx::row::size_type>(at)];
        line.append(at == 0 ? 0 : 1, '\t');
        appendValue(line, field.is_null() ? Value() : Value::text(std::string(field.c_str())),
                    asSent(table.columns[at].content));
    }
    return line;
}

NameRows rowsInChain(pqxx::work& work, const NameTable& table, int shop)
{
    std::string columns;
    for (const std::string& column : columnsOf(table))
        columns += (columns.empty() ? "" : ", ") + column;
    NameRows rows;
    for (const auto& row :
         work.exec_params("SELECT " + columns + " FROM " + table.name + " WHERE shop = $1", shop))
        addRow(rows, lineOf(row, table));
    return rows;
}

/// The keys of the rows of @p some that @p others does not have, or not like that.
void addMissing(std::set<std::string>& keys, const NameRows& some, const NameRows& others)
{
    for (const auto& [key, line] : some) {
        const auto found = others.find(key);
        if (found == others.end() || found->second != line)
            keys.insert(key);
    }
}

} // namespace

QString nameDifference(pqxx::work& work, store::Database& database, const NameTable& table, int shop)
{
    const NameRows here = rowsInShop(database, table);
    const NameRows there = rowsInChain(work, table, shop);
    std::set<std::string> keys;
    addMissing(keys, here, there);
    addMissing(keys, there, here);
    if (keys.empty())
        return {};
    const QString others = keys.size() > 1 ? u" and %1 more"_s.arg(keys.size() - 1) : QString();
    return u"%1 differs in %2%3."_s.arg(QLatin1StringView(table.name), QString::fromStdString(*keys.begin()),
                                        others);
}

} // namespace norvane::chain
