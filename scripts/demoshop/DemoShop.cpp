// Makes the shop by the program's own upload and import, with reports from the real tools; see DemoShop.h.
#include "scripts/demoshop/DemoShop.h"

#include "customers/CustomerFolders.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangeRunner.h"
#include "link/ToolRun.h"
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "sales/PollImport.h"
#include "scripts/demoshop/TillDays.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"

#include <QDir>
#include <QTemporaryDir>

#include <atomic>
#include <future>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace norvane;

namespace demo
{
namespace
{

void require(bool holds, const QString& complaint)
{
    if (!holds)
        throw std::runtime_error(complaint.toStdString());
}

/// No user can read or answer, so any box is a failure.
class NoBoxes : public Boxes
{
public:
    void message(const QString& text, const QString& /*title*/, BoxIcon /*icon*/) override
    {
        require(false, text);
    }
    bool ask(const QString& text, const QString& /*title*/, BoxIcon /*icon*/, BoxAnswer /*preset*/) override
    {
        require(false, text);
        return false;
    }
    QString input(const QString& prompt, const QString& /*title*/, const QString& /*initial*/) override
    {
        require(false, prompt);
        return {};
    }
    QString fileToOpen(const FileRequest& request) override { return input(request.title, {}, {}); }
    QString fileToSave(const FileRequest& request) override { return input(request.title, {}, {}); }
    void beep() override {}
};

class AllBoxes : public exchange::TickBoxes
{
public:
    [[nodiscard]] bool isTicked(int box) const override { return !m_moved.contains(box); }
    void setTicked(int box, bool ticked) override
    {
        if (!ticked)
            m_moved.insert(box);
    }
    [[nodiscard]] bool allMoved() const { return m_moved.size() == exchange::boxCount; }

private:
    std::set<int> m_moved;
};

/// Works in the program's folder, so that the memory file is there for the screens that ask for it.
void upload(const ApplicationValues& values)
{
    NoBoxes boxes;
    const auto lock = FolderLock::take(values.appPath, boxes);
    QDir::setCurrent(values.appPath);
    AllBoxes all;
    const link::LinkSettings link = link::readLinkSettings(values);
    exchange::ExchangeRunner(
        values, link, all,
        {.runAndWait = [&](const QString& line) { return link::RunAndWait(values, line); },
         .readStatus = link::ReadStatusOut,
         .showStep = [](const QString&) {},
         .showNotice = [](const QString& text) { require(false, text); },
         .goOn = [] { return true; },
         .boxes = boxes})
        .UploadData();
    require(all.allMoved(), u"the upload was not complete"_s);
}

/// Rings and collects the days on as many registers as the machine has processors, and stores them one at a
/// time.
class Trade
{
public:
    Trade(const Wish& wish, QString scratch, QString database)
        : m_wish(wish), m_scratch(std::move(scratch)), m_database(std::move(database)),
          m_days(tradeDays(wish.first, wish.last))
    {
    }

    void tradeAllDays()
    {
        std::vector<std::future<void>> tills;
        const unsigned count = std::clamp(std::thread::hardware_concurrency(), 1U, mostTills);
        for (unsigned till = 0; till < count; ++till)
            tills.push_back(std::async(std::launch::async, [this, till] { keepTill(till); }));
        for (auto& till : tills)
            till.get();
    }

private:
    static constexpr unsigned mostTills = 8;

    void keepTill(unsigned number)
    {
        const TillDays till(joinPath(m_scratch, u"till%1"_s.arg(number)), m_wish.program, m_wish.tools,
                            m_database);
        for (auto next = m_next++; next < m_days.size(); next = m_next++) {
            till.bringHome(m_days.at(next));
            store(till.values(), m_days.at(next).date);
        }
    }
    void store(const ApplicationValues& values, QDate date)
    {
        const std::scoped_lock oneAtATime(m_storing);
        store::Database database(values.databasePath);
        store::CommitOnExit transaction(database);
        for (const sales::PollFile& file : sales::pollFiles())
            sales::importPollFile(file, database, values, date);
        transaction.commit();
    }

    const Wish& m_wish;
    QString m_scratch;
    QString m_database;
    std::vector<TradeDay> m_days;
    std::atomic<std::size_t> m_next = 0;
    std::mutex m_storing;
};

/// Makes an empty customer in @p folder from the program's templates.
ApplicationValues makeCustomer(const Wish& wish, const QString& folder)
{
    ApplicationValues values;
    values.appPath = folder;
    for (const auto& file : {QString(databaseFileName), u"setup.ini"_s})
        require(QFile::copy(joinPath(wish.program, file), joinPath(folder, file)), u"cannot copy "_s + file);
    require(customers::chooseCustomer(values, shopName()) == customers::CustomerChoice::Created,
            u"cannot make the customer"_s);
    values.databasePath = customers::customerDatabase(values.customerPath);
    values.appPath = wish.program;
    return values;
}

/// First a copy beside the program's folder: a move within one disk is atomic.
void moveIntoProgram(const QString& customer, const QString& program)
{
    QDir copy(program + u".demo"_s);
    copy.removeRecursively();
    require(copy.mkpath(u"."_s), u"cannot write to "_s + copy.path());
    for (const QString& name : QDir(customer).entryList(QDir::Files))
        require(QFile::copy(joinPath(customer, name), copy.filePath(name)), u"cannot copy "_s + name);
    require(copy.rename(copy.absolutePath(), joinPath(program, shopName())), u"cannot move the customer"_s);
}

} // namespace

QString shopName()
{
    return u"DEMO CAFE"_s;
}

void makeDemoShop(const Wish& wish)
{
    const QTemporaryDir scratch(joinPath(wish.scratch, u"demo_shop-XXXXXX"_s));
    require(scratch.isValid(), scratch.errorString());
    const ApplicationValues values = makeCustomer(wish, scratch.path());
    upload(values);
    Trade(wish, scratch.path(), values.databasePath).tradeAllDays();
    moveIntoProgram(values.customerPath, wish.program);
}

} // namespace demo
