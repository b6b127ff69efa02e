// Files that are short, damaged or not ours, and a reader that fails.
#include "tests/former/FormerShop.h"

namespace norvane::former::test
{
namespace
{

TEST(Damage, FilesThatAreNotReadSayWhy)
{
    FormerWriter later;
    later.add(plus());
    later.setVersion(2);
    EXPECT_EQ(FormerShop(later.content()).problem(),
              "/velmar.mdb has a format newer than that of 2003, which the former program never wrote.");
    for (const auto format : {FormerWriter::Format::Of1997, FormerWriter::Format::Of2000}) {
        FormerWriter secret(format);
        secret.add(plus());
        secret.setPassword("s");
        EXPECT_EQ(
            FormerShop(secret.content()).problem(),
            "/velmar.mdb is protected with a password. Remove the password with the program that set it.");
    }
    FormerWriter other;
    other.add({u"Table1"_s, {{u"A"_s, FormerType::Long}}, {{1}}});
    EXPECT_EQ(FormerShop(other.content()).problem(),
              "/velmar.mdb is a database of another program: it has no table of PLUs.");
    const QByteArray whole = databaseWith(plus());
    for (const int length : {0, 10, 4096, 3 * 4096}) {
        EXPECT_EQ(FormerShop(whole.first(length)).problem(),
                  "/velmar.mdb is too short, damaged or not a database of the former program.")
            << length;
    }
}

QVector<QVariantList> manyRows()
{
    QVector<QVariantList> rows;
    for (int i = 1; i <= 300; ++i)
        rows.append({u"%1"_s.arg(i, 18, 10, QChar(u'0')), u"Article"_s, u"1"_s});
    return rows;
}

TEST(Damage, MissingRecordsAreCounted)
{
    FormerWriter writer;
    FormerRows table = plus(manyRows());
    writer.add(table);
    writer.add({u"RECIPE"_s, {{u"RECIPENO"_s, FormerType::Long}}, {{1}}, 5});
    QByteArray content = writer.content();
    const int page = writer.dataPages(0).at(1);
    content.replace(qsizetype{page} * writer.pageSize(), writer.pageSize(),
                    QByteArray(writer.pageSize(), '\0'));
    const FormerShop shop(content);
    const Examination found = shop.examined();
    ASSERT_EQ(found.shortTables.size(), 2);
    EXPECT_EQ(found.shortTables[0].promised, 300);
    EXPECT_LT(found.shortTables[0].read, 300);
    EXPECT_GT(found.shortTables[0].read, 100);
    EXPECT_EQ(lossesInWords(found).at(1), u"The table RECIPE has 5 records, and 1 can be read."_s);
    EXPECT_TRUE(conversionQuestion(found).contains(u"Not everything in it can be kept:"_s));
    EXPECT_EQ(shop.convert().records, found.shortTables[0].read + 1);
}

TEST(Damage, ACutOffPageGivesNoRecordsOfNothing)
{
    FormerWriter writer;
    writer.add(plus(manyRows()));
    const QByteArray content = writer.content();
    const int page = writer.dataPages(0).constLast();
    // Other pages follow, so the cut page is replaced within the file.
    QByteArray cut = content;
    cut.replace(page * 4096 + 1000, 3096, QByteArray(3096, '\0'));
    const FormerShop shop(cut + QByteArray(100, '\0'));
    for (const UnfitValue& value : shop.examined().unfitValues)
        ADD_FAILURE() << value.record << value.field.toStdString();
    EXPECT_EQ(shop.examined().shortTables.size(), 1);
}

TEST(Damage, AFileThatTheFormerProgramHasOpenIsAskedAbout)
{
    const FormerShop shop(databaseWith(plus()));
    shop.folder().write("VELMAR.LDB", "");
    EXPECT_TRUE(conversionQuestion(shop.examined()).contains(u"has the file open, as velmar.ldb shows"_s));
}

/// A reader that is not the real one.
std::string problemWithReader(const char* script)
{
    const TestFolder folder;
    folder.write("velmar.mdb", databaseWith(plus()));
    folder.write("norvane-former", QByteArray("#!/bin/sh\n") + script);
    QFile::setPermissions(folder.path("norvane-former"), QFile::ReadOwner | QFile::ExeOwner);
    try {
        (void)examine(folder.path("velmar.mdb"), folder.path());
        return "none";
    } catch (const FormerError& error) {
        return error.text().section(u"velmar.mdb "_s, 1).toStdString();
    }
}

TEST(Damage, AReaderThatFailsIsASentence)
{
    EXPECT_EQ(problemWithReader("kill -SEGV $$"), "is damaged: the reader crashed.");
    EXPECT_EQ(problemWithReader("printf 'format\\t2000\\n'"), "is damaged: the reader stopped early.");
    EXPECT_EQ(problemWithReader("printf 'format\\t2000\\nrow\\t1\\nend\\n'"),
              "is damaged: the reader wrote a line that is out of place.");
    EXPECT_EQ(
        problemWithReader("printf 'format\\t2000\\ntable\\tA\\t1\\nfield\\tB\\twhole\\nrow\\t1\\t2\\n'"),
        "is damaged: the reader wrote a line that is out of place.");
    EXPECT_EQ(problemWithReader("exit 9"), "is damaged: the reader stopped early.");
}

} // namespace
} // namespace norvane::former::test
