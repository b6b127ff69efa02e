// The XML in a part of a spreadsheet.
#pragma once

#include "articles/ZipPart.h"

#include <QXmlStreamReader>

#include <functional>

namespace norvane::articles
{

/// Walks through the elements of a part. Everything throws SpreadsheetError when the part is damaged, nested
/// too deeply, or defines names of its own, which could stand for any amount of text.
class XmlPart
{
public:
    XmlPart(const QString& path, const QString& name) : m_part(path, name), m_xml(&m_part) {}

    [[nodiscard]] bool exists() const { return m_part.isOpen(); }
    /// Calls @p take at the beginning of each element up to the end of the one that is open: of the part if
    /// none is. What @p take reads is not walked through again.
    void forEach(const std::function<void()>& take);
    /// Name of the element that begins, without its namespace.
    [[nodiscard]] QStringView name() const { return m_xml.name(); }
    /// Elements around it.
    [[nodiscard]] int depth() const { return m_depth - 1; }
    /// Empty if the element has none of this name in any namespace.
    [[nodiscard]] QStringView attribute(QStringView attribute) const;
    /// Reads the element to its end. @return the text in it and in the elements within it.
    [[nodiscard]] QString text();
    /// The same of the elements named "t" in it, without those that say how a text is spoken.
    [[nodiscard]] QString richText();
    /// Reads the element to its end.
    void skip();

private:
    QXmlStreamReader::TokenType step();

    ZipPart m_part;
    QXmlStreamReader m_xml;
    int m_depth = 0;
};

} // namespace norvane::articles
