#include "screens/table/TableRows.h"

#include "tests/screens/table/TableShop.h"

namespace norvane::screens
{
namespace
{

const QDate today(2026, 11, 26);

class TableRowsTest : public test::TableShop
{
protected:
    TableRowsTest() : m_rows(database(), source()) {}

    [[nodiscard]] int column(const char* field) const
    {
        const auto& columns = m_rows.columns();
        const auto found = std::ranges::find_if(
            columns, [&](const TableColumn& known) { return known.field.name == QLatin1String(field); });
        return static_cast<int>(found - columns.begin());
    }
    /// The column of all shown rows.
    [[nodiscard]] std::string shown(const char* field = "DESCRIPTION")
    {
        QStringList texts;
        for (int row = 0; row < m_rows.size(); ++row)
            texts += m_rows.columns()[column(field)].text(m_rows.value(row, column(field)));
        return texts.join(u'|').toStdString();
    }
    [[nodiscard]] std::string sorted(const char* field, Qt::SortOrder order = Qt::AscendingOrder)
    {
        m_rows.sortBy(column(field), order);
        return shown();
    }
    [[nodiscard]] std::string having(const char* text)
    {
        m_rows.setFilter(QString::fromUtf8(text));
        return shown();
    }
    [[nodiscard]] std::string chosen(const char* label, const char* caption)
    {
        for (const ColumnChoices& choices : choicesOf(*database(), m_rows.source(), today)) {
            for (const TableChoice& choice : choices.choices) {
                if (choices.label == QLatin1String(label) && choice.caption == QLatin1String(caption))
                    m_rows.setChoices({choice});
            }
        }
        return shown();
    }

    TableRows m_rows;
};

TEST_F(TableRowsTest, ColumnsAreTheControlsThatTheScreenShows)
{
    QStringList labels;
    for (const TableColumn& shown : m_rows.columns())
        labels += shown.label + (shown.isEditable() ? u""_s : u" locked"_s);
    EXPECT_EQ(labels, (QStringList{u"PLUNUMBER locked"_s, u"DESCRIPTION"_s, u"GROUPNO"_s, u"PRICE1"_s,
                                   u"PIECECOUNT"_s, u"INactive"_s, u"MODIFIER locked"_s}));
    EXPECT_EQ(shown("PLUNUMBER"), "5|9|30|1001");
    EXPECT_EQ(shown("GROUPNO"), "3 Drinks|3 Drinks|1 Bar|0 Not used");
    EXPECT_EQ(shown("PRICE1"), "2.50|10.00|9.80|0.00");
    EXPECT_EQ(shown("INactive"), "|Yes||");
}

TEST_F(TableRowsTest, SortsNumbersByValueAndTextsInAnyCase)
{
    execute("update PLUDATA set DESCRIPTION = 'cake' where DESCRIPTION = 'Menu'");
    m_rows.reload();
    EXPECT_EQ(sorted("PRICE1"), "cake|Lager|Café|Coke Zero");
    EXPECT_EQ(sorted("PRICE1", Qt::DescendingOrder), "Coke Zero|Café|Lager|cake");
    EXPECT_EQ(sorted("DESCRIPTION"), "Café|cake|Coke Zero|Lager");
    m_rows.sortBy(-1, Qt::AscendingOrder);
    EXPECT_EQ(shown(), "Lager|Coke Zero|Café|cake");
}

TEST_F(TableRowsTest, KeysOfAChoiceAreLookedUpWhenItIsMade)
{
    const int key = column("PLUNUMBER");
    std::vector<store::Value> unsent{m_rows.value(1, key), m_rows.value(3, key)};
    m_rows.setChoices({choiceOfUnsent(m_rows.source(), [&unsent] { return unsent; }).choices.front()});
    EXPECT_EQ(shown("PLUNUMBER"), "9|1001");
    unsent.pop_back();
    m_rows.reload();
    EXPECT_EQ(shown("PLUNUMBER"), "9");
    unsent.clear();
    m_rows.reload();
    EXPECT_EQ(shown("PLUNUMBER"), "");
}

TEST_F(TableRowsTest, AFilterLooksIntoAllColumnsAndKeepsTheOrder)
{
    m_rows.sortBy(column("PRICE1"), Qt::DescendingOrder);
    EXPECT_EQ(having("drink"), "Coke Zero|Lager");
    EXPECT_EQ(having("CAFÉ"), "Café");
    EXPECT_EQ(having("9"), "Coke Zero|Café"); // number and price
    EXPECT_EQ(having("2.50"), "Lager");
    EXPECT_EQ(having("not used"), "");
    EXPECT_EQ(having("5L"), "") << "across two columns";
    EXPECT_EQ(having(" "), "Coke Zero|Café|Lager|Menu");
}

TEST_F(TableRowsTest, ChoicesAreByContentAndByUse)
{
    const struct {
        const char* label;
        const char* caption;
        const char* rows;
    } cases[] = {
        {"GROUPNO", "3 Drinks", "Lager|Coke Zero"},
        {"GROUPNO", "0 Not used", "Menu"},
        {"PRICE1", "no price", "Menu"},
        {"PRICE1", "has a price", "Lager|Coke Zero|Café"},
        {"PIECECOUNT", "not 0", "Coke Zero"},
        {"INactive", "No", "Lager|Café|Menu"},
        {"DESCRIPTION", "empty", ""},
        {"Keys and sales", "on no key", "Lager|Café|Menu"},
        {"Keys and sales", "sold nothing for 90 days", "Lager|Coke Zero|Menu"},
    };
    for (const auto& [label, caption, expected] : cases)
        EXPECT_EQ(chosen(label, caption), expected) << label << ' ' << caption;
    EXPECT_EQ(having("zero"), "Coke Zero") << "a text and a choice together";
}

TEST_F(TableRowsTest, ReloadShowsWhatOthersAddedAndDeleted)
{
    EXPECT_EQ(having("a"), "Lager|Café"); // and its group
    execute("delete * from PLUDATA where DESCRIPTION = 'Lager'");
    addPlu("7, 'Bacardi', 3, '4', 0, 0");
    EXPECT_EQ(shown("PRICE1"), "2.50|9.80") << "as it was read";
    m_rows.reload();
    EXPECT_EQ(shown(), "Bacardi|Café");
    EXPECT_EQ(m_rows.rowOfKey(u"000000000000000030"_s), 1);
    EXPECT_EQ(m_rows.rowOfKey(u"000000000000000009"_s), -1) << "filtered out";
}

} // namespace
} // namespace norvane::screens
