// See ExitCode.h.
#include "command/ExitCode.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{

std::span<const ExitMeaning> exitMeanings()
{
    static constexpr auto meanings = std::to_array<ExitMeaning>({
        {ExitCode::Done, "done"_L1},
        {ExitCode::Failed, "a failure, told on standard error"_L1},
        {ExitCode::Usage, "the command line is wrong"_L1},
        {ExitCode::NoCustomer, "there is no such customer"_L1},
        {ExitCode::NoSuchName,
         "there is no such box, report or copy, or the name fits several, also that of the customer"_L1},
        {ExitCode::Busy, "another exchange, collection or price run is at work with the customer"_L1},
        {ExitCode::Stopped,
         "the run stopped before its end: a register's answer, or a question answered No"_L1},
        {ExitCode::Unwritable, "a file or folder cannot be written"_L1},
        {ExitCode::Unsound, "the check found something"_L1},
        {ExitCode::BadFile, "the file to import has mistakes"_L1},
    });
    return meanings;
}

} // namespace norvane::command
