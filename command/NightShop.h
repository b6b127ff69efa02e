// The night of one shop.
#pragma once

#include "command/Night.h"
#include "command/NightChain.h"
#include "command/NightClock.h"
#include "command/NightSettings.h"
#include "command/Workplace.h"
#include "platform/Boxes.h"

#include <functional>
#include <memory>

namespace norvane
{
class FolderLock;
}

namespace norvane::command
{

/// Does the steps of a night at one shop. Each can be done again and then does what is left, so that an
/// attempt that was killed, or a second run of the same night, does nothing twice.
class NightShop
{
public:
    /// @param name of a customer, as typed or listed. The others must outlive it.
    NightShop(const Workplace& workplace, QString name, const NightOptions& options, const NightClock& clock,
              NightChain& chain);
    ~NightShop();
    NightShop(const NightShop&) = delete;
    NightShop& operator=(const NightShop&) = delete;

    /// @throws RuntimeFailure with Failure::UserInterrupt after a signal; any other failure is in the result.
    void attempt();
    [[nodiscard]] const ShopNight& result() const { return m_result; }

private:
    class Boxes;
    using Step = NightEnd (NightShop::*)();
    static const std::array<Step, nightSteps.size()> steps;

    void attemptSteps();
    [[nodiscard]] NightEnd guarded(const std::function<NightEnd()>& work);
    [[nodiscard]] NightEnd failed(ExitCode code, const QString& text) const;
    [[nodiscard]] NightEnd readSettings();
    [[nodiscard]] NightEnd applyPlanned();
    [[nodiscard]] NightEnd collect();
    [[nodiscard]] NightEnd report();
    [[nodiscard]] NightEnd publish();
    [[nodiscard]] NightEnd copy();
    [[nodiscard]] std::unique_ptr<FolderLock> lockFolder();
    [[nodiscard]] bool isCollected() const;
    [[nodiscard]] QDate today() const;
    [[nodiscard]] QDate dayToBook() const;
    [[nodiscard]] QDate lastClosedDay() const;
    template <typename Take>
    [[nodiscard]] auto waitFor(const Take& take);

    const NightOptions& m_options;
    const NightClock& m_clock;
    NightChain& m_chain;
    QStringList m_said;
    std::unique_ptr<Boxes> m_boxes;
    Workplace m_workplace; ///< whose messages are kept for the summary
    QString m_name;
    ApplicationValues m_values;
    NightSettings m_settings;
    QDateTime m_waitUntil; ///< for locks
    // By this run: the option "again" is about earlier ones.
    bool m_hasCollected = false;
    bool m_hasCopied = false;
    ShopNight m_result;
};

} // namespace norvane::command
