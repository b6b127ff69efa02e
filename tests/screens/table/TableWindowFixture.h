// A table in a window, driven as a user would.
#pragma once

#include "screens/table/TableWindow.h"
#include "store/engine/WorkHistory.h"
#include "tests/screens/table/TableShop.h"
#include "tests/support/FormTest.h"

namespace norvane::screens
{

class TableWindowFixture : public test::TableShop
{
protected:
    TableWindowFixture() { open(); }

    void open()
    {
        window = std::make_unique<TableWindow>(
            TableOrder{m_folder.path("test.scn"), m_values.databasePath, u"PLUs"_s,
                       [](const QString& field) { return field; }, m_history, m_tools},
            m_values, m_boxes, ColumnMemory(m_folder.path("tables.ini")));
        QObject::connect(window.get(), &TableWindow::recordWanted, window.get(),
                         [this](const QString& key) { wanted += key; });
        QObject::connect(window.get(), &TableWindow::noticeChanged, window.get(),
                         [this](const QString& text) { notice = text.toStdString(); });
        window->show();
        QApplication::setActiveWindow(window.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        view = window->findChild<QTableView*>(u"TableView"_s);
    }
    /// The cells of a row that are in view.
    [[nodiscard]] std::string row(int number) const
    {
        QStringList cells;
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            if (!view->isColumnHidden(column))
                cells += view->model()->index(number, column).data().toString();
        }
        return number < view->model()->rowCount() ? cells.join(u'|').toStdString() : "";
    }
    [[nodiscard]] std::string count() const
    {
        return test::child<QLabel>(*window, "TableCount").text().toStdString();
    }
    void filter(const char* text) const
    {
        auto& box = test::child<QLineEdit>(*window, "TableFilter");
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QString::fromUtf8(text));
    }
    /// Picks an entry as a user does.
    void pick(const char* list, const char* entry) const
    {
        auto& box = test::child<QComboBox>(*window, list);
        box.setFocus();
        QTest::keyClicks(&box, QString::fromUtf8(entry));
    }
    void clickHeading(int column) const
    {
        QHeaderView& header = *view->horizontalHeader();
        const QPoint place(header.sectionViewportPosition(column) + 5, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    }

    std::shared_ptr<store::WorkHistory> m_history = std::make_shared<store::WorkHistory>();
    TableTools m_tools;
    test::RecordingBoxes m_boxes;
    std::unique_ptr<TableWindow> window;
    QTableView* view = nullptr;
    QStringList wanted;
    std::string notice;
};

} // namespace norvane::screens
