// Safety copies: which there are, and the way back to one.
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// @throws CommandError NoSuchName if none or several begin so.
customers::SafetyCopy copyOf(const QString& customerPath, const QString& name)
{
    QList<customers::SafetyCopy> found;
    for (const auto& copy : customers::safetyCopies(customerPath)) {
        if (copy.name == name)
            return copy;
        if (!name.isEmpty() && copy.name.startsWith(name))
            found << copy;
    }
    if (found.size() == 1)
        return found.front();
    const QString why =
        found.isEmpty() ? u"There is no copy \"%1\"."_s : u"Several copies begin with \"%1\"."_s;
    throw CommandError(ExitCode::NoSuchName, why.arg(name));
}

} // namespace

void listCopies(const Workplace& workplace, const Invocation& words)
{
    const ApplicationValues values = findCustomer(workplace, words.operands.front());
    Listing listing({u"Name"_s, u"Made"_s, u"Reason"_s});
    for (const auto& copy : customers::safetyCopies(values.customerPath))
        listing.add({copy.name, copy.made, copy.reason});
    workplace.show(listing);
}

void restore(const Workplace& workplace, const Invocation& words)
{
    const ApplicationValues values = findCustomer(workplace, words.operands[0]);
    const auto copy = copyOf(values.customerPath, words.operands[1]);
    const auto lock = lockFor(workplace, values);
    const QString notice = customers::restoreSafetyCopy(values.customerPath, copy);
    if (!notice.isEmpty())
        printMessage(notice);
}

} // namespace norvane::command
