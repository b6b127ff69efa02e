// See Announcement.h.
#include "ui/Announcement.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QWidget>

namespace norvane::ui
{
namespace
{

/// What a place says. Screen readers speak a notification when it appears, and nothing else that is not where
/// the focus is; the label that shows the text keeps its own role.
class Announcement : public QObject
{
public:
    explicit Announcement(QWidget& place) : QObject(&place) {}

    QString text;
};

class AnnouncementInterface : public QAccessibleObject
{
public:
    using QAccessibleObject::QAccessibleObject;

    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(object()->parent());
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? static_cast<Announcement*>(object())->text : QString();
    }
};

QAccessibleInterface* makeNoticeInterface(const QString& /*className*/, QObject* object)
{
    return dynamic_cast<Announcement*>(object) ? new AnnouncementInterface(object) : nullptr;
}

/// A place says one text after the other.
Announcement& announcementOf(QWidget& place)
{
    for (QObject* const child : place.children()) {
        if (auto* const known = dynamic_cast<Announcement*>(child))
            return *known;
    }
    return *new Announcement(place);
}

} // namespace

void announce(QWidget& place, const QString& text)
{
    if (text.isEmpty() || !QAccessible::isActive())
        return;
    QAccessible::installFactory(makeNoticeInterface); // the toolkit takes the same function only once
    Announcement& announcement = announcementOf(place);
    announcement.text = text;
    QAccessibleEvent event(&announcement, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

} // namespace norvane::ui
