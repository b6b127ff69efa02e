// The keys of a level one after another, as the customer's tables have them.
#pragma once

#include "overlay/LevelKey.h"
#include "store/engine/Recordset.h"

#include <vector>

namespace norvane::overlay
{

/// A table whose DESCRIPTION names what a key does.
class NamedRows
{
public:
    struct Table {
        QString name;
        QString index;   ///< of the numbers of its rows
        QString unknown; ///< what a key is called whose row is missing
        QString group;   ///< field with a PLU's group; empty for a table without one
    };
    NamedRows(store::Database& database, Table table);
    /// The key that leads to the row @p number.
    [[nodiscard]] LevelKey keyFor(KeyUse use, const QString& number);

private:
    store::Recordset m_rows;
    int m_description;
    int m_group; ///< -1 for none
    QString m_unknown;
};

/// Begins at the level's first key.
class LevelWalk
{
public:
    /// @throws RuntimeFailure with Failure::NoCurrentRecord if the tables end before @p level begins.
    LevelWalk(store::Database& database, int level, int keysALevel);

    /// What the key does. @throws RuntimeFailure with Failure::NoCurrentRecord after the last row.
    [[nodiscard]] LevelKey key();
    void toNextKey();

private:
    void needRow() const;

    int m_level;
    int m_keysALevel;
    std::vector<QString> m_lookUps;
    store::Recordset m_links;
    int m_link;
    std::size_t m_counter = 1;
    NamedRows m_plus;
    NamedRows m_windows;
    NamedRows m_functions;
};

} // namespace norvane::overlay
