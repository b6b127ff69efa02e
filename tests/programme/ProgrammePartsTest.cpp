// The parts of a programme, against the catalogue of tables.
#include "programme/ProgrammeParts.h"

#include "records/RegisterFiles.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

TEST(ProgrammePartsTest, EveryTableOfARegisterFileIsInExactlyOnePart)
{
    QStringList tables;
    for (const ProgrammePart& part : programmeParts())
        tables << tablesOf(part);
    QStringList exchanged;
    for (const auto& file : records::registerFiles())
        exchanged << QString::fromLatin1(file.table);
    exchanged.removeDuplicates();
    tables.sort();
    exchanged.sort();
    EXPECT_EQ(tables, exchanged);
}

TEST(ProgrammePartsTest, NamesMeanPartsAndTables)
{
    QStringList unknown;
    EXPECT_EQ(tablesNamed({u"nlu"_s, u"GROUPS"_s, u"Keyboards"_s, u"plus"_s}, unknown),
              QStringList({u"GROUPS"_s, u"KEYLINK"_s, u"NLU"_s}));
    EXPECT_EQ(unknown, QStringList(u"plus"_s));
}

} // namespace
} // namespace norvane::programme
