// See KeyHitList.h.
#include "keys/layout/KeyHitList.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

QString placeOf(const KeyHit& hit)
{
    return hit.key ? placesText({hit.key->place}) : u"on no key"_s;
}

} // namespace

void KeyHitList::setHits(std::vector<KeyHit> hits)
{
    beginResetModel();
    m_hits = std::move(hits);
    choose();
    endResetModel();
}

void KeyHitList::setPart(const QString& part)
{
    beginResetModel();
    m_part = part;
    choose();
    endResetModel();
}

void KeyHitList::choose()
{
    m_shown.clear();
    for (std::size_t hit = 0; hit < m_hits.size(); ++hit) {
        if (m_hits[hit].text.contains(m_part, Qt::CaseInsensitive))
            m_shown.push_back(hit);
    }
}

int KeyHitList::rowOf(const KeyPlace& place) const
{
    const auto found = std::ranges::find_if(
        m_shown, [&](std::size_t hit) { return m_hits[hit].key && m_hits[hit].key->place == place; });
    return found == m_shown.end() ? -1 : static_cast<int>(found - m_shown.begin());
}

int KeyHitList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int KeyHitList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant KeyHitList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return index.column() == 0 ? placeOf(hit(index.row())) : hit(index.row()).text;
}

QVariant KeyHitList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? u"Where"_s : u"What"_s;
}

} // namespace norvane::keys
