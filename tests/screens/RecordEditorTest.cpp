// What the buttons of a screen do to a table, seen in the table.
#include "screens/RecordEditor.h"

#include "tests/screens/ScreenFixture.h"

namespace norvane::screens
{
namespace
{

using store::Value;
using test::failureOf;

BoundField bound(ControlKind kind, const char* field, bool readOnly = false)
{
    return {kind, QString::fromLatin1(field), readOnly, {}};
}

Value text(const char* value)
{
    return Value::text(std::string(value));
}

class RecordEditorTest : public testing::Test
{
protected:
    RecordEditor editor(const char* table = "groups", const char* first = "GroupNo",
                        const char* second = "byname")
    {
        return {std::make_shared<store::Database>(m_shop.values.databasePath),
                {QString::fromLatin1(table), QString::fromLatin1(first), QString::fromLatin1(second)},
                QStringLiteral("test.scn")};
    }
    RecordEditor pluEditor() { return editor("PLUDATA", "PLUNUMBER", "plunumber"); }

    test::ScreenFixture m_shop;
    BoundFields m_groupFields{bound(ControlKind::Integer, "GROUPNO"), bound(ControlKind::Text, "description"),
                              bound(ControlKind::Decimal, "Price"),   bound(ControlKind::Combo, "LINK"),
                              bound(ControlKind::Check, "TAX1"),      bound(ControlKind::Check, "FLAG")};
    BoundFields m_pluFields{bound(ControlKind::Text, "PLUNUMBER"), bound(ControlKind::Text, "DESCRIPTION")};
};

TEST_F(RecordEditorTest, NullIsEmptyOrZeroButNotInAWholeNumberBox)
{
    editor("GROUPS", "byname").showFields(m_groupFields);
    EXPECT_EQ(m_groupFields[1].content.toText(), QStringLiteral("Beers"));
    EXPECT_EQ(m_groupFields[4].content, Value::whole(0));
    m_shop.execute("update GROUPS set DESCRIPTION = null, PRICE = null, LINK = null, TAX1 = null");
    editor().showFields(m_groupFields);
    EXPECT_EQ(m_groupFields[1].content, text(""));
    EXPECT_EQ(m_groupFields[2].content, text("0"));
    EXPECT_TRUE(m_groupFields[3].content.isNull());
    EXPECT_EQ(m_groupFields[4].content, Value::whole(0));
    EXPECT_EQ(m_groupFields[5].content, Value::whole(0)) << "a flag that holds 1 is not true";
    BoundFields fields{bound(ControlKind::Integer, "LINK")};
    EXPECT_EQ(failureOf([&] { editor().showFields(fields); }), 13);
}

TEST_F(RecordEditorTest, SavesEachKindInItsFormAndLeavesReadOnlyBoxesOut)
{
    RecordEditor groups = editor();
    groups.showFields(m_groupFields);
    const char* const typed[] = {"1", "Ports", "7.50", "2 ", "1", "1"};
    for (int at = 0; at < m_groupFields.size(); ++at)
        m_groupFields[at].content = text(typed[at]);
    EXPECT_EQ(groups.save(m_groupFields), SaveOutcome::Stored);
    BoundFields fields{bound(ControlKind::Text, "DESCRIPTION", true),
                       bound(ControlKind::Integer, "LINK", true), bound(ControlKind::Decimal, "RATE", true),
                       bound(ControlKind::Text, "LONGLINK")};
    for (BoundField& field : fields)
        field.content = text("9");
    fields[3].content = text("999999999999999999");
    EXPECT_EQ(groups.save(fields), SaveOutcome::Stored);
    EXPECT_EQ(m_shop.rows("select GROUPNO, DESCRIPTION, PRICE, LINK, TAX1, FLAG, RATE, LONGLINK from GROUPS "
                          "where GROUPNO = 1"),
              QStringList{QStringLiteral("1|Ports|7.5|2|True|1|1.5|999999999999999999")});
    fields[3].content = text("");
    EXPECT_EQ(groups.save(fields), SaveOutcome::Stored);
    EXPECT_EQ(m_shop.rows("select LONGLINK from GROUPS where GROUPNO = 1"),
              QStringList{QStringLiteral("null")});
}

TEST_F(RecordEditorTest, PluNumbersAreFilledToTheirWidth)
{
    RecordEditor plus = pluEditor();
    plus.add(m_pluFields);
    m_pluFields[0].content = text("99000000000000000077");
    m_pluFields[1].content = text("Stout");
    EXPECT_EQ(plus.save(m_pluFields), SaveOutcome::Stored);
    EXPECT_EQ(m_pluFields[0].content, text("000000000000000077"));
    BoundFields shownOnly{bound(ControlKind::Text, "PluNumber", true)};
    shownOnly[0].content = text("8");
    EXPECT_EQ(plus.save(shownOnly), SaveOutcome::Stored);
    EXPECT_EQ(shownOnly[0].content, text("000000000000000008")) << "filled also where it is not written";
    EXPECT_EQ(m_shop.rows("select PLUNUMBER from PLUDATA order by PLUNUMBER"),
              (QStringList{QStringLiteral("000000000000000005"), QStringLiteral("000000000000000077"),
                           QStringLiteral("000000000000000123")}));
    EXPECT_TRUE(plus.find(1, QStringLiteral("123")));
    plus.showFields(m_pluFields);
    EXPECT_EQ(m_pluFields[1].content.toText(), QStringLiteral("Claret"));
    EXPECT_FALSE(plus.find(2, QStringLiteral("124")));
}

TEST_F(RecordEditorTest, AChangedKeyThatIsTakenKeepsTheRecordOpen)
{
    RecordEditor plus = pluEditor();
    plus.showFields(m_pluFields);
    for (const auto& [number, outcome] :
         {std::pair{"123", SaveOutcome::DuplicateKey}, {"4", SaveOutcome::Stored}}) {
        m_pluFields[0].content = text(number);
        EXPECT_EQ(plus.save(m_pluFields), outcome) << number;
    }
    EXPECT_EQ(m_shop.rows("select DESCRIPTION from PLUDATA where PLUNUMBER = '000000000000000004'"),
              QStringList{QStringLiteral("Lager")});
}

TEST_F(RecordEditorTest, OtherFailuresOfASavePassSilently)
{
    RecordEditor groups = editor();
    for (const char* typed : {"a name that is much too long", "fits"}) {
        BoundFields fields{bound(ControlKind::Text, "DESCRIPTION"), bound(ControlKind::Integer, "LINK")};
        fields[0].content = text(typed);
        fields[1].content = text("3000000000");
        EXPECT_EQ(groups.save(fields), SaveOutcome::Refused) << typed;
    }
    EXPECT_EQ(m_shop.rows("select DESCRIPTION, LINK from GROUPS where GROUPNO = 1"),
              QStringList{QStringLiteral("Wines|3")});
}

TEST_F(RecordEditorTest, AfterASearchInVainTheMovesGoToTheLastRecord)
{
    RecordEditor groups = editor();
    BoundFields fields{bound(ControlKind::Text, "DESCRIPTION")};
    EXPECT_TRUE(groups.find(1, {})) << "an empty text lies before every key";
    for (const bool forward : {true, false}) {
        EXPECT_FALSE(groups.find(1, QStringLiteral("4")));
        EXPECT_EQ(groups.save(fields), SaveOutcome::Refused) << "there is no current record";
        EXPECT_EQ(forward ? groups.next() : groups.previous(), !forward);
        groups.showFields(fields);
        EXPECT_EQ(fields[0].content.toText(), QStringLiteral("Food"));
    }
}

TEST_F(RecordEditorTest, AMoveOrADeletionDropsANewRecord)
{
    RecordEditor groups = editor();
    BoundFields fields{bound(ControlKind::Text, "DESCRIPTION")};
    groups.add(fields);
    groups.add(fields);
    EXPECT_TRUE(groups.next());
    groups.showFields(fields);
    fields[0].content = text("Ales");
    EXPECT_EQ(groups.save(fields), SaveOutcome::Stored) << "the new records are gone; this one is changed";
    groups.add(fields);
    groups.deleteRecord();
    EXPECT_EQ(m_shop.rows("select DESCRIPTION from GROUPS order by GROUPNO"),
              (QStringList{QStringLiteral("Wines"), QStringLiteral("Ales"), QStringLiteral("Food")}));
}

} // namespace
} // namespace norvane::screens
