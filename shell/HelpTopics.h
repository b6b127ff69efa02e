// The place of the user guide for each form.
#pragma once

#include <QLatin1StringView>
#include <QString>

#include <span>

namespace norvane::shell
{

/// A form and its chapter of the user guide.
struct HelpTopic {
    QLatin1StringView form;   ///< control name of a form, or title of a box
    QLatin1StringView anchor; ///< of a heading: its text in small letters with "-" for blanks
};

[[nodiscard]] std::span<const HelpTopic> helpTopics();

/// The anchor for the form, or box, @p form; empty if it has none.
[[nodiscard]] QString helpAnchor(const QString& form);

} // namespace norvane::shell
