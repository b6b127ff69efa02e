// Writes databases in the former engine's formats of 1997 and 2000, page by page.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVector>

#include <initializer_list>

namespace norvane::test
{

/// Types of the former engine, by the numbers that its files have.
enum class FormerType {
    YesNo = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Text = 10,
    Picture = 11,
    Memo = 12,
    Numeric = 16
};

struct FormerColumn {
    QString name;
    FormerType type = FormerType::Text;
    int size = 0; ///< characters of a text; places of a numeric
};

/// A table to be written. A value that is not valid is null.
struct FormerRows {
    QString name;
    QVector<FormerColumn> columns;
    QVector<QVariantList> rows;
    qint64 promised = -1;   ///< number of records in the definition; -1 for those that there are
    QVector<int> deleted{}; ///< rows that are marked as deleted
};

class FormerWriter
{
public:
    enum class Format { Of1997, Of2000 };

    explicit FormerWriter(Format format = Format::Of2000);

    void add(const FormerRows& table);
    /// Each letter takes the place of an unset one.
    void setPassword(const QByteArray& password) { m_password = password; }
    /// The version byte of a later format.
    void setVersion(char version) { m_version = version; }
    /// The whole file. Call it once, after the last table.
    [[nodiscard]] QByteArray content();
    /// The pages that hold the records of the table added as number @p table, from 0; valid after content().
    [[nodiscard]] QVector<int> dataPages(int table) const { return m_dataPages.at(table + 1); }
    [[nodiscard]] int pageSize() const { return m_isOld ? 2048 : 4096; }

private:
    int newPage();
    void put(int page, int at, const QByteArray& bytes);
    void addTable(const FormerRows& table, int definitionPage);
    void writeDefinition(const FormerRows& table, int page, int mapPage);
    [[nodiscard]] QByteArray definitionBytes(const FormerRows& table, int mapPage) const;
    [[nodiscard]] QByteArray columnBytes(const FormerRows& table, int& variables) const;
    QVector<int> writeRows(const FormerRows& table, int definitionPage);
    int writeMap(const QVector<int>& pages);
    [[nodiscard]] QByteArray columnEntry(const FormerColumn& column, int number, int variableNumber,
                                         int offset) const;
    /// A byte in the old format, two in the newer one.
    [[nodiscard]] QByteArray number(int value) const;
    [[nodiscard]] QByteArray rowBytes(const FormerRows& table, const QVariantList& row) const;
    QVector<int> addVariables(QByteArray& bytes, const FormerRows& table, const QVariantList& row) const;
    [[nodiscard]] static QByteArray maskOf(const FormerRows& table, const QVariantList& row);
    [[nodiscard]] static QByteArray jumpsOf(const QVector<int>& offsets, int size);
    [[nodiscard]] QByteArray textBytes(const QString& text) const;
    [[nodiscard]] QByteArray fixedBytes(const FormerColumn& column, const QVariant& value) const;
    [[nodiscard]] QByteArray variableBytes(const FormerColumn& column, const QVariant& value) const;
    [[nodiscard]] QByteArray header() const;

    const bool m_isOld;
    QByteArray m_password;
    char m_version;
    QVector<QByteArray> m_pages;
    QVector<QVector<int>> m_dataPages;
    FormerRows m_objects; ///< the file's list of its tables
};

} // namespace norvane::test
