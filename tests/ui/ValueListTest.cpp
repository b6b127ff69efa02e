// The value list: rows, values and picks.
#include "ui/ValueList.h"

#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace norvane::ui
{
namespace
{

QVector<QStringList> groupRows()
{
    QVector<QStringList> rows;
    for (const char* row : {"0;Not used", "1;Wines", "2;Beers"})
        rows += QString::fromLatin1(row).split(u';');
    return rows;
}

class ValueListTest : public testing::Test
{
protected:
    ValueListTest() { m_list.setRows(groupRows()); }
    ValueList m_list;
    QSignalSpy m_edited{&m_list, &ValueList::valueEdited};
};

TEST_F(ValueListTest, TheValueSelectsItsRow)
{
    m_list.setValue(QStringLiteral("02"));
    EXPECT_EQ(m_list.currentText(), QStringLiteral("2  Beers"));
    EXPECT_EQ(m_list.value(), QStringLiteral("02")) << "kept as it was given";
    m_list.setValueColumn(1);
    m_list.setValue(QStringLiteral("Wines"));
    EXPECT_EQ(m_list.currentIndex(), 1);
    EXPECT_EQ(m_edited.count(), 0);
}

TEST_F(ValueListTest, NullAndUnknownValuesShowNoRowAndStay)
{
    EXPECT_TRUE(m_list.value().isNull());
    EXPECT_EQ(m_list.currentIndex(), -1);
    m_list.setValue(QStringLiteral("7"));
    EXPECT_EQ(m_list.currentIndex(), -1);
    EXPECT_EQ(m_list.value(), QStringLiteral("7"));
    m_list.setRows(groupRows());
    EXPECT_EQ(m_list.value(), QStringLiteral("7"));
    m_list.setValue({});
    EXPECT_TRUE(m_list.value().isNull());
}

TEST_F(ValueListTest, AWheelChangesNothing)
{
    m_list.setValue(QStringLiteral("1"));
    QWheelEvent turn({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&m_list, &turn);
    EXPECT_EQ(m_list.value(), QStringLiteral("1"));
    EXPECT_FALSE(turn.isAccepted()) << "it scrolls the screen instead";
}

TEST_F(ValueListTest, TheOpenListIsAsWideAsItsColumnsAndHidesThoseOfNoWidth)
{
    m_list.resize(40, 24);
    m_list.setColumnWidths({0, 150});
    m_list.setValue(QStringLiteral("2"));
    EXPECT_EQ(m_list.currentText(), QStringLiteral("Beers"));
    m_list.show();
    m_list.showPopup();
    EXPECT_GE(m_list.view()->width(), 150);
    QTest::keyClick(m_list.view(), Qt::Key_Up);
    QTest::keyClick(m_list.view(), Qt::Key_Return);
    EXPECT_EQ(m_list.value(), QStringLiteral("1"));
}

} // namespace
} // namespace norvane::ui
