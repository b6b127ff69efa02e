// Message, question and input boxes on the screen.
#pragma once

#include "platform/Boxes.h"

namespace norvane::ui
{

/// Boxes over the window in use. Their objects are named "MessageBox", "InputBox" and "FileBox". Texts are
/// shown unchanged, never as markup; a carriage return starts a new line.
class MessageBoxes : public Boxes
{
public:
    void message(const QString& text, const QString& title, BoxIcon icon) override;
    bool ask(const QString& text, const QString& title, BoxIcon icon, BoxAnswer preset) override;
    std::optional<bool> askBeforeGoingOn(const QString& text, const QString& title) override;
    bool choose(const QString& text, const QString& title, const QString& first,
                const QString& second) override;
    UnsavedAnswer askToSave(const QString& text, const QString& title) override;
    bool confirm(const QString& text, const QString& title) override;
    QString input(const QString& prompt, const QString& title, const QString& initial) override;
    QString fileToOpen(const FileRequest& request) override;
    QString fileToSave(const FileRequest& request) override;
    void beep() override;
};

} // namespace norvane::ui
