// What the splash and the about window say of the program: the same caption and the same three labels.
#pragma once

#include <QString>

class QLabel;

namespace norvane::shell
{

/// The caption of both windows.
[[nodiscard]] QString aboutCaption();

/// The labels, without a parent; the layout that takes them gives them one.
struct AboutLabels {
    QLabel* lblTitle;       ///< the application's title
    QLabel* lblVersion;     ///< "Version " and the program's version, major.minor.revision
    QLabel* lblDescription; ///< what the program is for
};
[[nodiscard]] AboutLabels makeAboutLabels();

/// A label of plain text with the control name @p name.
[[nodiscard]] QLabel* makeTextLabel(const QString& name, const QString& text);

} // namespace norvane::shell
