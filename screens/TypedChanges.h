// What the user has typed into a screen since it showed what is stored.
#pragma once

#include "screens/RecordEditor.h"

namespace norvane::screens
{

class FieldPanel;

/// Compares the controls of @p panel with what they held at the last begin().
class TypedChanges
{
public:
    explicit TypedChanges(FieldPanel& panel) : m_panel(panel) {}

    /// From now on, what the controls hold counts as unchanged.
    void begin();
    [[nodiscard]] bool exist() const;
    /// The controls that were changed, with what they hold.
    [[nodiscard]] BoundFields fields() const;
    /// Puts fields() of an earlier time back into the controls, which may show another state of the record.
    void putBack(const BoundFields& typed);

private:
    FieldPanel& m_panel;
    BoundFields m_unchanged;
};

} // namespace norvane::screens
