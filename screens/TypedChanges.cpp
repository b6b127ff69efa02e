// See TypedChanges.h.
#include "screens/TypedChanges.h"

#include "screens/FieldPanel.h"

#include <algorithm>

namespace norvane::screens
{
namespace
{

bool isSameControl(const BoundField& one, const BoundField& other)
{
    return one.kind == other.kind && one.dataField == other.dataField;
}

} // namespace

void TypedChanges::begin()
{
    m_unchanged = m_panel.contents();
}

bool TypedChanges::exist() const
{
    return !std::ranges::equal(m_panel.contents(), m_unchanged, {}, &BoundField::content,
                               &BoundField::content);
}

BoundFields TypedChanges::fields() const
{
    BoundFields typed;
    const BoundFields now = m_panel.contents();
    for (qsizetype place = 0; place < now.size(); ++place) {
        if (now[place].content != m_unchanged[place].content)
            typed += now[place];
    }
    return typed;
}

void TypedChanges::putBack(const BoundFields& typed)
{
    BoundFields fields = m_panel.contents();
    for (BoundField& field : fields) {
        const auto found = std::ranges::find_if(
            typed, [&field](const BoundField& changed) { return isSameControl(changed, field); });
        if (found != typed.end())
            field.content = found->content;
    }
    m_panel.showContents(fields);
}

} // namespace norvane::screens
