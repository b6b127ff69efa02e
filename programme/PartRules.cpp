// The tables of what is not copied; see PartRules.h.
#include "programme/PartRules.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

// What one of two models lacks is copied in neither direction: the shop without it has nothing to give, and
// an empty table or option would take away what the other has.

bool cardsDiffer(const RegisterModel& from, const RegisterModel& to)
{
    return from.hasCards != to.hasCards;
}
bool cardOptionsDiffer(const RegisterModel& from, const RegisterModel& to)
{
    return from.hasCards != to.hasCards || from.hasPoints != to.hasPoints;
}
bool keysDiffer(const RegisterModel& from, const RegisterModel& to)
{
    return from.family != to.family;
}
bool imagesDiffer(const RegisterModel& from, const RegisterModel& to)
{
    constexpr auto older = "Velmaro"_L1;
    return (from.code == older) != (to.code == older);
}

bool isAnyRecord(int /*record*/)
{
    return true;
}
bool isCardKey(int record)
{
    return record >= 257 && record <= 266;
}
/// Cash, check and the further tender keys.
bool isTenderKey(int record)
{
    return record == 18 || record == 21 || (record >= 119 && record <= 134);
}

struct ModelRule {
    QLatin1StringView table;
    QLatin1StringView field; ///< how its name begins; empty for the whole record
    bool (*isRecord)(int record);
    bool (*applies)(const RegisterModel& from, const RegisterModel& to);
    QLatin1StringView reason;
};

constexpr auto oneHasCards = "Only one of the two models has smart cards."_L1;
constexpr auto sharedNumbers =
    "These numbers also hold options of smart cards and points, which only one of the two models has."_L1;
constexpr auto otherKeys = "The keyboards of the two models have different keys."_L1;
constexpr auto oneHasImages = "Only one of the two models prints images with a PLU."_L1;

