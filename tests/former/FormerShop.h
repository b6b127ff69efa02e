// A customer's folder with a former database that the test writes.
#pragma once

#include "former/Conversion.h"
#include "former/ConversionReport.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"
#include "tests/support/FormerWriter.h"

namespace norvane::former::test
{

using norvane::test::FormerColumn, norvane::test::FormerRows, norvane::test::FormerType,
    norvane::test::FormerWriter, norvane::test::rowsOf, norvane::test::TestFolder;

/// The least that makes a file one of ours.
inline FormerRows plus(const QVector<QVariantList>& rows = {{u"000000000000001001"_s, u"Tea"_s, u"1.2"_s}})
{
    return {u"PluData"_s,
            {{u"PLUNUMBER"_s, FormerType::Text, 18},
             {u"DESCRIPTION"_s, FormerType::Text, 30},
             {u"PRICE1"_s, FormerType::Text, 20}},
            rows};
}

class FormerShop
{
public:
    explicit FormerShop(const QByteArray& database) { m_folder.write("velmar.mdb", database); }

    [[nodiscard]] const TestFolder& folder() const { return m_folder; }
    [[nodiscard]] Examination examined() const
    {
        return examine(m_folder.path("velmar.mdb"), QStringLiteral(READER_FOLDER));
    }
    /// Converts it, accepting every loss.
    Converted convert() const
    {
        return convertDatabase(m_folder.path(), QStringLiteral(READER_FOLDER), examined());
    }
    [[nodiscard]] std::string rows(const QString& sql) const
    {
        return rowsOf(m_folder.path("velmar.mdb"), sql);
    }
    /// The problem as its number and the text without the path; empty when there is none.
    [[nodiscard]] std::string problem() const
    {
        try {
            (void)examined();
            return {};
        } catch (const FormerError& error) {
            QString text = error.text();
            return text.remove(QDir::toNativeSeparators(m_folder.path())).toStdString();
        }
    }

private:
    TestFolder m_folder;
};

/// One table, with the PLUs before it.
inline QByteArray databaseWith(const FormerRows& table,
                               FormerWriter::Format format = FormerWriter::Format::Of2000)
{
    FormerWriter writer(format);
    writer.add(plus());
    writer.add(table);
    return writer.content();
}

} // namespace norvane::former::test
