// The boxes that the program's logic shows. The real ones are in ui/; tests pass in boxes with prepared
// answers.
#pragma once

#include <QString>

#include <optional>

namespace norvane
{

enum class BoxIcon { None, Information, Exclamation, Question, Critical };
/// The answer of a question box that Enter gives.
enum class BoxAnswer { Yes, No };
/// What happens to unsaved changes.
enum class UnsavedAnswer { Cancel, Save, Discard };

/// The default title of a box.
inline const QString& applicationTitle()
{
    static const QString title = QStringLiteral("Norvane Velmar and Dorvik Utility.");
    return title;
}

/// The title of questions before a loss and of notices that the user must read before continuing.
inline constexpr QLatin1StringView pleaseCheck{"Please Check"};

/// What a file dialog asks for.
struct FileRequest {
    QString title;
    QString folder; ///< shown first
    QString filter; ///< "Overlays (*.Dorvik)", several separated by ";;"
    QString suffix; ///< added to a name typed without one, when a file is saved
};

/// Interface of message boxes, questions and file dialogs.
class Boxes
{
public:
    Boxes() = default;
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;
    virtual ~Boxes() = default;

    /// Shows @p text with an OK button and waits for it. An empty @p title means applicationTitle().
    virtual void message(const QString& text, const QString& title = {}, BoxIcon icon = BoxIcon::None) = 0;
    /// Asks @p text with Yes and No; closing the box counts as No. @return true for Yes.
    virtual bool ask(const QString& text, const QString& title, BoxIcon icon = BoxIcon::Question,
                     BoxAnswer preset = BoxAnswer::Yes) = 0;
    /// Asks @p text with Yes (the default) and No before a step that continues after either answer. Returns
    /// nothing, and the step ends, if the box is closed or cannot be shown.
    virtual std::optional<bool> askBeforeGoingOn(const QString& /*text*/, const QString& /*title*/)
    {
        return std::nullopt;
    }
    /// Asks @p text with two buttons of the given captions, access letters included ("&Save", "S&how").
    /// Enter, closing the box, and boxes that cannot be shown choose the second, which does less harm.
    /// @return true for the first.
    virtual bool choose(const QString& /*text*/, const QString& /*title*/, const QString& /*first*/,
                        const QString& /*second*/)
    {
        return false;
    }
    /// Asks @p text with Save (the default), Discard and Cancel. Closing the box, and boxes that cannot be
    /// shown, choose Cancel.
    virtual UnsavedAnswer askToSave(const QString& /*text*/, const QString& /*title*/)
    {
        return UnsavedAnswer::Cancel;
    }
    /// Asks @p text with OK (the default) and Cancel, which also closing the box and boxes that cannot be
    /// shown choose. @return true for OK.
    virtual bool confirm(const QString& /*text*/, const QString& /*title*/) { return false; }
    /// Asks for a line of text. @return empty text for Cancel, as for an emptied box.
    virtual QString input(const QString& prompt, const QString& title, const QString& initial = {}) = 0;
    /// Asks for a file that exists. @return its path, empty for Cancel.
    virtual QString fileToOpen(const FileRequest& request) = 0;
    /// Asks for the file to save to. Before an existing file is returned, the user is asked whether to
    /// replace it; No is preset. @return its path, empty for Cancel.
    virtual QString fileToSave(const FileRequest& request) = 0;
    /// The platform's warning sound.
    virtual void beep() = 0;
};

} // namespace norvane
