// The table of the references; see RecordReferences.h.
#include "store/catalogue/RecordReferences.h"

#include <QString>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// NLU holds the number of a PLU where KEYLINK holds 0 at the same place of its order; ids do not count.
constexpr QLatin1StringView keyOfPlu{
    "rowid IN (SELECT at FROM"
    " (SELECT rowid AS at, row_number() OVER (ORDER BY id, rowid) AS place FROM nlu) JOIN"
    " (SELECT keylink, row_number() OVER (ORDER BY id, rowid) AS place FROM keylink) USING (place)"
    " WHERE keylink = '0')"};

constexpr RecordReference references[] = {
    {"PLUDATA"_L1, "key"_L1, "NLU"_L1, "nlu"_L1, 1, 1, keyOfPlu},
    // Lines of the types PLU and condiment; the others are function keys.
    {"PLUDATA"_L1, "look-up"_L1, "WLU"_L1, "codenumber*"_L1, 1, 50, "wlutype* IN (0, 1)"_L1},
    {"PLUDATA"_L1, "link"_L1, "PLUDATA"_L1, "STOCKLINK"_L1},
    {"PLUDATA"_L1, "link"_L1, "PLUSTATUS"_L1, "LINKEDPLU"_L1},
    // Parts of the kind PLU; the others are ingredients and recipes.
    {"PLUDATA"_L1, "recipe"_L1, "RECIPE"_L1, "recipe*"_L1, 1, 20, "item* = 1"_L1},
    {"GROUPS"_L1, "PLU"_L1, "PLUDATA"_L1, "GROUPNO"_L1},
    {"GROUPS"_L1, "status group"_L1, "PLUSTATUS"_L1, "GROUPLINK*"_L1, 2, 3},
    {"PLUSTATUS"_L1, "PLU"_L1, "PLUDATA"_L1, "PLUSTATUS"_L1},
    {"MIXNMATCH"_L1, "PLU"_L1, "PLUDATA"_L1, "MIXNMATCH"_L1},
    {"PRODUCTMIX"_L1, "PLU"_L1, "PLUDATA"_L1, "PRODUCTMIX"_L1},
    {"RECIPE"_L1, "PLU"_L1, "PLUDATA"_L1, "RECIPENO"_L1},
    {"AUTHORITYLEVEL"_L1, "employee"_L1, "EMPLOYEE"_L1, "AUTHORITYLEVEL"_L1},
    {"JOBCODE"_L1, "employee"_L1, "EMPLOYEE"_L1, "JOB*CODE"_L1, 1, 6},
    {"PAYRATE"_L1, "employee"_L1, "EMPLOYEE"_L1, "PAYRATE*"_L1, 1, 6},
    {"EMPLOYEE"_L1, "system option"_L1, "GENERALFUNCTIONS"_L1, "EMPLOYEENO*"_L1, 1, 10},
    {"EMPLOYEE"_L1, "system option"_L1, "TRAININGMODEOPTIONS"_L1, "trainingemployee"_L1},
};

/// Whether @p field is one of the fields that @p reference means.
bool isField(const RecordReference& reference, QStringView field)
{
    for (int number = reference.first; number <= reference.last; ++number) {
        const QString name = QString(reference.field).replace(u'*', QString::number(number));
        if (field.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

std::span<const RecordReference> recordReferences()
{
    return references;
}

const RecordReference* referenceOf(QStringView table, QStringView field)
{
    const auto* const found = std::ranges::find_if(references, [&](const RecordReference& reference) {
        return reference.condition == RecordReference::always &&
               table.compare(reference.table, Qt::CaseInsensitive) == 0 && isField(reference, field);
    });
    return found == std::end(references) ? nullptr : found;
}

} // namespace norvane::store
