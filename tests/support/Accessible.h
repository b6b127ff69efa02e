// A control of a running program as a screen reader meets it: over the bus, by role, name and state.
#pragma once

#include <QtDBus>

#include <stdexcept>

namespace norvane::test
{

using namespace Qt::Literals::StringLiterals;

/// The place of an accessible object on the bus.
struct AccessiblePlace {
    QString service;
    QDBusObjectPath path;
};

/// The bits of the states on the bus.
enum class Spoken { Checked = 4, Editable = 7, Enabled = 8, Focusable = 11, Showing = 25 };

/// Deleted objects have no texts, states and children.
class Accessible
{
public:
    Accessible(QDBusConnection bus, AccessiblePlace place) : m_bus(std::move(bus)), m_place(std::move(place))
    {
    }

    [[nodiscard]] QString role() const { return ask("org.a11y.atspi.Accessible", "GetRoleName").toString(); }
    /// What a user reads on or beside it.
    [[nodiscard]] QString name() const
    {
        const auto answer =
            ask("org.freedesktop.DBus.Properties", "Get", {u"org.a11y.atspi.Accessible"_s, u"Name"_s});
        return answer.value<QDBusVariant>().variant().toString().trimmed();
    }
    /// The text of a box.
    [[nodiscard]] QString text() const { return ask("org.a11y.atspi.Text", "GetText", {0, -1}).toString(); }
    [[nodiscard]] bool is(Spoken state) const
    {
        const auto bits = qdbus_cast<QList<uint>>(ask("org.a11y.atspi.Accessible", "GetState"));
        return (bits.value(0) >> static_cast<unsigned>(state) & 1U) != 0;
    }
    [[nodiscard]] QList<Accessible> children() const
    {
        QList<Accessible> children;
        const QVariant answer = ask("org.a11y.atspi.Accessible", "GetChildren");
        if (isList(answer)) {
            for (const AccessiblePlace& place : readPlaces(answer.value<QDBusArgument>()))
                children += Accessible(m_bus, place);
        }
        return children;
    }
    /// The first in view below this with @p role and @p name. Does not look into tables.
    [[nodiscard]] std::optional<Accessible> find(const QString& role, const QString& name) const
    {
        for (const Accessible& child : children()) {
            const QString found = child.role();
            if (found == role && child.name() == name && child.is(Spoken::Showing))
                return child;
            if (found == "table"_L1 || found == "menu item"_L1)
                continue;
            if (auto below = child.find(role, name))
                return below;
        }
        return std::nullopt;
    }

    /// "Press", "Toggle"; does not wait for what it leads to, such as a dialog.
    void act(const QString& action) const
    {
        int place = 0;
        while (ask("org.a11y.atspi.Action", "GetName", {place}).toString() != action) {
            if (++place == mostActions)
                throw std::runtime_error("no action " + action.toStdString());
        }
        auto call = QDBusMessage::createMethodCall(m_place.service, m_place.path.path(),
                                                   u"org.a11y.atspi.Action"_s, u"DoAction"_s);
        call.setArguments({place});
        m_bus.send(call);
    }
    void setText(const QString& text) const { ask("org.a11y.atspi.EditableText", "SetTextContents", {text}); }

private:
    static constexpr int callMilliseconds = 10000;
    static constexpr int mostActions = 5;

    /// An error has a text instead.
    static bool isList(const QVariant& answer)
    {
        return answer.metaType() == QMetaType::fromType<QDBusArgument>();
    }

    static QList<AccessiblePlace> readPlaces(const QDBusArgument& answer)
    {
        QList<AccessiblePlace> places;
        for (answer.beginArray(); !answer.atEnd(); answer.endStructure()) {
            AccessiblePlace place;
            answer.beginStructure();
            answer >> place.service >> place.path;
            places += place;
        }
        answer.endArray();
        return places;
    }
    QVariant ask(const char* interface, const char* method, const QVariantList& arguments = {}) const
    {
        auto call = QDBusMessage::createMethodCall(m_place.service, m_place.path.path(),
                                                   QLatin1String(interface), QLatin1String(method));
        call.setArguments(arguments);
        return m_bus.call(call, QDBus::Block, callMilliseconds).arguments().value(0);
    }

    QDBusConnection m_bus;
    AccessiblePlace m_place;
};

} // namespace norvane::test
