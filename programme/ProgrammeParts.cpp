// See ProgrammeParts.h.
#include "programme/ProgrammeParts.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

// clang-format off
constexpr ProgrammePart parts[] = {
    {"plu"_L1,       "PLUs"_L1,                          "PLUDATA"_L1},
    {"status"_L1,    "PLU status groups"_L1,             "PLUSTATUS"_L1},
    {"groups"_L1,    "Groups"_L1,                        "GROUPS"_L1},
    {"mixes"_L1,     "Product mix, mix and match"_L1,    "PRODUCTMIX|MIXNMATCH"_L1},
    {"functions"_L1, "Function keys"_L1,                 "FUNCTIONKEY"_L1},
    {"keyboards"_L1, "Keyboards"_L1,                     "KEYLINK|NLU"_L1},
    {"lookups"_L1,   "Window look-ups and recipes"_L1,   "WLU|RECIPE"_L1},
    {"cards"_L1,     "Smart cards"_L1,                   "CARDCATEGORY|HOTLIST"_L1},
    {"options"_L1,   "System options"_L1,
     "GENERALFUNCTIONS|TAXOPTIONS|CASHDRAWEROPTIONS|TRAININGMODEOPTIONS|LEVELMODIFIEROPTIONS|"
     "TRACKINGFILEOPTIONS|KITCHENPRINTOPTIONS|VALIDSUBTOTALOPTIONS|GENERALPRINTOPTION|"
     "REPORTPRINTINGOPTIONS|REPORTOPTIONS|TIMEKEEPING|EJDETAILPRINT|smode"_L1},
    {"messages"_L1,  "Messages"_L1,
     "SYSTEMDESCRIPTORS|ERRORMESSAGE|FINANCIALREPORTDESCRIPTORS|EMPLOYEEREPORTDESCRIPTORS|LOGOMESSAGE|"
     "VALIDATIONMESSAGE|CHECKENDORSEMESSAGE|GUESTCHECKMESSAGE"_L1},
    {"staff"_L1,     "Employees, jobs and authority"_L1, "EMPLOYEE|JOBCODE|PAYRATE|AUTHORITYLEVEL"_L1},
    {"times"_L1,     "Time periods"_L1,                  "TIMEPERIOD"_L1},
    {"taxes"_L1,     "Tax rates"_L1,                     "TAXRATES"_L1},
};
// clang-format on

} // namespace

std::span<const ProgrammePart> programmeParts()
{
    return parts;
}

QStringList tablesOf(const ProgrammePart& part)
{
    return QString(part.tables).split(u'|');
}

QStringList tablesNamed(const QStringList& names, QStringList& unknown)
{
    QStringList left = names;
    QStringList found;
    const auto isNamed = [&](QAnyStringView name) {
        const qsizetype before = left.size();
        left.removeIf([name](const QString& typed) {
            return QAnyStringView::compare(typed, name, Qt::CaseInsensitive) == 0;
        });
        return left.size() < before;
    };
    for (const ProgrammePart& part : parts) {
        const bool all = isNamed(part.name);
        for (const QString& table : tablesOf(part)) {
            if (isNamed(table) || all)
                found << table;
        }
    }
    unknown = left;
    return found;
}

} // namespace norvane::programme
