// See SaveNotices.h.
#include "screens/SaveNotices.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

struct Reason {
    Failure failure;
    QLatin1StringView text;
};

/// Failures that the user can tell in fewer words than the database. The texts of all others name table and
/// field.
constexpr Reason reasons[] = {
    {Failure::DatabaseLocked, "another program holds the database"_L1},
    {Failure::DiskFull, "the disk is full"_L1},
    {Failure::PathOrFileAccess, "the database is read only"_L1},
    {Failure::DeviceIo, "the disk cannot be read or written"_L1},
    {Failure::DuplicateKey, "another record has this number"_L1},
    {Failure::NoCurrentRecord, "there is no record here. Press Add first"_L1},
    {Failure::RecordDeleted, "the record was deleted meanwhile"_L1},
};

} // namespace

bool mayOverwrite(Boxes& boxes)
{
    return boxes.choose(u"Since this record was shown here, it was changed by another screen, a price change "
                        "or an upload.\r\rSave replaces those changes by what stands here.\r"
                        "Show shows them here, and drops what you have typed."_s,
                        u"Record Changed"_s, u"&Save"_s, u"S&how"_s);
}

QString nothingStored(const RuntimeFailure& failure)
{
    const auto* const known = std::ranges::find(reasons, failure.failure(), &Reason::failure);
    const QString why = known == std::end(reasons) ? failure.text() : QString(known->text);
    return u"Nothing was stored: "_s + why;
}

/// "PLU number" is the number of a PLU.
QString recordName(const QString& caption, QString label)
{
    label.remove(u" number"_s);
    return label.isEmpty() ? caption : label;
}

QString recordSaved(const QString& caption, const QString& label, const QString& key)
{
    return u"Saved "_s + (key.isEmpty() ? caption : recordName(caption, label) + u' ' + key);
}

} // namespace norvane::screens
