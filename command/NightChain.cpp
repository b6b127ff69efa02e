// See NightChain.h.
#include "command/NightChain.h"

#include "chain/ChainSchema.h"
#include "chain/Publisher.h"
#include "command/PublishEnds.h"
#include "command/StopSignals.h"
#include "customers/CustomerLog.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

bool isOfServer(ExitCode code)
{
    return code == ExitCode::NoServer || code == ExitCode::ConnectionLost;
}

/// A vanished or unsound day is left to do, whatever else was published.
NightEnd endOf(const chain::Published& published, const QString& name)
{
    QStringList left = published.unsound;
    if (!published.vanished.isEmpty() || !published.vanishedNames.isEmpty())
        left << vanishedText(name, published);
    if (!left.isEmpty()) {
        const auto code = published.unsound.isEmpty() ? ExitCode::Vanished : ExitCode::Unsound;
        return {code, left.join(u'\n'), false};
    }
    if (published.days == 0)
        return {};
    return {ExitCode::Done,
            published.days == 1 ? u"1 day published"_s : u"%1 days published"_s.arg(published.days), false};
}

} // namespace

chain::Server& NightChain::server()
{
    if (m_server == nullptr) {
        auto server = std::make_unique<chain::Server>(m_connection);
        chain::prepareSchema(*server);
        m_server = std::move(server);
    }
    return *m_server;
}

NightEnd NightChain::publish(const ApplicationValues& values)
{
    if (m_failure)
        return *m_failure;
    const QString name = QFileInfo(values.customerPath).fileName();
    try {
        chain::Server& server = this->server();
        customers::LoggedWork work(values.customerPath, u"publication"_s);
        const auto published = work.during([&] {
            chain::PublishOptions options;
            options.step = [](const QString& /*text*/) {
                stopIfSignalled();
            };
            return chain::publishShop(server, {name, values.customerPath, values.databasePath}, options);
        });
        work.setResult(u"%1 days, %2 rows"_s.arg(published.days).arg(published.rows));
        return endOf(published, name);
    } catch (const chain::ChainError& error) {
        const ExitCode code = codeOf(error);
        NightEnd end{code, error.text(), isOfServer(code) || code == ExitCode::Busy};
        if (!isOfShop(error)) {
            m_server.reset();
            // The next shop connects again when the connection was lost on the way.
            if (code != ExitCode::ConnectionLost)
                m_failure = end;
        }
        return end;
    }
}

} // namespace norvane::command
