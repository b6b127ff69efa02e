// A table on standard output, for people or for programs.
#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <functional>

namespace norvane::command
{

/// Gives each row to @p take, in the order of the listing. It is called twice: widths come before lines.
using Rows = std::function<void(const std::function<void(const QVariantList& row)>& take)>;
/// Takes a piece of the text.
using Write = std::function<void(const QByteArray& text)>;

/// Writes a listing whose rows are made one by one, so that one of millions takes no memory: lines of aligned
/// columns, or an array of objects.
void writeText(const QStringList& headings, const Rows& rows, const Write& write);
void writeJson(const QStringList& headings, const Rows& rows, const Write& write);

/// Columns have headings ("Last sales"); in JSON the same names are keys ("lastSales").
class Listing
{
public:
    explicit Listing(QStringList headings) : m_headings(std::move(headings)) {}

    /// One value for each heading: texts, whole numbers, days and moments. An invalid one is empty, in JSON
    /// null.
    void add(QVariantList row) { m_rows.append(std::move(row)); }
    [[nodiscard]] bool isEmpty() const { return m_rows.isEmpty(); }

    [[nodiscard]] const QStringList& headings() const { return m_headings; }
    [[nodiscard]] Rows rows() const
    {
        return [this](const auto& take) {
            std::ranges::for_each(m_rows, take);
        };
    }

private:
    QStringList m_headings;
    QList<QVariantList> m_rows;
};

} // namespace norvane::command
