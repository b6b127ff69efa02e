// Initialisation files: what a reader gets from odd files, and what a writer leaves of them, byte by byte.
#include "platform/ProfileFile.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

using test::TestFolder;

const QString section = QStringLiteral("SetupOption");

QString valueIn(const QByteArray& file, const char* key, const char* defaultText = "absent",
                int limit = profileValueLimit)
{
    const TestFolder folder;
    folder.write("setup.ini", file);
    return ProfileFile(folder.path("setup.ini"))
        .value(section, QString::fromUtf8(key), QString::fromUtf8(defaultText), limit);
}

QByteArray afterWriting(const QByteArray& file, const char* key, const char* value)
{
    const TestFolder folder;
    folder.write("setup.ini", file);
    EXPECT_TRUE(ProfileFile::write(folder.path("SETUP.INI"), section, QString::fromUtf8(key),
                                   QString::fromUtf8(value)));
    EXPECT_EQ(folder.names().size(), 1);
    return folder.read("setup.ini");
}

constexpr const char* spellings[][3] = {
    {"case-blind names", "[SETUPoption]\r\nPORT=2\r\n", "2"},
    {"blanks around names and value", " [ SetupOption ] \r\n\t port \t= \t 2 \t\r\n", "2"},
    {"first key wins", "[SetupOption]\nPort=1\nPort=2\n", "1"},
    {"section goes on further down", "[SetupOption]\n[x]\nPort=1\n[setupoption]\nPort=2\n", "2"},
    {"before any section", "Port=1\n[SetupOption]\n", "absent"},
    {"comment", "[SetupOption]\n;Port=1\n ; Port=1\n", "absent"},
    {"key without equals sign", "[SetupOption]\nPort\nPort=1\n", "1"},
    {"double quotes", "[SetupOption]\nPort=\" a \"\n", " a "},
    {"one pair only", "[SetupOption]\nPort=\"'a'\"\n", "'a'"},
    {"unequal quotes", "[SetupOption]\nPort=\"a'\n", "\"a'"},
    {"marked UTF-8", "\xEF\xBB\xBF[SetupOption]\nPort=\xC3\xA4\n", "ä"},
    {"Windows-1252", "[SetupOption]\nPort=\xE4\x80\n", "ä€"},
};

TEST(ProfileFile, ReadsAsTheFormerPlatformDid)
{
    for (const auto& [what, file, value] : spellings)
        EXPECT_EQ(valueIn(file, "Port"), QString::fromUtf8(value)) << what;

    const QByteArray file = "[SetupOption]\nList=\"" + QByteArray(300, 'x') + "\"\n";
    EXPECT_EQ(valueIn(file, "List"), QString(144, u'x'));
    EXPECT_EQ(valueIn(file, "List", "", profileListLimit), QString(255, u'x'));
    EXPECT_EQ(valueIn(file, "ModemReset", "AT&F "), QStringLiteral("AT&F"));
    EXPECT_EQ(valueIn(file, "Telephone", " "), QString());
}

constexpr const char* written[][3] = {
    {"not in another section", "[x]\nPort=1\n[setupoption]\n\n[y]\n",
     "[x]\nPort=1\n[setupoption]\nPort= 3\n\n[y]\n"},
    {"after the last key", "[SetupOption]\n\na=1\n\n\n[y]\nb=1\n",
     "[SetupOption]\n\na=1\nPort= 3\n\n\n[y]\nb=1\n"},
    {"a comment is not a key", "[SetupOption]\r\n;Port=1\r\n", "[SetupOption]\r\n;Port=1\r\nPort= 3\r\n"},
    {"open last line, appended", "[SetupOption]\na=1", "[SetupOption]\na=1\nPort= 3\n"},
    {"foreign bytes", "[SetupOption]\n\x81\xFF=\xE4\nnonsense\n",
     "[SetupOption]\n\x81\xFF=\xE4\nnonsense\nPort= 3\n"},
    {"marked UTF-8", "\xEF\xBB\xBF[SetupOption]\nn=\xC3\xA4\n",
     "\xEF\xBB\xBF[SetupOption]\nn=\xC3\xA4\nPort= 3\n"},
    {"new section", "[x]\na=1", "[x]\na=1\n[SetupOption]\nPort= 3\n"},
    {"empty file", "", "[SetupOption]\r\nPort= 3\r\n"},
};

TEST(ProfileFile, WritesOneKeyAndKeepsEveryOtherByte)
{
    for (const auto& [what, before, after] : written)
        EXPECT_EQ(afterWriting(before, "Port", " 3"), after) << what;
    EXPECT_EQ(afterWriting("", "Telephone", "Ä€"), "[SetupOption]\r\nTelephone=\xC4\x80\r\n");
    EXPECT_FALSE(ProfileFile::write(TestFolder().path("none/setup.ini"), section, section, section));
}

} // namespace
} // namespace norvane
