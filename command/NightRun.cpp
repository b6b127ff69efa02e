// See NightRun.h.
#include "command/NightRun.h"

#include "command/NightShop.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

class NightRun
{
public:
    NightRun(const Workplace& workplace, const NightOptions& options, const NightClock& clock,
             const ShopEnded& ended)
        : m_workplace(workplace), m_options(options), m_clock(clock), m_ended(ended),
          m_chain(options.connection)
    {
    }

    void add(const QString& name)
    {
        m_shops.push_back(std::make_unique<NightShop>(m_workplace, name, m_options, m_clock, m_chain));
    }
    void run()
    {
        std::vector<NightShop*> open;
        for (const auto& shop : m_shops)
            open.push_back(shop.get());
        attempt(open, m_options.retries == 0);
        for (int retry = 1; retry <= m_options.retries; ++retry) {
            std::erase_if(open, [](const NightShop* shop) { return !shop->result().mayRetry(); });
            if (open.empty())
                return;
            m_clock.sleep(m_options.betweenRetries);
            attempt(open, retry == m_options.retries);
        }
    }
    [[nodiscard]] std::vector<ShopNight> results() const
    {
        std::vector<ShopNight> results;
        for (const auto& shop : m_shops)
            results.push_back(shop->result());
        return results;
    }

private:
    void attempt(const std::vector<NightShop*>& shops, bool isLastRound)
    {
        m_chain.beginRound();
        for (NightShop* const shop : shops) {
            shop->attempt();
            m_ended(shop->result(), isLastRound || !shop->result().mayRetry());
        }
    }

    const Workplace& m_workplace;
    const NightOptions& m_options;
    const NightClock& m_clock;
    const ShopEnded& m_ended;
    NightChain m_chain;
    std::vector<std::unique_ptr<NightShop>> m_shops;
};

} // namespace

void runNight(const Workplace& workplace, const QStringList& names, const NightOptions& options,
              const NightClock& clock, const ShopEnded& ended, std::vector<ShopNight>& results)
{
    NightRun run(workplace, options, clock, ended);
    for (const QString& name : names)
        run.add(name);
    try {
        run.run();
    } catch (const RuntimeFailure&) {
        results = run.results();
        throw;
    }
    results = run.results();
}

} // namespace norvane::command
