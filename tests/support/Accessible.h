// A control of a running program as a screen reader meets it: over the bus, by role, words and state.
#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>

#include <optional>

namespace norvane::test
{

/// Where an accessible object lies on the bus.
struct AccessiblePlace {
    QString service;
    QDBusObjectPath path;
};

/// Places of states in the bits that the bus tells.
enum class Spoken { Checked = 4, Editable = 7, Enabled = 8, Focusable = 11, Showing = 25 };

/// Objects that are gone have no texts, states and children.
class Accessible
{
public:
    Accessible(QDBusConnection bus, AccessiblePlace place);

    [[nodiscard]] QString role() const;
    /// By what a user knows it: the text of its label, else what it is described as, else its name.
    [[nodiscard]] QString words() const;
    [[nodiscard]] QString name() const;
    /// What stands in a box.
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool is(Spoken state) const;
    [[nodiscard]] QList<Accessible> children() const;
    /// The first in view below this with @p role and @p words. Does not look into tables.
    [[nodiscard]] std::optional<Accessible> find(const QString& role, const QString& words) const;

    /// "Press", "Toggle"; does not wait for what it leads to, such as a dialog.
    void act(const QString& action) const;
    void setText(const QString& text) const;

private:
    QVariant ask(const char* interface, const char* method, const QVariantList& arguments = {}) const;
    [[nodiscard]] QString property(const char* name) const;
    [[nodiscard]] QString label() const;

    QDBusConnection m_bus;
    AccessiblePlace m_place;
};

} // namespace norvane::test
