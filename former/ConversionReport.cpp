// Texts about a conversion; see ConversionReport.h.
#include "former/ConversionReport.h"

#include "platform/FilePaths.h"
#include "platform/WholeFile.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::former
{
namespace
{

const auto reportName = u"norvane-conversion.txt"_s;
/// A message box stays small; the report file has them all.
constexpr qsizetype mostLinesInBox = 5;
/// Storing takes about so many times as long as reading.
constexpr int storingFactor = 2;

QString shownCount(qint64 count)
{
    return QLocale().toString(count);
}

/// "1 record", "2,300 records".
QString counted(qint64 count, QLatin1StringView word)
{
    return shownCount(count) + u' ' + word + (count == 1 ? u""_s : u"s"_s);
}

QString shortTableInWords(const ShortTable& table)
{
    if (table.promised < 0)
        return u"The table %1 cannot be read at all."_s.arg(table.name);
    return u"The table %1 has %2, and %3 can be read."_s.arg(table.name, counted(table.promised, "record"_L1),
                                                             shownCount(table.read));
}

QString unfitInWords(const UnfitValue& value)
{
    if (value.isKey) {
        return u"%1, record %2 has no %3 and is left out."_s.arg(value.table)
            .arg(value.record)
            .arg(value.field);
    }
    return u"%1, record %2, %3: \"%4\" becomes %5."_s.arg(value.table)
        .arg(value.record)
        .arg(value.field, value.value, value.kept.isEmpty() ? u"empty"_s : u'"' + value.kept + u'"');
}

/// The first lines, and how many more there are.
QStringList shortened(const QStringList& lines, qint64 count)
{
    QStringList shown = lines.first(std::min(lines.size(), mostLinesInBox));
    if (count > shown.size())
        shown << u"... and %1 more"_s.arg(shownCount(count - shown.size()));
    return shown;
}

QStringList missingInWords(const Examination& found)
{
    QStringList lines;
    for (const ShortTable& table : found.shortTables)
        lines << shortTableInWords(table);
    return lines;
}

QStringList unfitInWords(const Examination& found)
{
    QStringList lines;
    for (const UnfitValue& value : found.unfitValues)
        lines << unfitInWords(value);
    return lines;
}

void addPart(QStringList& report, const QString& heading, const QStringList& lines)
{
    if (lines.isEmpty())
        return;
    report << QString() << heading;
    for (const QString& line : lines)
        report << u"  "_s + line;
}

} // namespace

QStringList findingsInWords(const Examination& found)
{
    QStringList lines{u"Format of %1, %2, %3"_s.arg(found.format, counted(found.tables.size(), "table"_L1),
                                                    counted(found.recordCount, "record"_L1))};
    if (found.firstSales.isValid()) {
        const QLocale locale;
        lines << u"Sales from %1 to %2"_s.arg(locale.toString(found.firstSales, QLocale::ShortFormat),
                                              locale.toString(found.lastSales, QLocale::ShortFormat));
    } else {
        lines << u"No sales"_s;
    }
    return lines;
}

QStringList lossesInWords(const Examination& found)
{
    QStringList lines;
    if (found.isOpen) {
        lines
            << u"The former program has the file open, as velmar.ldb shows: what it stores from now on would "
               "be missing. Close it first, or delete velmar.ldb if it was left behind."_s;
    }
    const QStringList missing = missingInWords(found);
    lines += shortened(missing, missing.size());
    lines += shortened(unfitInWords(found), found.unfitCount);
    return lines;
}

QString leftOutInWords(const Converted& done)
{
    if (done.leftOut.isEmpty())
        return {};
    const bool isOne = done.leftOut.size() == 1;
    const QString words = counted(done.leftOut.size(), "record"_L1) +
                          (isOne ? u" was left out: it has the key of an earlier one, or no key."_s
                                 : u" were left out: each has the key of an earlier one, or no key."_s);
    return done.reportFile.isEmpty() ? words
                                     : words + u" See %1 in the customer's folder."_s.arg(done.reportFile);
}

QString durationInWords(const Examination& found)
{
    const auto seconds = storingFactor * found.readingTime.count() / 1000;
    if (seconds < 2)
        return u"a second or two"_s;
    return seconds < 120 ? u"about %1 seconds"_s.arg(seconds)
                         : u"about %1 minutes"_s.arg((seconds + 59) / 60);
}

QString conversionQuestion(const Examination& found)
{
    QStringList text{u"This customer's database was made by the former program:"_s};
    text << findingsInWords(found) << QString();
    const QStringList losses = lossesInWords(found);
    if (!losses.isEmpty())
        text << u"Not everything in it can be kept:"_s << losses << QString();
    text << u"Convert it? That takes %1. The old file is kept unchanged as velmar.former.mdb."_s.arg(
        durationInWords(found));
    return text.join(u'\r');
}

QString writeConversionReport(const QString& customerPath, const Examination& found, const Converted& done)
{
    QStringList report{u"Conversion of %1, %2"_s.arg(
        done.keptAs, QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm"_s))};
    report += findingsInWords(found);
    QStringList tables;
    for (const FoundTable& table : found.tables)
        tables << u"%1: %2"_s.arg(table.name, counted(table.records, "record"_L1));
    addPart(report, u"Tables"_s, tables);
    addPart(report, u"Records that could not be read"_s, missingInWords(found));
    QStringList unfit = unfitInWords(found);
    if (found.unfitCount > unfit.size())
        unfit << u"... and %1 more"_s.arg(found.unfitCount - unfit.size());
    addPart(report, u"Values that do not fit"_s, unfit);
    addPart(report, u"Left out because a record before has the same key, or because they have none"_s,
            done.leftOut);
    addPart(report, u"Tables that this program does not have"_s, found.unknownTables);
    addPart(report, u"Fields that this program does not have"_s, found.unknownFields);
    const QByteArray content = (report.join(u"\r\n"_s) + u"\r\n"_s).toUtf8();
    return replaceWholeFile(joinPath(customerPath, reportName), content) ? QString() : reportName;
}

} // namespace norvane::former
