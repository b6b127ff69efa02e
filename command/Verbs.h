// What each command does; Verbs.cpp lists them.
#pragma once

#include "command/Invocation.h"
#include "command/Session.h"

namespace norvane::command
{

// All throw CommandError, and what the product throws.
void listCustomers(const Session& session, const Invocation& words);
void checkCustomer(const Session& session, const Invocation& words);
void fetch(const Session& session, const Invocation& words);
void send(const Session& session, const Invocation& words);
void collect(const Session& session, const Invocation& words);
void report(const Session& session, const Invocation& words);
void movePlus(const Session& session, const Invocation& words);
void listCopies(const Session& session, const Invocation& words);
void restore(const Session& session, const Invocation& words);

} // namespace norvane::command
