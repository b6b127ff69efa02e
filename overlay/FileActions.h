// New, Open and Save of an overlay form.
#pragma once

#include "base/ApplicationValues.h"
#include "overlay/OverlayDialogs.h"

namespace norvane
{
class Boxes;
class RuntimeFailure;
} // namespace norvane

namespace norvane::overlay
{

class DocumentEditor;

/// Asks for file names and before anything would be lost, and reports failures. All arguments must outlive
/// this.
class FileActions
{
public:
    FileActions(DocumentEditor& editor, const ApplicationValues& values, Boxes& boxes,
                OverlayDialogs& dialogs);

    void Newfile();
    void OpenFile();
    /// @return whether the document was written.
    bool SaveFile();
    /// Writes the document into its own file. Without one, or when another is there, as SaveFile().
    bool saveChanges();
    /// Asks whether changes are to be saved or dropped, if there are any. @return false when the user keeps
    /// them or they could not be saved.
    [[nodiscard]] bool mayDropChanges();
    /// What the document is called in titles: the name of its file, "Untitled" before it has one.
    [[nodiscard]] QString documentName() const;

private:
    [[nodiscard]] FileChoice choice(const QString& title, FileChoice::Name name) const;
    [[nodiscard]] QString fileToSave() const;
    bool write(const QString& path);
    void reportFailure(const RuntimeFailure& failure);

    DocumentEditor& m_editor;
    const ApplicationValues& m_values;
    Boxes& m_boxes;
    OverlayDialogs& m_dialogs;
};

} // namespace norvane::overlay
