// Entry of the tests with widgets.
#include "tests/support/FormTest.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

std::optional<norvane::RuntimeFailure> caught;

class TestApplication : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const norvane::RuntimeFailure& failure) {
            caught = failure;
            return true;
        }
    }
};

} // namespace

std::optional<norvane::RuntimeFailure> norvane::test::takeFailure()
{
    return std::exchange(caught, std::nullopt);
}

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // The list of the tests is asked for without the tests' environment, on machines without a screen too.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    TestApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    return RUN_ALL_TESTS();
}
