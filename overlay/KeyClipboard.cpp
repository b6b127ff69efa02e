// See KeyClipboard.h.
#include "overlay/KeyClipboard.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

const QString& format()
{
    static const QString name = u"application/x-norvane-overlay-key"_s;
    return name;
}

} // namespace

static QDataStream& operator<<(QDataStream& stream, const TextCell& cell)
{
    return stream << cell.text << cell.background.number << cell.textColour.number << cell.font.name
                  << cell.font.size << cell.font.isBold << cell.font.isItalic;
}

static QDataStream& operator>>(QDataStream& stream, TextCell& cell)
{
    return stream >> cell.text >> cell.background.number >> cell.textColour.number >> cell.font.name >>
           cell.font.size >> cell.font.isBold >> cell.font.isItalic;
}

QMimeData* keyToMime(const std::vector<TextCell>& cells)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    QStringList texts;
    for (const TextCell& cell : cells) {
        stream << cell;
        texts += cell.text;
    }
    auto* const mime = new QMimeData;
    mime->setData(format(), bytes);
    mime->setText(texts.join(u'\n'));
    return mime;
}

std::vector<TextCell> keyFromMime(const QMimeData& mime)
{
    const QByteArray bytes = mime.data(format());
    QDataStream stream(bytes);
    std::vector<TextCell> cells;
    while (!stream.atEnd()) {
        stream >> cells.emplace_back();
        if (stream.status() != QDataStream::Ok)
            return {};
    }
    return cells;
}

} // namespace norvane::overlay
