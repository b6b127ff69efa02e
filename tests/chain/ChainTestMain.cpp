// One server for all tests, since making one takes longer than most of them.
#include "tests/chain/ChainTest.h"

#include <QCoreApplication>

#include <memory>

namespace norvane::test
{
namespace
{

std::unique_ptr<PostgresServer> server;

class ServerOfAllTests : public testing::Environment
{
public:
    void SetUp() override
    {
        ASSERT_TRUE(PostgresServer::isInstalled()) << "scripts/install-packages.sh brings it";
        server = std::make_unique<PostgresServer>();
        ASSERT_TRUE(server->start());
    }
    void TearDown() override { server.reset(); }
};

} // namespace

PostgresServer& postgres()
{
    return *server;
}

} // namespace norvane::test

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new norvane::test::ServerOfAllTests);
    return RUN_ALL_TESTS();
}