// clang-format off
constexpr ModelRule rules[] = {
    {"KEYLINK"_L1,            {},                        isAnyRecord, keysDiffer,     otherKeys},
    {"NLU"_L1,                {},                        isAnyRecord, keysDiffer,     otherKeys},
    {"CARDCATEGORY"_L1,       {},                        isAnyRecord, cardsDiffer,       oneHasCards},
    {"HOTLIST"_L1,            {},                        isAnyRecord, cardsDiffer,       oneHasCards},
    {"FUNCTIONKEY"_L1,        {},                        isCardKey,   cardsDiffer,       oneHasCards},
    {"FUNCTIONKEY"_L1,        "flag"_L1,                 isTenderKey, cardOptionsDiffer, sharedNumbers},
    {"EJDETAILPRINT"_L1,      "EJPOINTPAYMENT"_L1,       isAnyRecord, cardsDiffer,       oneHasCards},
    {"EJDETAILPRINT"_L1,      "EJSUBTRACT"_L1,           isAnyRecord, cardsDiffer,       oneHasCards},
    {"EJDETAILPRINT"_L1,      "EJADDPOINT"_L1,           isAnyRecord, cardsDiffer,       oneHasCards},
    {"EJDETAILPRINT"_L1,      "EJREDEEM"_L1,             isAnyRecord, cardsDiffer,       oneHasCards},
    {"EJDETAILPRINT"_L1,      "EJPRINTCARD"_L1,          isAnyRecord, cardsDiffer,       oneHasCards},
    {"EJDETAILPRINT"_L1,      "EJCARDSALE"_L1,           isAnyRecord, cardsDiffer,       oneHasCards},
    {"EJDETAILPRINT"_L1,      "EJHOTLIST"_L1,            isAnyRecord, cardsDiffer,       oneHasCards},
    {"EJDETAILPRINT"_L1,      "EJREMOVECARD"_L1,         isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALFUNCTIONS"_L1,   "ALLOWCARDISSUE"_L1,       isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALFUNCTIONS"_L1,   "AUDIBLETONEONHOTLIST"_L1, isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALFUNCTIONS"_L1,   "CHECKCARDBIRTHDAY"_L1,    isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALFUNCTIONS"_L1,   "GELDKARTE"_L1,            isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALFUNCTIONS"_L1,   "USESMARTCARDGROUP"_L1,    isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTCARDHOLDERREF"_L1,   isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTCASHBALANCE"_L1,     isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTCATEGORY"_L1,        isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTDEPARTMENT"_L1,      isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTDOB"_L1,             isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTLOYALTYBALANCE"_L1,  isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTMAXBALANCE"_L1,      isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTNAME"_L1,            isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTOLDCASHBALANCE"_L1,  isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTOLDLOYALTY"_L1,      isAnyRecord, cardsDiffer,       oneHasCards},
    {"GENERALPRINTOPTION"_L1, "PRINTPOINTSACCRUED"_L1,   isAnyRecord, cardsDiffer,       oneHasCards},
    {"PLUDATA"_L1,            "printNV"_L1,              isAnyRecord, imagesDiffer,      oneHasImages},
    {"PLUSTATUS"_L1,          "LINKEDNVIMAGE"_L1,        isAnyRecord, imagesDiffer,      oneHasImages},
};

struct OwnField {
    QLatin1StringView table;
    QLatin1StringView field; ///< how its name begins
};

constexpr OwnField countedField{"PLUDATA"_L1, "POINT"_L1};

/// Registers count points; a shop has its own number and range of registers.
constexpr OwnField ownFields[] = {
    countedField,
    {"smode"_L1,   "storenumber"_L1},
    {"smode"_L1,   "FirstRegister"_L1},
    {"smode"_L1,   "LastRegister"_L1},
};
// clang-format on

constexpr OwnField messageLines[] = {
    {"LOGOMESSAGE"_L1, "PREAMBLE"_L1},       {"LOGOMESSAGE"_L1, "POSTAMBLE"_L1},
    {"GUESTCHECKMESSAGE"_L1, "PREAMBLE"_L1}, {"GUESTCHECKMESSAGE"_L1, "POSTAMBLE"_L1},
    {"VALIDATIONMESSAGE"_L1, "LINE"_L1},     {"CHECKENDORSEMESSAGE"_L1, "LINE"_L1},
};

template <typename Row>
bool isAbout(const Row& row, QStringView table, QStringView field)
{
    return table.compare(row.table, Qt::CaseInsensitive) == 0 &&
           field.startsWith(row.field, Qt::CaseInsensitive);
}

template <typename Wanted>
QString reasonOf(const RegisterModel& from, const RegisterModel& to, Wanted wanted)
{
    const auto* const found = std::ranges::find_if(
        rules, [&](const ModelRule& rule) { return wanted(rule) && rule.applies(from, to); });
    return found == std::end(rules) ? QString() : QString(found->reason);
}

} // namespace

bool belongsToShop(QStringView table, QStringView field)
{
    return std::ranges::any_of(ownFields, [&](const OwnField& row) { return isAbout(row, table, field); });
}

bool isCountedByRegisters(QStringView table, QStringView field)
{
    return isAbout(countedField, table, field);
}

QString refusalOfTable(QStringView table, const RegisterModel& from, const RegisterModel& to)
{
    return reasonOf(from, to, [&](const ModelRule& rule) {
        return rule.field.isEmpty() && rule.isRecord == isAnyRecord && isAbout(rule, table, {});
    });
}

QString refusalOfRecord(QStringView table, int record, const RegisterModel& from, const RegisterModel& to)
{
    return reasonOf(from, to, [&](const ModelRule& rule) {
        return rule.field.isEmpty() && rule.isRecord(record) && isAbout(rule, table, {});
    });
}

QString refusalOfField(const CopiedField& field, const RegisterModel& from, const RegisterModel& to)
{
    const bool isMessage = std::ranges::any_of(
        messageLines, [&](const OwnField& row) { return isAbout(row, field.table, field.field); });
    if (isMessage && field.text.size() > to.messageWidth)
        return u"The printer of this shop has %1 characters in a line."_s.arg(to.messageWidth);
    return reasonOf(from, to, [&](const ModelRule& rule) {
        return !rule.field.isEmpty() && rule.isRecord(field.record) &&
               isAbout(rule, field.table, field.field);
    });
}

} // namespace norvane::programme
