// See XmlPart.h.
#include "articles/XmlPart.h"

#include "articles/SpreadsheetError.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

/// "_x000D_" is how a file writes a character that its form cannot hold.
QString unescaped(QString text)
{
    static const QRegularExpression escape(u"_x([0-9A-Fa-f]{4})_"_s);
    for (auto found = escape.match(text); found.hasMatch();) {
        const QChar letter(found.captured(1).toUShort(nullptr, 16));
        text.replace(found.capturedStart(), found.capturedLength(), letter);
        found = escape.match(text, found.capturedStart() + 1);
    }
    return text;
}

} // namespace

QXmlStreamReader::TokenType XmlPart::step()
{
    constexpr int deepest = 64;
    const auto token = m_xml.readNext();
    if (token == QXmlStreamReader::StartElement)
        ++m_depth;
    if (token == QXmlStreamReader::EndElement)
        --m_depth;
    if (token == QXmlStreamReader::Invalid || token == QXmlStreamReader::DTD || m_depth > deepest)
        throw SpreadsheetError(m_part.fault().isEmpty() ? u"is damaged"_s : m_part.fault());
    return token;
}

void XmlPart::forEach(const std::function<void()>& take)
{
    const int outside = m_depth;
    for (auto token = step(); token != QXmlStreamReader::EndDocument && m_depth >= outside; token = step()) {
        if (token == QXmlStreamReader::StartElement)
            take();
    }
}

QStringView XmlPart::attribute(QStringView attribute) const
{
    for (const auto& each : m_xml.attributes()) {
        if (each.name() == attribute)
            return each.value();
    }
    return {};
}

QString XmlPart::text()
{
    QString text;
    for (const int inside = m_depth; m_depth >= inside;) {
        if (step() == QXmlStreamReader::Characters)
            text += m_xml.text();
    }
    return text;
}

QString XmlPart::richText()
{
    QString text;
    forEach([&] {
        if (name() == "rPh"_L1) {
            skip();
        } else if (name() == "t"_L1) {
            text += this->text();
        }
    });
    return unescaped(text);
}

void XmlPart::skip()
{
    for (const int inside = m_depth; m_depth >= inside;)
        (void)step();
}

} // namespace norvane::articles
