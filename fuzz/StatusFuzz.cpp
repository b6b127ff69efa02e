// status.out, in which the transfer tool leaves its result. Input: the file.
#include "fuzz/Target.h"
#include "link/ResultCodes.h"
#include "link/ToolRun.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{

void tryInput(std::string_view input)
{
    scratchFile(u"status.out"_s, input);
    const QString status = link::ReadStatusOut();
    succeeds({Failure::TypeMismatch, Failure::Overflow}, [&] {
        require(!link::resultText(link::resultNumber(status), 0).isEmpty(), "a result has words");
    });
}

} // namespace norvane::fuzz
