// Message, question and input boxes as the program's logic knows them. The real boxes are in ui/; tests hand
// in a recording implementation that answers as told.
#pragma once

#include <QString>

namespace norvane
{

enum class BoxIcon { None, Information, Exclamation, Question, Critical };
/// The answer of a question box that Enter gives.
enum class BoxAnswer { Yes, No };

/// The program's own title, which a box without a title of its own carries.
inline const QString& applicationTitle()
{
    static const QString title = QStringLiteral("Norvane Velmar and Dorvik Utility.");
    return title;
}

/// What a file dialog asks for.
struct FileRequest {
    QString title;
    QString folder; ///< shown first
    QString filter; ///< "Overlays (*.Dorvik)", several parted by ";;"
    QString suffix; ///< added to a name typed without one, when a file is saved
};

class Boxes
{
public:
    Boxes() = default;
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;
    virtual ~Boxes() = default;

    /// Shows @p text with an OK button and waits for it. An empty @p title stands for applicationTitle().
    virtual void message(const QString& text, const QString& title = {}, BoxIcon icon = BoxIcon::None) = 0;
    /// Asks @p text with Yes and No; closing the box counts as No. @return true for Yes.
    virtual bool ask(const QString& text, const QString& title, BoxIcon icon = BoxIcon::Question,
                     BoxAnswer preset = BoxAnswer::Yes) = 0;
    /// Asks for a line of text. Cancel gives empty text, as an emptied box does.
    virtual QString input(const QString& prompt, const QString& title, const QString& initial = {}) = 0;
    /// Asks for a file that exists. @return its path, empty for Cancel.
    virtual QString fileToOpen(const FileRequest& request) = 0;
    /// Asks for the file to save to. One that exists is returned only when the user agreed, in a question box
    /// that presets No, to replace it. @return its path, empty for Cancel.
    virtual QString fileToSave(const FileRequest& request) = 0;
    /// The platform's warning sound.
    virtual void beep() = 0;
};

} // namespace norvane
