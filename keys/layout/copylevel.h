// The dialog that copies one keyboard level over another.
#pragma once

#include "base/ApplicationValues.h"
#include "keys/layout/LevelCopy.h"

#include <QDialog>

#include <array>

class QGridLayout;
class QPushButton;

namespace norvane
{
class Boxes;
}

namespace norvane::ui
{
class ValueList;
}

namespace norvane::keys
{

/// Copies immediately when "Copy" is pressed, and closes. If the keyboard's levels are not those that a copy
/// counts, it first says which keys are overwritten and asks.
class copylevel : public QDialog
{
    Q_OBJECT

public:
    /// @p database, @p keyboard and @p values must outlive the dialog. @p values name the customer whose data
    /// is copied first, so that the level can be restored.
    copylevel(store::Database& database, const KeyGeometry& keyboard, const ApplicationValues& values,
              Boxes& boxes, QWidget* parent = nullptr);

    /// The level copied to, once the dialog is accepted: the one that the editor shows next.
    [[nodiscard]] int copiedTo() const { return chosen().to; }

private:
    ui::ValueList* addList(const QString& name, const QString& caption, QGridLayout& grid, int row);
    [[nodiscard]] LevelCopy chosen() const;
    void allowCopy();
    void copy();

    store::Database& m_database;
    const KeyGeometry& m_keyboard;
    const ApplicationValues& m_values;
    Boxes& m_boxes;
    ui::ValueList* CopyFrom;
    ui::ValueList* CopyTo;
    QPushButton* m_copy;
};

} // namespace norvane::keys
