// Which cells a double click colours, and where the arrows lead.
#include "overlay/DocumentEditor.h"

#include "overlay/CellOrder.h"

#include <gtest/gtest.h>

namespace norvane::overlay
{
namespace
{

constexpr Colour blue{16711680};
constexpr Colour yellow{65535};

class DocumentEditorTest : public testing::Test
{
protected:
    DocumentEditorTest()
    {
        m_editor.style().background = blue;
        m_editor.style().textColour = yellow;
    }
    /// The cells that are blue.
    [[nodiscard]] std::vector<int> blueCells() const
    {
        std::vector<int> cells;
        for (int cell = 0; cell < m_editor.document().cellCount(); ++cell) {
            const TextCell& each = m_editor.document().cell(cell);
            EXPECT_EQ(each.background == blue, each.textColour == yellow) << cell;
            if (each.background == blue)
                cells.push_back(cell);
        }
        return cells;
    }

    DocumentEditor m_editor{Keyboard::Dorvik};
};

TEST_F(DocumentEditorTest, ADoubleClickColoursAWhiteKeyOrOneCell)
{
    const std::pair<int, std::vector<int>> rows[] = {
        {3, {3, 4, 5}},         {4, {4}},     {381, {381}},           {382, {382, 383, 384}},
        {404, {404, 405, 406}}, {400, {400}}, {453, {453, 454, 455}},
    };
    for (const auto& [clicked, coloured] : rows) {
        m_editor.doubleClick(clicked);
        EXPECT_EQ(blueCells(), coloured) << clicked;
        EXPECT_EQ(m_editor.history().count(), 1);
        m_editor.history().undo();
        EXPECT_EQ(blueCells(), std::vector<int>());
    }
}

TEST_F(DocumentEditorTest, ADoubleClickColoursOneCellOfAKeyThatIsNotWhite)
{
    m_editor.doubleClick(4);
    m_editor.doubleClick(3);
    EXPECT_EQ(blueCells(), (std::vector{3, 4})) << "the key is no longer all white";
    m_editor.pasteKey(
        3, {{{}, {-2147483643}, black, {}}, {{}, {0x7fffffff}, black, {}}, {{}, white, black, {}}});
    m_editor.doubleClick(3);
    EXPECT_EQ(blueCells(), (std::vector{3, 4, 5})) << "other numbers that are drawn white";
}

TEST_F(DocumentEditorTest, ADoubleClickUndoesTheFontOfItsFirstClick)
{
    m_editor.style().font = CellFont{QStringLiteral("Courier"), 10, false, true};
    m_editor.click(3);
    m_editor.doubleClick(3);
    EXPECT_EQ(m_editor.document().cell(3).font, CellFont());
    EXPECT_EQ(m_editor.history().count(), 1);
}

struct Step {
    Keyboard keyboard;
    int from;
    int left, right, up, down;
};

// clang-format off
const Step steps[] = {
    {Keyboard::Dorvik,   4,    4,  34,   3,   5},  // line 2 of the first key
    {Keyboard::Dorvik,   3,    3,  33,   2,   4},  // line 1 of the second
    {Keyboard::Dorvik,  379, 352, 401, 378, 380},  // the 4 of the numeric keys
    {Keyboard::Dorvik,  348, 318, 378, 347, 349},  // beside the 7
    {Keyboard::Velmar,  482, 443, 482, 481, 482},  // the last cell
    {Keyboard::Quelmont, 0,    0,  18,   0,   1},
    {Keyboard::Quelmont, 72,  54,  90,  72,  73},  // above the first wide keys
};
// clang-format on

TEST(CellOrderTest, ArrowsLeadToTheNearestCellAndReadingGoesKeyByKey)
{
    for (const Step& step : steps) {
        const auto to = [&](ArrowDirection direction) {
            return neighbour(layoutOf(step.keyboard), step.from, direction);
        };
        EXPECT_EQ(to(ArrowDirection::Left), step.left) << step.from;
        EXPECT_EQ(to(ArrowDirection::Right), step.right) << step.from;
        EXPECT_EQ(to(ArrowDirection::Up), step.up) << step.from;
        EXPECT_EQ(to(ArrowDirection::Down), step.down) << step.from;
    }
    const auto order = readingOrder(layoutOf(Keyboard::Dorvik));
    EXPECT_EQ(std::vector(order.begin(), order.begin() + 7), (std::vector{0, 1, 2, 30, 31, 32, 60}));
    EXPECT_EQ(std::vector(order.end() - 6, order.end()), (std::vector{381, 403, 425, 453, 454, 455}));
}

} // namespace
} // namespace norvane::overlay
