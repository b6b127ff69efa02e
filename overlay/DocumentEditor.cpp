// See DocumentEditor.h.
#include "overlay/DocumentEditor.h"

#include "overlay/DocumentFile.h"
#include "overlay/LevelImport.h"
#include "overlay/NotesFile.h"
#include "platform/FilePaths.h"

#include <QUndoCommand>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{

/// The cells that a step changed, before and after.
class DocumentEditor::CellStep : public QUndoCommand
{
public:
    /// @param typing 0 for a separate step; steps of one number and cell become one.
    CellStep(DocumentEditor& editor, const QString& name, const Document& before, int typing)
        : QUndoCommand(name), m_editor(editor), m_typing(typing)
    {
        m_notesBefore = before.notes();
        m_notesAfter = editor.m_document.notes();
        for (int cell = 0; cell < before.cellCount(); ++cell) {
            if (before.cell(cell) != editor.m_document.cell(cell))
                m_changes.push_back({cell, before.cell(cell), editor.m_document.cell(cell)});
        }
    }

    [[nodiscard]] bool isEmpty() const { return m_changes.empty() && m_notesBefore == m_notesAfter; }

    void undo() override
    {
        for (const CellChange& change : m_changes)
            m_editor.put(change.cell, change.before);
        m_editor.m_document.notes() = m_notesBefore;
    }
    void redo() override
    {
        for (const CellChange& change : m_changes)
            m_editor.put(change.cell, change.after);
        m_editor.m_document.notes() = m_notesAfter;
    }
    [[nodiscard]] int id() const override { return m_typing > 0 ? 1 : -1; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& next = static_cast<const CellStep&>(*other);
        if (next.m_typing != m_typing || next.m_changes.front().cell != m_changes.front().cell)
            return false;
        m_changes.front().after = next.m_changes.front().after;
        setObsolete(m_changes.front().after == m_changes.front().before);
        return true;
    }

private:
    struct CellChange {
        int cell;
        TextCell before;
        TextCell after;
    };
    DocumentEditor& m_editor;
    int m_typing;
    std::vector<CellChange> m_changes;
    DocumentNotes m_notesBefore;
    DocumentNotes m_notesAfter;
};

DocumentEditor::DocumentEditor(Keyboard keyboard, QObject* parent) : QObject(parent), m_document(keyboard) {}

void DocumentEditor::put(int cell, const TextCell& contents)
{
    m_clicked = -1;
    m_document.cell(cell) = contents;
    Q_EMIT cellChanged(cell);
}

/// Changes that @p work made before it failed are a step, too.
void DocumentEditor::edit(const QString& name, const std::function<void(Document&)>& work, int typing)
{
    const Document before = m_document;
    try {
        work(m_document);
    } catch (...) {
        pushChanges(name, before, typing);
        throw;
    }
    pushChanges(name, before, typing);
}

void DocumentEditor::pushChanges(const QString& name, const Document& before, int typing)
{
    auto step = std::make_unique<CellStep>(*this, name, before, typing);
    if (!step->isEmpty())
        m_history.push(step.release());
}

bool DocumentEditor::replacesOther(const QString& path) const
{
    return pathExists(path) && existingPath(path) != m_storedFile;
}

void DocumentEditor::restart(const QString& fileName, const QString& storedFile)
{
    m_fileName = fileName;
    m_storedFile = storedFile;
    Q_EMIT fileNameChanged();
}

void DocumentEditor::newFile(const QString& path)
{
    edit({}, [](Document& document) { document = Document(document.keyboard()); });
    m_history.clear();
    restart(path, {});
}

void DocumentEditor::openFile(const QString& path)
{
    restart(path, {});
    edit(u"Open"_s, [&path](Document& document) {
        document.notes() = {};
        readDocument(path, document);
        document.notes() = readNotes(path, document.keyboard());
    });
    m_history.clear();
    restart(path, existingPath(path));
}

void DocumentEditor::saveFile(const QString& path)
{
    writeDocument(path, m_document);
    writeNotes(path, m_document);
    m_history.setClean();
    restart(path, existingPath(path));
}

void DocumentEditor::setText(int cell, const QString& text)
{
    edit(
        u"Text"_s, [&](Document& document) { document.cell(cell).text = text; }, m_typing);
}

void DocumentEditor::click(int cell)
{
    endTyping();
    if (!m_style.font)
        return;
    const int before = m_history.index();
    edit(u"Font"_s, [&](Document& document) { document.cell(cell).font = *m_style.font; });
    m_clicked = m_history.index() > before ? cell : -1;
}

void DocumentEditor::doubleClick(int cell)
{
    endTyping();
    if (std::exchange(m_clicked, -1) == cell)
        m_history.undo();
    edit(u"Colour"_s, [&](Document& document) { giveColours(document, cell); });
}

bool DocumentEditor::isWhiteKey(int cell) const
{
    const OverlayKey& key = m_document.layout().keyOf(cell);
    const auto first = m_document.cells().begin() + key.firstCell;
    return key.cells > 1 && key.firstCell == cell &&
           std::all_of(first, first + key.cells,
                       [](const TextCell& each) { return drawnBackground(each.background) == Qt::white; });
}

void DocumentEditor::giveColours(Document& document, int cell) const
{
    const int count = isWhiteKey(cell) ? document.layout().keyOf(cell).cells : 1;
    for (int taking = cell; taking < cell + count; ++taking) {
        document.cell(taking).background = m_style.background;
        document.cell(taking).textColour = m_style.textColour;
    }
}

void DocumentEditor::importLevel(int level, const QString& databasePath)
{
    endTyping();
    edit(u"Import Level%1"_s.arg(level), [&](Document& document) {
        importdata(document, level, databasePath);
        document.notes().level = level;
    });
}

void DocumentEditor::change(const QString& name, const std::function<void(Document&)>& work)
{
    endTyping();
    edit(name, work);
}

void DocumentEditor::changeCells(const QString& name, const std::vector<int>& cells,
                                 const std::function<void(TextCell&)>& work)
{
    change(name, [&](Document& document) {
        for (const int cell : cells)
            work(document.cell(cell));
    });
}

std::vector<TextCell> DocumentEditor::copyKey(int cell) const
{
    const OverlayKey& key = m_document.layout().keyOf(cell);
    const auto first = m_document.cells().begin() + key.firstCell;
    return {first, first + key.cells};
}

void DocumentEditor::pasteKey(int cell, const std::vector<TextCell>& cells)
{
    endTyping();
    const OverlayKey& key = m_document.layout().keyOf(cell);
    edit(u"Paste Key"_s, [&](Document& document) {
        const int count = std::min(key.cells, static_cast<int>(cells.size()));
        for (int line = 0; line < count; ++line)
            document.cell(key.firstCell + line) = cells[static_cast<std::size_t>(line)];
    });
}

} // namespace norvane::overlay
