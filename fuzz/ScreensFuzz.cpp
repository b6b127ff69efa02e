// Screen files. Input: the file.
#include "fuzz/Target.h"
#include "screens/ScreenReader.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

/// A mistake names the file, so that the dealer who wrote it finds it.
template <typename Work>
void readPart(Work work)
{
    try {
        work();
    } catch (const RuntimeFailure& failure) {
        require(failure.failure() == Failure::TypeMismatch || failure.failure() == Failure::Overflow,
                "a wrong value fails with TypeMismatch or Overflow");
        require(failure.text().contains("a.scn"_L1), "a mistake names the file");
    }
}

} // namespace

void tryInput(std::string_view input)
{
    const screens::ScreenReader reader(scratchFile(u"a.scn"_s, input));
    static_cast<void>(reader.table());
    static_cast<void>(reader.buttons());
    static_cast<void>(reader.report());
    readPart([&] { static_cast<void>(reader.window()); });
    readPart([&] {
        const auto controls = reader.controls();
        require(controls.size() <= static_cast<qsizetype>(input.size()),
                "a control takes a section of the file");
    });
}

} // namespace norvane::fuzz
