// Rows of a drop-down list of a screen.
#pragma once

#include "store/engine/Database.h"

#include <QStringList>
#include <QVector>

namespace norvane::screens
{

/// "0;Not used" and then one row for each record of @p sql, made of its first and second column.
/// @throws RuntimeFailure with Failure::UnknownNameInQuery for a faulty query, Failure::UnknownName for one
/// with fewer than two columns.
[[nodiscard]] QVector<QStringList> rowsOfQuery(store::Database& database, const QString& sql);

/// Rows of a fixed list: rows separated by ",", their columns by ";".
[[nodiscard]] QVector<QStringList> rowsOfList(const QString& list);

} // namespace norvane::screens
