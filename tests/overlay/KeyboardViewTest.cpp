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

/// The sheet of a Velmar is white below 12 mm of a key, and a text may be wider than its cell.
TEST(KeyboardViewTest, ShowsAsPrintedWhatTheOutlinesCover)
{
    DocumentEditor editor(Keyboard::Velmar);
    KeyboardView view(editor, nullptr);
    view.resize(1200, 900);
    view.show();
    const auto* const cell = view.findChild<QLineEdit*>(QStringLiteral("RichTextBox1_5"));
    const auto shown = [&] {
        const QPoint foot(cell->geometry().center().x(), cell->geometry().bottom() - 2);
        return view.widget()->grab().toImage().pixelColor(foot);
    };
    const auto colour = [&](int number) {
        editor.changeCells(QStringLiteral("Colour"), {5},
                           [number](TextCell& changed) { changed.background = {number}; });
    };
    colour(255);
    EXPECT_EQ(shown(), QColor(Qt::red));
    view.setAsPrinted(true);
    EXPECT_EQ(shown(), QColor(Qt::white));
    const auto band = [&] {
        return view.widget()->grab().toImage().pixelColor(cell->geometry().topLeft() + QPoint(6, 4));
    };
    EXPECT_EQ(band(), QColor(Qt::red));
    colour(0xff0000);
    EXPECT_EQ(band(), QColor(Qt::blue)) << "it follows the document";
    view.setAsPrinted(false);
    EXPECT_EQ(shown(), QColor(Qt::blue));
}

} // namespace
} // namespace norvane::overlay
