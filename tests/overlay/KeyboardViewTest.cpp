// The keyboard in the designer: its cells are on the keys.
#include "overlay/KeyboardView.h"

#include "overlay/DocumentEditor.h"
#include "tests/support/FormTest.h"

namespace norvane::overlay
{
namespace
{

TEST(KeyboardViewTest, HasEveryCellOnTheKeyboardWithoutOverlap)
{
    for (const Keyboard keyboard : {Keyboard::Dorvik, Keyboard::Velmar, Keyboard::Quelmont}) {
        DocumentEditor editor(keyboard);
        const KeyboardView view(editor, nullptr);
        const auto cells = view.findChildren<QLineEdit*>();
        ASSERT_EQ(cells.size(), editor.document().cellCount());
        QRegion covered;
        for (const QLineEdit* const cell : cells) {
            EXPECT_TRUE(view.widget()->rect().contains(cell->geometry())) << qPrintable(cell->objectName());
            EXPECT_FALSE(covered.intersects(cell->geometry())) << qPrintable(cell->objectName());
            covered += cell->geometry();
        }
    }
}

} // namespace
} // namespace norvane::overlay
