// The dialogs that an overlay form opens besides message boxes. The real ones are in SystemDialogs; tests
// pass in dialogs with prepared answers.
#pragma once

#include <QColor>
#include <QFont>
#include <QPageLayout>
#include <QString>

#include <optional>

namespace norvane::overlay
{

/// What the user chose in the printer set-up.
struct PrinterChoice {
    QString name; ///< empty for the system's default printer
    /// The keyboards are wider than a sheet is in portrait.
    QPageLayout::Orientation orientation = QPageLayout::Landscape;
};

/// What a file dialog asks for.
struct FileChoice {
    /// Which names the dialog accepts.
    enum class Name {
        Existing, ///< a file that is there
        Any,      ///< a file that may be there or not
        ToWrite,  ///< the same, in a dialog that saves
    };
    QString title;
    QString path;   ///< the file that is filled in, or the folder that is shown first
    QString filter; ///< "Keyboard Files (*.Dorvik)"
    /// Added to a name typed without one: the first that gives an existing file, otherwise the first in the
    /// list.
    QStringList suffixes;
    Name name = Name::Existing;
};

/// Interface of the overlay dialogs.
class OverlayDialogs
{
public:
    OverlayDialogs() = default;
    OverlayDialogs(const OverlayDialogs&) = delete;
    OverlayDialogs& operator=(const OverlayDialogs&) = delete;
    virtual ~OverlayDialogs() = default;

    /// Replaces no file and asks nothing about it. @return its path, empty for Cancel.
    [[nodiscard]] virtual QString file(const FileChoice& choice) = 0;
    /// @return nothing for Cancel, as all that follow.
    [[nodiscard]] virtual std::optional<QColor> colour(const QColor& initial, const QString& title) = 0;
    /// The fonts of screen and printer.
    [[nodiscard]] virtual std::optional<QFont> font(const QFont& initial) = 0;
    [[nodiscard]] virtual std::optional<PrinterChoice> printer(const PrinterChoice& initial) = 0;
};

} // namespace norvane::overlay
