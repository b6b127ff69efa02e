// See PreviewHistory.h.
#include "reports/window/PreviewHistory.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

QString PreviewHistory::path() const
{
    QStringList names{m_stops.front().document->report().heading.title};
    for (std::size_t stop = 1; stop <= m_current; ++stop)
        names << m_stops[stop].request.filters.back().name;
    names.removeAll(QString());
    return names.join(u" › "_s);
}

} // namespace norvane::reports
