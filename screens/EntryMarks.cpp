// See EntryMarks.h.
#include "screens/EntryMarks.h"

#include "ui/Appearance.h"

#include <QLineEdit>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// The empty box and screen readers say it.
const QString& entryHint()
{
    static const QString hint = u"To be typed"_s;
    return hint;
}

} // namespace

void EntryMarks::mark(QLineEdit& box)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, ui::colours::yielding(ui::colours::warningPale, QPalette::Base));
    palette.setColor(QPalette::Text, ui::colours::yielding(ui::colours::text, QPalette::Text));
    palette.setColor(QPalette::PlaceholderText, ui::colours::yielding(ui::colours::text, QPalette::Text));
    box.setPalette(palette);
    box.setPlaceholderText(entryHint());
    box.setAccessibleDescription(entryHint());
    m_marked += &box;
    connect(&box, &QLineEdit::textEdited, this, [&box] { unmark(box); });
}

void EntryMarks::clear()
{
    for (const auto& box : std::exchange(m_marked, {})) {
        if (box == nullptr)
            continue;
        disconnect(box, &QLineEdit::textEdited, this, nullptr);
        unmark(*box);
    }
}

void EntryMarks::unmark(QLineEdit& box)
{
    box.setPalette({});
    box.setPlaceholderText({});
    box.setAccessibleDescription({});
}

} // namespace norvane::screens
