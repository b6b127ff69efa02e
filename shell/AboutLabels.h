// The caption and the three labels that the splash and the about window share.
#pragma once

#include <QString>

class QLabel;

namespace norvane::shell
{

/// The caption of both windows.
[[nodiscard]] QString aboutCaption();

/// The labels. They have no parent until a layout takes them.
struct AboutLabels {
    QLabel* lblTitle;       ///< the application's title
    QLabel* lblVersion;     ///< "Version " and the program's version, major.minor.revision
    QLabel* lblDescription; ///< what the program is for
};
[[nodiscard]] AboutLabels makeAboutLabels();

/// A label of plain text with the control name @p name.
[[nodiscard]] QLabel* makeTextLabel(const QString& name, const QString& text);

} // namespace norvane::shell
