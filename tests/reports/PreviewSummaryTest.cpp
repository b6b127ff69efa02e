// A summary in its preview: blocks side by side are searched and copied as the lines of any report.
#include "reports/window/PreviewWindow.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/FormTest.h"

#include <QAccessible>
#include <QPointer>
#include <QPrinter>

namespace norvane::test
{
namespace
{

using namespace reports;

ReportBlock blockOf(const QString& title, BlockPlace place, qsizetype firstLine)
{
    ReportBlock block{title, BlockKind::Table, place,
                      ReportData({textColumn({}, 60), numberColumn(u"Value"_s, 20, 2, 2)}), firstLine};
    for (int line = 1; line <= 3; ++line)
        block.table.addLine(LineKind::Detail, {u"%1 %2"_s.arg(title).arg(line), Decimal(line, 0)});
    return block;
}

ReportData twoColumns()
{
    ReportData report({textColumn(u"Item"_s, 60), numberColumn(u"Value"_s, 20, 2, 2)});
    report.heading = emptySales().heading;
    for (const auto& [title, place] :
         {std::pair(u"Tax"_s, BlockPlace::Left), std::pair(u"Best"_s, BlockPlace::Right)}) {
        report.blocks.push_back(blockOf(title, place, report.lineCount()));
        report.addLine(LineKind::GroupHeading, {title});
        const ReportData& table = report.blocks.back().table;
        for (qsizetype line = 0; line < table.lineCount(); ++line)
            report.addLine(LineKind::Detail, {table.cell(line, 0), table.cell(line, 1)});
    }
    return report;
}

TEST(PreviewSummary, ALineIsChosenWhereItIsClickedAndFoundByItsText)
{
    RecordingBoxes boxes;
    const QPointer<PreviewWindow> preview = new PreviewWindow(
        twoColumns(), boxes, [] { return std::unique_ptr<QPrinter>(); }, nullptr);
    preview->resize(900, 700);
    preview->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(preview));
    const auto copied = [&preview] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    };
    auto* const pages = preview->findChild<QAbstractScrollArea*>(u"Pages"_s);
    auto* const all = QAccessible::queryAccessibleInterface(pages);
    ASSERT_EQ(all->childCount(), 8);
    for (const int line : {2, 6}) { // side by side
        const QPoint place = pages->viewport()->mapFromGlobal(all->child(line)->rect().center());
        QTest::mouseClick(pages->viewport(), Qt::LeftButton, {}, place);
        EXPECT_EQ(copied(), line == 2 ? u"Tax 2\t2.00\n"_s : u"Best 2\t2.00\n"_s);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"best 3"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(copied(), u"Best 3\t3.00\n"_s);
    delete preview;
}

} // namespace
} // namespace norvane::test
