// How far an exchange is, and how long the rest takes by the times of former ones.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangePlan.h"
#include "exchange/UnfinishedExchange.h"
#include "link/RunProgress.h"

#include <QElapsedTimer>
#include <QList>
#include <QMap>

#include <chrono>
#include <functional>
#include <optional>
#include <span>
#include <utility>

namespace norvane::exchange
{

/// The files of one exchange. How long each took is kept in the customer's folder.
class ExchangeProgress
{
public:
    /// @param waited milliseconds spent so far on waiting for answers of the user. @p values must outlive it.
    ExchangeProgress(const ApplicationValues& values, std::function<qint64()> waited)
        : m_values(values), m_waited(std::move(waited))
    {
    }

    /// @param files in the order in which they will move
    void begin(Direction direction, const QList<int>& files);
    /// The next file. @return how far the exchange is, without its time when one of the files that are left
    /// never moved before
    [[nodiscard]] link::RunProgress beginFile(int file);
    /// It has moved.
    void endFile();
    /// Remembers the times of the files that have moved.
    void end();

private:
    [[nodiscard]] qint64 worked() const { return m_clock.elapsed() - m_waited(); }
    [[nodiscard]] std::optional<std::chrono::milliseconds> timeLeft(qsizetype first) const;

    const ApplicationValues& m_values;
    std::function<qint64()> m_waited;
    Direction m_direction = Direction::Upload;
    QList<int> m_files;
    QMap<int, qint64> m_former; ///< milliseconds by file
    QMap<int, qint64> m_taken;  ///< the same of this exchange
    QElapsedTimer m_clock;
    int m_file = 0;
    qint64 m_begun = 0; ///< when the file began
};

/// The files of ticked boxes in the order of a plan. The points follow the PLUs by themselves, and registers
/// without cards have neither them nor the other files of cards.
template <typename Row>
[[nodiscard]] QList<int> filesOfBoxes(std::span<const Row> plan, const QList<int>& boxes, bool hasCards)
{
    QList<int> files;
    for (const Row& row : plan) {
        const bool follows = row.box == pluPointsBox && boxes.contains(pluBox);
        if ((boxes.contains(row.box) || follows) && (hasCards || row.box < firstSmartCardBox))
            files << row.file;
    }
    return files;
}

} // namespace norvane::exchange
