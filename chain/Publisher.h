// Copies a shop's sales, and the names of its numbers, to the PostgreSQL of its chain.
#pragma once

#include "chain/ChainShop.h"
#include "chain/ShopDays.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <functional>

namespace norvane::chain
{

/// Choices of one publication.
struct PublishOptions {
    Vanished vanished = Vanished::Ask;
    bool adopt = false;                              ///< see findShop()
    std::function<void(const QString& text)> step{}; ///< called before each month
    bool comparesSums = false; ///< trusts no digest: publishes days of which any sum differs
};

/// Result of one publication.
struct Published {
    int days = 0; ///< new or changed ones that were published
    qint64 rows = 0;
    int same = 0;
    QList<QDate> vanished;     ///< published days that the shop no longer has
    QStringList vanishedNames; ///< tables of names that are published and empty in the shop
    int heldBack = 0;          ///< days that differ and remain as published because others vanished
    QStringList differences;   ///< a sentence for each day or month whose sums differed
    QStringList unsound;       ///< a sentence for each day that PostgreSQL cannot take, which was left out
};

/// Publishes names and all days that are new or changed, month by month: a month is published completely or
/// not at all, so that an interrupted publication continues where it stopped.
///
/// A shop whose sales were reset has lost days. Published days remain, and so do days that differ, because
/// the day of the reset may have lost its morning; @p options says what to do with them. A day that was kept
/// is published when it changes in the shop after that.
///
/// Monthly totals are made in the same transactions. Days that a former program published are brought into
/// the present form first.
/// @throws ChainError; RuntimeFailure as the customer's database reports. What was published before remains.
Published publishShop(Server& server, const ShopFolder& folder, const PublishOptions& options);

/// What publishShop() would do. Changes nothing, here or there, not even the schema. @throws as it does;
/// Unfit for a schema that a publication would upgrade first.
Published previewShop(Server& server, const ShopFolder& folder, const PublishOptions& options);

} // namespace norvane::chain
