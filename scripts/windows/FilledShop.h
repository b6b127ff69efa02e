// A shop whose database was filled from a register, for programs that check its windows.
#pragma once

#include "shell/MenuTree.h"
#include "tests/road/Shop.h"

namespace norvane::windows
{

/// Names of the models by their index ECRModel.
inline constexpr const char* modelNames[] = {"Velmar -V2", "Velmar V2 Card", "Velmar +V3", "Dorvik"};

/// The models in the order in which their screens are shown: the later ones add only screens of their own.
inline constexpr int modelOrder[] = {2, 0, 1, 3};

class FilledShop : public test::Shop
{
public:
    explicit FilledShop(int model);

    [[nodiscard]] shell::FrmMain& frame() const;
    /// The file of a menu entry's screen; empty for other entries and if this model has none.
    [[nodiscard]] QString screenFile(const shell::MenuEntry& entry) const;
    /// Opens the screen of @p entry, also of a grey one. @throws what the screen throws.
    QWidget& openScreen(const shell::MenuEntry& entry);
    /// The text of the last box since a screen was opened.
    [[nodiscard]] QString lastText();
};

/// Deletes closed windows: first the screen, then the frame that is empty without it.
void deleteClosed();

} // namespace norvane::windows
