// The records of a table as lists show, filter and mark them.
#include "ui/RecordListModel.h"

#include "tests/store/StoreFolder.h"

namespace norvane::ui::test
{
namespace
{

using store::Database, store::test::add, store::test::StoreFolder, norvane::test::text;

class RecordListModelTest : public testing::Test
{
protected:
    RecordListModelTest()
    {
        auto records = m_database->openTable(u"items"_s);
        for (const auto& [number, description] :
             {std::pair("007", "Tea"), {"0010", "Crème"}, {"20", "Tea 2"}})
            add(records, {{"NUMBER", text(number)}, {"DESCRIPTION", text(description)}});
        m_list.reload();
    }
    /// The rows, the marked one with a star.
    [[nodiscard]] std::string rows() const
    {
        QStringList rows;
        for (int row = 0; row < m_list.rowCount(); ++row) {
            const bool isMarked = m_list.index(row, 0).data(RecordListModel::MarkedRole).toBool();
            EXPECT_EQ(isMarked, row == m_list.markedRow());
            rows << m_list.index(row, 0).data().toString() + u' ' + m_list.index(row, 1).data().toString() +
                        (isMarked ? u"*"_s : QString());
        }
        return rows.join(u", "_s).toStdString();
    }

    StoreFolder m_folder;
    std::shared_ptr<Database> m_database = std::make_shared<Database>(m_folder.path());
    RecordListModel m_list{m_database, {u"items"_s, u"plunumber"_s, u"NUMBER"_s, u"DESCRIPTION"_s}};
};

TEST_F(RecordListModelTest, ShowsWhatTheFilterFindsInNumberOrText)
{
    const std::pair<const char16_t*, const char*> filters[] = {
        {u"", "0010 Crème, 007 Tea, 20 Tea 2"},
        {u" 0 ", "0010 Crème, 007 Tea, 20 Tea 2"},
        {u"tea", "007 Tea, 20 Tea 2"},
        {u"CRÈME", "0010 Crème"},
        {u"2", "20 Tea 2"},
        {u"coffee", ""},
    };
    for (const auto& [filter, expected] : filters) {
        m_list.setFilter(QString::fromUtf16(filter));
        EXPECT_EQ(rows(), expected);
    }
    EXPECT_EQ(m_list.recordCount(), 3);
    EXPECT_EQ(m_list.lastNumber(), u"20"_s);
}

TEST_F(RecordListModelTest, MarksTheRecordThatAFormShows)
{
    std::vector<int> painted;
    QObject::connect(&m_list, &QAbstractItemModel::dataChanged,
                     [&painted](const QModelIndex& first) { painted.push_back(first.row()); });
    m_list.mark(u"0010"_s);
    EXPECT_EQ(rows(), "0010 Crème*, 007 Tea, 20 Tea 2");
    m_list.mark(u"20"_s);
    EXPECT_EQ(painted, (std::vector{0, 0, 2}));
    m_list.setFilter(u"tea"_s);
    EXPECT_EQ(rows(), "007 Tea, 20 Tea 2*");
    m_list.setFilter(u"crème"_s);
    EXPECT_EQ(rows(), "0010 Crème");
    m_database->execute(u"delete * from items"_s);
    m_list.reload();
    EXPECT_EQ(rows(), "");
    EXPECT_EQ(m_list.lastNumber(), QString());
}

} // namespace
} // namespace norvane::ui::test
