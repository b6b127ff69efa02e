// The overlay forms' dialogs on the screen.
#pragma once

#include "overlay/OverlayDialogs.h"

namespace norvane::overlay
{

/// Dialogs over the window in use. Their objects are named "FileBox", "ColourBox", "FontBox" and
/// "PrinterSetup".
class SystemDialogs : public OverlayDialogs
{
public:
    QString file(const FileChoice& choice) override;
    std::optional<QColor> colour(const QColor& initial, const QString& title) override;
    std::optional<QFont> font(const QFont& initial) override;
    std::optional<PrinterChoice> printer(const PrinterChoice& initial) override;
};

} // namespace norvane::overlay
