// See ExitCode.h.
#include "command/ExitCode.h"

#include "platform/RuntimeFailure.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{

std::span<const ExitMeaning> exitMeanings()
{
    static constexpr auto meanings = std::to_array<ExitMeaning>({
        {ExitCode::Done, "done"_L1},
        {ExitCode::Failed, "a failure, reported on standard error"_L1},
        {ExitCode::Usage, "the command line is wrong"_L1},
        {ExitCode::NoCustomer, "there is no such customer"_L1},
        {ExitCode::NoSuchName,
         "there is no such box, report, copy or list, or the name fits several, also that of the customer"_L1},
        {ExitCode::Busy,
         "another exchange, collection, price run, publication or conversion is at work with the customer"_L1},
        {ExitCode::Stopped,
         "the run stopped before its end: a register's answer, or a question answered No"_L1},
        {ExitCode::Unwritable, "a file or folder cannot be written"_L1},
        {ExitCode::Unsound, "the check found something, or a database or safety copy is damaged"_L1},
        {ExitCode::BadFile, "the file to import has mistakes, or a list of planned changes is damaged"_L1},
        {ExitCode::NoServer, "PostgreSQL cannot be reached, or has no such database or login"_L1},
        {ExitCode::ConnectionLost,
         "the connection to PostgreSQL was lost; the next publication continues where this one stopped"_L1},
        {ExitCode::NoRights, "the rights in PostgreSQL are insufficient"_L1},
        {ExitCode::UnfitServer, "the database there has a later schema or another encoding"_L1},
        {ExitCode::OtherShop, "the shop was published from another folder or under another name"_L1},
        {ExitCode::Vanished, "the shop no longer has what is published; that was left as it is"_L1},
        {ExitCode::FormerDamaged,
         "a database of the former program is damaged or short, or would lose something"_L1},
        {ExitCode::FormerOfAnother, "a database of the former engine belongs to another program"_L1},
        {ExitCode::FormerTooNew,
         "a database of the former engine has a newer format than the former program wrote"_L1},
        {ExitCode::FormerLocked, "a database of the former engine is protected with a password"_L1},
        {ExitCode::CustomerExists, "there is a customer or file of the new name already"_L1},
        {ExitCode::NotAsPlanned,
         "planned changes were not stored, all or some: somebody changed the same fields since, or the register model"_L1},
        {ExitCode::Different, "the customer and the register differ"_L1},
        {ExitCode::Interrupted, "the run was stopped by SIGINT (Ctrl+C)"_L1},
        {ExitCode::Terminated, "the run was stopped by SIGTERM"_L1},
    });
    return meanings;
}

ExitCode codeOf(const RuntimeFailure& failure)
{
    switch (failure.failure()) {
    case Failure::PathOrFileAccess:
    case Failure::DiskFull:
        return ExitCode::Unwritable;
    case Failure::DatabaseLocked:
        return ExitCode::Busy;
    case Failure::NotOurDatabase:
        return ExitCode::Unsound;
    default:
        return ExitCode::Failed;
    }
}

} // namespace norvane::command
