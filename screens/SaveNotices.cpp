// See SaveNotices.h.
#include "screens/SaveNotices.h"

#include "base/LossQuestion.h"

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

/// Failures with shorter texts than the database's. The texts of all others name table and field.
constexpr Reason reasons[] = {
    {Failure::DatabaseLocked, "another program holds the database"_L1},
    {Failure::DiskFull, "the disk is full"_L1},
    {Failure::PathOrFileAccess, "the database is read only"_L1},
    {Failure::DeviceIo, "the disk cannot be read or written"_L1},
    {Failure::DuplicateKey, "another record has this number"_L1},
    {Failure::NoCurrentRecord, "there is no record here. Press Add first"_L1},
    {Failure::RecordDeleted, "the record was deleted meanwhile"_L1},
};

QString placesInWords(int count)
{
    return count == 1 ? u"1 place"_s : u"%1 places"_s.arg(count);
}

} // namespace

bool mayOverwrite(Boxes& boxes)
{
    return boxes.choose(u"Since this record was shown here, it was changed by another screen, a price change "
                        "or an upload.\r\rSave replaces those changes by the values shown here.\r"
                        "Show shows them here, and drops what you have typed."_s,
                        u"Record Changed"_s, u"&Save"_s, u"S&how"_s);
}

bool mayRenumber(Boxes& boxes, const QString& record, const QString& before, const QString& after,
                 const KeyHolders& holders)
{
    QString text = u"%1 will get the number %2."_s.arg(record, after);
    if (!holders.words.isEmpty())
        text += u"\r\r%1 is used by %2."_s.arg(before, holders.words);
    if (holders.count > 0)
        text += u" They keep the old number and will not find this record any more."_s;
    return askBeforeLoss(boxes, text + u"\r\rSave it under the new number?"_s);
}

bool mayDeleteUsed(Boxes& boxes, const QString& record, const KeyUses& uses)
{
    if (uses.count == 0)
        return true;
    QString text = u"%1 is used in %2:\r\r"_s.arg(record, placesInWords(uses.count)) + uses.first.join(u'\r');
    if (const auto more = uses.count - uses.first.size(); more > 0)
        text += u"\rand %1 more"_s.arg(more);
    return askBeforeLoss(boxes, text + (uses.count == 1 ? u"\r\rIt will be without this record. Delete it?"_s
                                                        : u"\r\rThey will be without it. Delete it?"_s));
}

QString newLike(const QString& record)
{
    return u"A new record like %1. Type its number and description, then press Save"_s.arg(record);
}

UnsavedAnswer askToSave(Boxes& boxes, const QString& record)
{
    return boxes.askToSave(u"Changes to %1 are not saved."_s.arg(record), u"Unsaved Changes"_s);
}

QString changesLost(const QString& record)
{
    return u"Changes to %1 were not saved. Press Ctrl+Z to get them back"_s.arg(record);
}

QString changesBack(const QString& record)
{
    return u"Changes to %1 are back. Press Save to store them"_s.arg(record);
}

QString changesGone(const QString& record)
{
    return u"Changes to %1 cannot be brought back: the record was deleted"_s.arg(record);
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

QString recordName(const QString& caption, const QString& label, const QString& key)
{
    return key.isEmpty() ? caption : recordName(caption, label) + u' ' + key;
}

QString recordSaved(const QString& record)
{
    return u"Saved "_s + record;
}

} // namespace norvane::screens
