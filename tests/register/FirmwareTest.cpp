// The firmware by the memory file that a register sends.
#include "register/Firmware.h"

#include "tests/platform/TestFolder.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane
{
namespace
{

TEST(FirmwareTest, TheLengthOfTheMemoryFileTellsTheFirmware)
{
    test::TestFolder folder;
    test::RecordingBoxes boxes;
    EXPECT_EQ(test::failureOf([&] { (void)GetFirmwareGeneration(folder.path(), boxes); }), 53);
    for (const auto& [length, generation] : {std::pair{0, -1}, {1, 2}, {77, 2}, {78, 3}, {32767, 3}}) {
        folder.write("MEM.dat", QByteArray(length, 'x'));
        EXPECT_EQ(GetFirmwareGeneration(folder.path(), boxes), generation) << length;
    }
    EXPECT_EQ(boxes.shown.size(), 1U) << "for the empty one";
    folder.write("MEM.dat", QByteArray(32768, 'x'));
    EXPECT_EQ(test::failureOf([&] { (void)GetFirmwareGeneration(folder.path(), boxes); }), 6);
}

} // namespace
} // namespace norvane
