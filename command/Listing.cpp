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

/// Passes a text on in large pieces.
class Pieces
{
public:
    explicit Pieces(const Write& write) : m_write(write) {}
    void add(QByteArrayView text)
    {
        constexpr qsizetype enough = qsizetype{64} * 1024;
        m_piece += text;
        if (m_piece.size() >= enough)
            finish();
    }
    void finish()
    {
        m_write(m_piece);
        m_piece.resize(0);
    }

private:
    const Write& m_write;
    QByteArray m_piece;
};

QByteArray lineOf(const QStringList& texts, const QList<qsizetype>& widths)
{
    QString line;
    for (qsizetype column = 0; column < texts.size(); ++column)
        line += texts[column].leftJustified(widths[column] + columnGap);
    return line.trimmed().toLocal8Bit() + '\n';
}

QStringList textsOf(const QVariantList& row)
{
    QStringList texts;
    std::ranges::transform(row, std::back_inserter(texts), textOf);
    return texts;
}

QList<qsizetype> widthsOf(const QStringList& headings, const Rows& rows)
{
    QList<qsizetype> widths(headings.size());
    const auto widen = [&widths](const QStringList& texts) {
        for (qsizetype column = 0; column < texts.size(); ++column)
            widths[column] = std::max(widths[column], texts[column].size());
    };
    widen(headings);
    rows([&](const QVariantList& row) { widen(textsOf(row)); });
    return widths;
}

} // namespace

void writeText(const QStringList& headings, const Rows& rows, const Write& write)
{
    const auto widths = widthsOf(headings, rows);
    Pieces pieces(write);
    pieces.add(lineOf(headings, widths));
    rows([&](const QVariantList& row) { pieces.add(lineOf(textsOf(row), widths)); });
    pieces.finish();
}

void writeJson(const QStringList& headings, const Rows& rows, const Write& write)
{
    QStringList keys;
    std::ranges::transform(headings, std::back_inserter(keys), keyOf);
    Pieces pieces(write);
    QByteArrayView between = "[\n";
    rows([&](const QVariantList& row) {
        QJsonObject object;
        for (qsizetype column = 0; column < row.size(); ++column)
            object.insert(keys[column], jsonOf(row[column]));
        // Of an array with this object, what is between the lines of its brackets.
        pieces.add(between);
        pieces.add(QByteArrayView(QJsonDocument(QJsonArray{object}).toJson()).sliced(2).chopped(3));
        between = ",\n";
    });
    pieces.add(between == "[\n" ? "[\n]\n" : "\n]\n");
    pieces.finish();
}

} // namespace norvane::command
