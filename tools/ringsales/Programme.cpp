// Picks the columns out of the register's files; see Programme.h.
#include "tools/ringsales/Programme.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

// Files and the places of their columns, from 0.
constexpr int pluFile = 67;
constexpr qsizetype pluStatus = 3;
constexpr qsizetype pluFlags = 7;
constexpr qsizetype pluOffer = 8;
constexpr qsizetype pluFirstPrice = 12;
constexpr int statusFile = 65;
constexpr qsizetype statusKind = 2;
constexpr qsizetype statusStock = 3;
constexpr qsizetype statusAllowed = 4;
constexpr int employeeFile = 63;
constexpr qsizetype employeeTraining = 18;
constexpr int periodFile = 64;
constexpr qsizetype periodActive = 2;
constexpr qsizetype priceLevels = 4; ///< of the memory file

/// One of the six flags that an option column packs in two digits.
struct Flag {
    qsizetype column;
    qsizetype digit;
    int weight;
};

constexpr Flag inactive{pluFlags, 0, 4};
constexpr Flag negative{statusKind, 1, 2};
constexpr Flag hash{statusKind, 1, 1};
constexpr Flag memo{statusStock, 1, 2};
constexpr Flag scaleable{statusStock, 0, 1};
constexpr Flag allowPromotion{statusAllowed, 0, 2};
constexpr Flag allowWaste{statusAllowed, 0, 1};
constexpr Flag allowDiscount{statusAllowed, 1, 4};

bool isSet(const QByteArrayList& record, const Flag& flag)
{
    return (record.at(flag.column).mid(flag.digit, 1).toInt() & flag.weight) != 0;
}

bool isGoods(const QByteArrayList& plu, const QByteArrayList& status)
{
    return !isSet(plu, inactive) && !isSet(status, negative) && !isSet(status, hash) && !isSet(status, memo);
}

Article articleOf(const QByteArrayList& plu, const QByteArrayList& status, std::size_t levels)
{
    Article article;
    article.number = plu.at(0);
    for (std::size_t level = 0; level < levels; ++level)
        article.cents[level] = plu.at(pluFirstPrice + 2 * static_cast<qsizetype>(level)).toLongLong();
    article.offer = plu.at(pluOffer).toInt();
    article.weighed = isSet(status, scaleable);
    article.promotion = isSet(status, allowPromotion);
    article.waste = isSet(status, allowWaste);
    article.discount = isSet(status, allowDiscount);
    return article;
}

std::vector<Article> articlesOf(const Register& source)
{
    const auto levels = std::clamp<std::size_t>(source.memory().at(priceLevels).toULong(), 1, soldLevels);
    const auto statuses = source.records(statusFile);
    std::vector<Article> articles;
    const auto plus = source.records(pluFile);
    for (const auto& plu : plus) {
        const auto status = statuses.value(plu.at(pluStatus).toInt() - 1);
        if (status.isEmpty() || !isGoods(plu, status))
            continue;
        const auto article = articleOf(plu, status, levels);
        if (std::any_of(article.cents.begin(), article.cents.end(), [](qint64 cents) { return cents != 0; }))
            articles.push_back(article);
    }
    return articles;
}

void keepOnly(std::vector<Article>& articles, const Keyboard& keyboard, const KeyPlace& key)
{
    const auto wanted = keyboard.articlesOn(key);
    std::erase_if(articles, [&](const Article& each) { return !wanted.contains(each.number); });
    if (articles.empty())
        throw std::runtime_error("key " + key.text().toStdString() + " rings no article that is sold");
}

std::vector<int> clerksOf(const Register& source)
{
    std::vector<int> clerks;
    int number = 0;
    const auto employees = source.records(employeeFile);
    for (const auto& employee : employees) {
        ++number;
        if (!employee.at(0).trimmed().isEmpty() && employee.at(employeeTraining) == "00")
            clerks.push_back(number);
    }
    return clerks;
}

std::vector<TimePeriod> periodsOf(const Register& source)
{
    std::vector<TimePeriod> periods;
    int number = 0;
    const auto records = source.records(periodFile);
    for (const auto& record : records) {
        ++number;
        if (record.at(periodActive) != "00")
            periods.push_back({number, record.at(0).toInt(), record.at(1).toInt()});
    }
    return periods;
}

} // namespace

int Programme::periodAt(int clock) const
{
    const auto found = std::find_if(periods.begin(), periods.end(), [clock](const TimePeriod& each) {
        return each.from <= clock && clock <= each.to;
    });
    return found == periods.end() ? 0 : found->number;
}

Programme Programme::read(const Register& of, const std::optional<KeyPlace>& only)
{
    Programme programme{articlesOf(of), clerksOf(of), periodsOf(of)};
    const Keyboard keyboard(of);
    if (only)
        keepOnly(programme.articles, keyboard, *only);
    for (Article& article : programme.articles)
        article.key = only ? only : keyboard.keyOf(article.number);
    if (programme.articles.empty() || programme.clerks.empty()) {
        throw std::runtime_error(
            u"register %1 has nothing to sell or nobody to sell it"_s.arg(of.number).toStdString());
    }
    return programme;
}

} // namespace bank
