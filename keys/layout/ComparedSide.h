// One of two levels that are compared: the choice of the level, and its keys as a small grid.
#pragma once

#include "keys/layout/KeyEditor.h"
#include "keys/layout/KeyGridModel.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QTableView;

namespace norvane::keys
{

/// Nothing can be changed here. The keys of the level that the editor shows are those of the editor.
class ComparedSide : public QWidget
{
    Q_OBJECT

public:
    /// @param shown the editor's level; must outlive this.
    /// @param name of the controls: "Left" gives "LeftLevel" and "LeftKeys".
    ComparedSide(const KeyLevel& shown, std::shared_ptr<store::Database> database, const QString& name,
                 QWidget* parent);

    /// Reads @p level. @throws RuntimeFailure as KeyLevel::read(); the level shown before is then kept.
    void read(int level);
    [[nodiscard]] const KeyLevel& level() const { return m_level; }
    [[nodiscard]] QTableView& grid() const { return *m_grid; }
    void mark(const KeyCells& cells);
    void showCell(KeyCell cell);

Q_SIGNALS:
    void levelWanted(int level);
    void cellChosen(const KeyCell& cell);
    void cellWanted(const KeyCell& cell);

private:
    void makeGrid(const QString& name);

    const KeyLevel& m_shown;
    KeyLevel m_level;
    KeyEditor m_editor{m_level};
    std::unique_ptr<KeyGridModel> m_model;
    QComboBox* m_box;
    QTableView* m_grid;
};

} // namespace norvane::keys
