// Levels as files: asks which one, writes or reads it, and puts it on the keys.
#pragma once

#include "base/ApplicationValues.h"
#include "keys/layout/KeyEditor.h"

#include <memory>

class QWidget;

namespace norvane
{
class Boxes;
}

namespace norvane::keys
{

/// Remembers the folder of the last file while the editor is open.
class LevelExchange
{
public:
    /// All must outlive this.
    LevelExchange(KeyLevel& level, KeyEditor& editor, const std::shared_ptr<store::Database>& database,
                  const ApplicationValues& values, Boxes& boxes, QWidget& form);

    /// @return the outcome in words; empty if the user cancelled, or if it failed and a message was shown.
    [[nodiscard]] QString exportLevel();
    /// One step of the history. @return as exportLevel().
    [[nodiscard]] QString importLevel();

private:
    [[nodiscard]] QString importFile(const QString& path);
    void remember(const QString& path);

    KeyLevel& m_level;
    KeyEditor& m_editor;
    const std::shared_ptr<store::Database>& m_database;
    const ApplicationValues& m_values;
    Boxes& m_boxes;
    QWidget& m_form;
    QString m_folder;
};

} // namespace norvane::keys
