// demo_shop: makes the customer "DEMO CAFE" in a staged program folder, unless it is there.
//   demo_shop <program folder> --tools <folder> [--scratch <folder>] [--first <date>] [--last <date>]
#include "platform/RuntimeFailure.h"
#include "scripts/demoshop/DemoShop.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int months = 13;

void declareOptions(QCommandLineParser& parser)
{
    const QDate yesterday = QDate::currentDate().addDays(-1);
    parser.addHelpOption();
    parser.addPositionalArgument(u"folder"_s, u"Folder of the program."_s);
    parser.addOptions({
        {u"tools"_s, u"Folder with makebank and ringsales."_s, u"folder"_s},
        {u"scratch"_s, u"Quick folder for what is needed meanwhile."_s, u"folder"_s, QDir::tempPath()},
        {u"first"_s, u"First day of the sales."_s, u"yyyy-mm-dd"_s,
         yesterday.addMonths(-months).addDays(1).toString(Qt::ISODate)},
        {u"last"_s, u"Last day of the sales."_s, u"yyyy-mm-dd"_s, yesterday.toString(Qt::ISODate)},
    });
}

demo::Wish readWish(const QCoreApplication& application)
{
    QCommandLineParser parser;
    declareOptions(parser);
    parser.process(application);
    if (parser.positionalArguments().size() != 1 || !parser.isSet(u"tools"_s))
        parser.showHelp(2);
    const auto path = [](const QString& folder) {
        return QDir(folder).absolutePath();
    };
    const auto day = [&parser](const QString& option) {
        return QDate::fromString(parser.value(option), Qt::ISODate);
    };
    return {path(parser.positionalArguments().first()), path(parser.value(u"tools"_s)),
            path(parser.value(u"scratch"_s)), day(u"first"_s), day(u"last"_s)};
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const demo::Wish wish = readWish(application);
    try {
        if (!QDir(wish.program).exists(demo::shopName()))
            demo::makeDemoShop(wish);
    } catch (const norvane::RuntimeFailure& failure) {
        std::fprintf(stderr, "demo_shop: %s\n", qPrintable(failure.text()));
        return 1;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "demo_shop: %s\n", failure.what());
        return 1;
    }
    return 0;
}
