// See Listing.h.
#include "command/Listing.h"

#include "platform/Excerpt.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr qsizetype columnGap = 2;

/// "Last sales" becomes "lastSales".
QString keyOf(const QString& heading)
{
    QString key;
    for (const QString& word : heading.toLower().split(u' ', Qt::SkipEmptyParts))
        key += key.isEmpty() ? word : word.front().toUpper() + word.mid(1);
    return key;
}

QString textOf(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(u"yyyy-MM-dd HH:mm:ss"_s);
    return visibleControls(
        value.toString().replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s).replace(u'\t', u"\\t"_s));
}

QJsonValue jsonOf(const QVariant& value)
{
    return value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue();
}

} // namespace

QByteArray Listing::text() const
{
    QList<QStringList> lines{m_headings};
    for (const QVariantList& row : m_rows) {
        QStringList& line = lines.emplaceBack();
        std::ranges::transform(row, std::back_inserter(line), textOf);
    }
    QList<qsizetype> widths(m_headings.size());
    for (const QStringList& line : lines) {
        for (qsizetype column = 0; column < line.size(); ++column)
            widths[column] = std::max(widths[column], line[column].size());
    }
    QString text;
    for (const QStringList& line : lines) {
        QString shown;
        for (qsizetype column = 0; column < line.size(); ++column)
            shown += line[column].leftJustified(widths[column] + columnGap);
        text += shown.trimmed() + u'\n';
    }
    return text.toLocal8Bit();
}

QByteArray Listing::json() const
{
    QJsonArray rows;
    for (const QVariantList& row : m_rows) {
        QJsonObject object;
        for (qsizetype column = 0; column < row.size(); ++column)
            object.insert(keyOf(m_headings[column]), jsonOf(row[column]));
        rows.append(object);
    }
    return QJsonDocument(rows).toJson();
}

} // namespace norvane::command
