// status.out, in which the transfer tool leaves its result. Input: the file.
#include "base/SharedRoutines.h"
#include "fuzz/Target.h"
#include "link/ResultCodes.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{

void tryInput(std::string_view input)
{
    scratchFile(u"status.out"_s, input);
    const QString status = ReadStatusOut();
    succeeds({Failure::TypeMismatch, Failure::Overflow}, [&] {
        const int result = link::resultNumber(status);
        require(!link::resultText(result, 0).isEmpty(), "a result has words");
        require(result != 0 || status.trimmed().isEmpty() || status.contains(u'0') || status.contains(u'.'),
                "only a zero is a success");
    });
}

} // namespace norvane::fuzz
