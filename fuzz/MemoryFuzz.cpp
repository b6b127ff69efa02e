// The memory allocation of a register. Input: kind of register, bit 7 for an older memory file; then the text
// that the converter made of it.
#include "exchange/MemoryFile.h"
#include "fuzz/CustomerFile.h"
#include "fuzz/Target.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

void setGeneration(bool isOlder)
{
    static int set = -1;
    constexpr std::size_t olderLength = 77;
    if (set != static_cast<int>(isOlder))
        scratchFile(u"mem.dat"_s, std::string(isOlder ? olderLength : olderLength + 1, 'm'));
    set = static_cast<int>(isOlder);
}

} // namespace

void tryInput(std::string_view input)
{
    constexpr unsigned olderBit = 0x80;
    const unsigned kind = takeByte(input);
    const ApplicationValues& values = customerWith(u"memoryallocation"_s);
    setModel(static_cast<int>(kind % 4));
    setGeneration((kind & olderBit) != 0);
    scratchFile(u"52.txt"_s, input);
    SilentBoxes boxes;
    succeeds({Failure::TypeMismatch, Failure::TextTooLong, Failure::Conversion}, [&] {
        exchange::FileMemory({values, boxes, [](const records::Conversion&) {
                                  return true;
                              }});
    });
}

} // namespace norvane::fuzz
