// A table on standard output, for people or for programs.
#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace norvane::command
{

/// Columns are told by their headings ("Last sales"); as JSON the same names stand as keys ("lastSales").
class Listing
{
public:
    explicit Listing(QStringList headings) : m_headings(std::move(headings)) {}

    /// One value for each heading: texts, whole numbers, days and moments. An invalid one is empty, in JSON
    /// null.
    void add(QVariantList row) { m_rows.append(std::move(row)); }
    [[nodiscard]] bool isEmpty() const { return m_rows.isEmpty(); }

    /// Lines of aligned columns, or an array of objects.
    [[nodiscard]] QByteArray text() const;
    [[nodiscard]] QByteArray json() const;

private:
    QStringList m_headings;
    QList<QVariantList> m_rows;
};

} // namespace norvane::command
