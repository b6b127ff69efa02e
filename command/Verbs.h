// What each command does; Verbs.cpp lists them.
#pragma once

#include "command/Invocation.h"
#include "command/Workplace.h"

namespace norvane::command
{

inline constexpr OptionDefinition mapOption{
    QLatin1StringView("map"), QLatin1StringView("PAIRS"),
    QLatin1StringView("of an import: columns with other headings, as \"Price=PRICE1,Remark=\"; one without a "
                      "field is skipped")};

// All throw CommandError, and what the product throws.
void listCustomers(const Workplace& workplace, const Invocation& words);
void showStatus(const Workplace& workplace, const Invocation& words);
void checkCustomer(const Workplace& workplace, const Invocation& words);
void newCustomer(const Workplace& workplace, const Invocation& words);
void setSettings(const Workplace& workplace, const Invocation& words);
void fetch(const Workplace& workplace, const Invocation& words);
void send(const Workplace& workplace, const Invocation& words);
void compare(const Workplace& workplace, const Invocation& words);
void collect(const Workplace& workplace, const Invocation& words);
void report(const Workplace& workplace, const Invocation& words);
void movePlus(const Workplace& workplace, const Invocation& words);
void moveTable(const Workplace& workplace, const Invocation& words);
void listPlanned(const Workplace& workplace, const Invocation& words);
void applyPlanned(const Workplace& workplace, const Invocation& words);
void listTables(const Workplace& workplace, const Invocation& words);
void copyElsewhere(const Workplace& workplace, const Invocation& words);
void verifyCopies(const Workplace& workplace, const Invocation& words);
void listCopies(const Workplace& workplace, const Invocation& words);
void restore(const Workplace& workplace, const Invocation& words);
void listBoxes(const Workplace& workplace, const Invocation& words);
void listReports(const Workplace& workplace, const Invocation& words);
void convertCustomers(const Workplace& workplace, const Invocation& words);
void adoptInstallation(const Workplace& workplace, const Invocation& words);
void copyProgramme(const Workplace& workplace, const Invocation& words);
void night(const Workplace& workplace, const Invocation& words);
void publish(const Workplace& workplace, const Invocation& words);
void manageChain(const Workplace& workplace, const Invocation& words);

} // namespace norvane::command
