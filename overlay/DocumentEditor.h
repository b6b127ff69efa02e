// An open overlay document: what its user can do to it and undo.
#pragma once

#include "overlay/Document.h"

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <optional>
#include <vector>

namespace norvane::overlay
{

/// What the user gives to cells.
struct CurrentStyle {
    /// By a double click.
    Colour background = white;
    Colour textColour = black;
    /// By a click: the last choice in the font dialog; nothing until there was one.
    std::optional<CellFont> font;
};

/// Every change is a step of the history, whose clean state says whether the document is unchanged since it
/// was last read, written or created. Typing in one cell is one step until endTyping().
class DocumentEditor : public QObject
{
    Q_OBJECT

public:
    explicit DocumentEditor(Keyboard keyboard, QObject* parent = nullptr);

    [[nodiscard]] const Document& document() const { return m_document; }
    [[nodiscard]] QUndoStack& history() { return m_history; }

    [[nodiscard]] CurrentStyle& style() { return m_style; }
    [[nodiscard]] const CurrentStyle& style() const { return m_style; }

    /// The document's file, empty for none. New and failed reads set it too.
    [[nodiscard]] const QString& fileName() const { return m_fileName; }
    /// Whether saving as @p path would replace a file other than the one read or written last.
    [[nodiscard]] bool replacesOther(const QString& path) const;
    /// Begins a new document that is called @p path. No file is touched.
    void newFile(const QString& path);
    /// @throws RuntimeFailure as readDocument() does. What was read by then is a step of the history.
    void openFile(const QString& path);
    /// @throws RuntimeFailure as writeDocument() and writeNotes() do.
    void saveFile(const QString& path);

    void setText(int cell, const QString& text);
    void endTyping() { ++m_typing; }
    void click(int cell);
    /// On the first cell of a key of three cells that are drawn white, all three take the current colours;
    /// otherwise the cell alone does. A click just before is undone: it was the first half of this one.
    void doubleClick(int cell);
    /// @throws RuntimeFailure as importdata() does. What was imported, by then too, is one step.
    void importLevel(int level, const QString& databasePath);
    [[nodiscard]] std::vector<TextCell> copyKey(int cell) const;
    /// Gives the key of @p cell as many of @p cells as it has.
    void pasteKey(int cell, const std::vector<TextCell>& cells);

    /// All that @p work does to the document is one step called @p name.
    void change(const QString& name, const std::function<void(Document&)>& work);
    /// The same for each of @p cells.
    void changeCells(const QString& name, const std::vector<int>& cells,
                     const std::function<void(TextCell&)>& work);

Q_SIGNALS:
    void cellChanged(int cell);
    void fileNameChanged();

private:
    class CellStep;
    void put(int cell, const TextCell& contents);
    void edit(const QString& name, const std::function<void(Document&)>& work, int typing = 0);
    void pushChanges(const QString& name, const Document& before, int typing);
    void restart(const QString& fileName, const QString& storedFile);
    void giveColours(Document& document, int cell) const;
    [[nodiscard]] bool isWhiteKey(int cell) const;

    Document m_document;
    QUndoStack m_history;
    CurrentStyle m_style;
    QString m_fileName;
    QString m_storedFile; ///< read or written last
    int m_typing = 1;
    int m_clicked = -1; ///< the cell of the click that made the last step, -1 if it was not a click
};

} // namespace norvane::overlay
