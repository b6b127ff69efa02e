// Brings what a shop has sold, and what its numbers mean, into the PostgreSQL of its chain.
#pragma once

#include "chain/ChainShop.h"
#include "chain/ShopDays.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <functional>

namespace norvane::chain
{

/// What becomes of days that are published and that the shop no longer has.
enum class Vanished {
    Ask,   ///< they stay, and the next publication tells of them again
    Keep,  ///< they stay for good
    Remove ///< they go
};

struct PublishOptions {
    Vanished vanished = Vanished::Ask;
    bool adopt = false;                              ///< see findShop()
    std::function<void(const QString& text)> step{}; ///< told before each month
};

struct Published {
    int days = 0; ///< new or changed ones that were published
    qint64 rows = 0;
    int same = 0;
    QList<QDate> vanished;     ///< published days that the shop no longer has
    QStringList vanishedNames; ///< tables of names that are published and empty in the shop
    int heldBack = 0;          ///< days that differ and stay as published because others vanished
};

/// Publishes names and all days that are new or changed, month by month: a month is published wholly or not
/// at all, so that one that was cut off goes on where it stopped.
///
/// A shop whose sales were reset has lost days. Those that are published stay, and so do those that differ,
/// for the day of the reset itself may have lost its morning; what becomes of them @p options tell.
/// @throws ChainError; RuntimeFailure as the customer's database reports. What was published before stays.
Published publishShop(Server& server, const ShopFolder& folder, const PublishOptions& options);

} // namespace norvane::chain
