// See ChainPages.h.
#include "chain/ChainPages.h"

#include "chain/ChainSchema.h"
#include "chain/PageText.h"
#include "chain/Server.h"
#include "platform/FilePaths.h"

#include <map>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

/// What all pages are about, an empty text, or one shop by its number.
using Subject = QString;

QString fieldText(const pqxx::field& field)
{
    return field.is_null() ? QString() : QString::fromUtf8(field.c_str());
}

/// The figures of the chain at one moment.
class Site
{
public:
    void read(pqxx::work& work)
    {
        work.exec0("SET TRANSACTION ISOLATION LEVEL REPEATABLE READ, READ ONLY");
        const auto days = work.exec1("SELECT current_date - 29, current_date");
        m_first = days[0].c_str();
        m_today = days[1].c_str();
        m_titles = {{Subject(), u"All shops"_s}};
        for (const auto& row : work.exec("SELECT shop, name FROM shops"))
            m_titles[fieldText(row[0])] = fieldText(row[1]);
        for (const PageSection& section : pageSections())
            readSection(work, section);
    }

    void write(const QString& folder) const
    {
        for (const auto& [subject, title] : m_titles) {
            const auto body = m_bodies.find(subject);
            const QString page =
                pageText(title, subtitleOf(subject), body == m_bodies.end() ? QString() : body->second);
            writeWholeFile(joinPath(folder, subject.isEmpty() ? u"index.html"_s : shopPageName(subject)),
                           page.toUtf8());
        }
    }

    [[nodiscard]] int pages() const { return static_cast<int>(m_titles.size()); }

private:
    [[nodiscard]] QString subtitleOf(const Subject& subject) const
    {
        const QString day = u"Written on %1"_s.arg(QString::fromStdString(m_today));
        return subject.isEmpty() ? day : day + u". <a href=\"index.html\">All shops</a>"_s;
    }

    void readSection(pqxx::work& work, const PageSection& section)
    {
        std::map<Subject, QList<PageRow>> rows;
        for (const auto& line : work.exec_params(section.query, m_first, m_today)) {
            PageRow row;
            for (pqxx::row::size_type place = 1; place < line.size(); ++place)
                row << fieldText(line[place]);
            rows[fieldText(line[0])] << row;
        }
        for (const auto& [subject, lines] : rows)
            m_bodies[subject] += sectionText(section, lines);
    }

    std::string m_first;
    std::string m_today;
    std::map<Subject, QString> m_titles;
    std::map<Subject, QString> m_bodies;
};

} // namespace

int writeChainPages(Server& server, const QString& folder)
{
    if (!isSchemaCurrent(server))
        throw ChainError(ChainFailure::Unfit, u"No shop is published there yet (%1)."_s.arg(server.where()));
    Site site;
    server.transact([&site](pqxx::work& work) { site.read(work); });
    site.write(folder);
    return site.pages();
}

} // namespace norvane::chain
