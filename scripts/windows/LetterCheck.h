// Finds access letters that lead to more than one control of a window, or to more than one entry of a menu.
#pragma once

#include <QSet>
#include <QStringList>

class QWidget;

namespace norvane::windows
{

/// Compares the letters of the controls that are in view at the same time: buttons, boxes with a label,
/// groups, tabs and the menu bar. Each menu is compared by itself.
class LetterCheck
{
public:
    /// @return a line for each letter that @p window, which must be shown, or one of its menus has more than
    /// once. Captions that are fixed are left out.
    [[nodiscard]] QStringList repeated(const QWidget& window);

    /// @return a line for each exception that no window has had so far: its row is out of date.
    [[nodiscard]] QStringList unusedExceptions() const;

private:
    [[nodiscard]] bool isFixed(const QString& owner, const QString& names);

    QSet<const void*> m_used; ///< rows of the fixed letters
};

} // namespace norvane::windows
