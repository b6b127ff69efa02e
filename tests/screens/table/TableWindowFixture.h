// A table in a window, driven as a user would.
#pragma once

#include "screens/table/TableWindow.h"
#include "store/engine/WorkHistory.h"
#include "tests/screens/table/TableShop.h"
#include "tests/support/FormTest.h"

namespace norvane::screens
{

/// The names, prices and groups of the shop's PLUs, and whether they are inactive.
inline const auto untouched = "Lager|2.5|3|False Coke Zero|10|3|True Café|9.8|1|False Menu|0.00|0|False";

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

    void goTo(int row, int column) const
    {
        view->setFocus();
        view->selectionModel()->setCurrentIndex(view->model()->index(row, column),
                                                QItemSelectionModel::ClearAndSelect);
    }
    /// Types into the cell with the focus, then presses @p key.
    void type(const char* text, Qt::Key key = Qt::Key_Return) const
    {
        QTest::keyClicks(view, QString::fromUtf8(text).left(1));
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text).mid(1));
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    void paste(const char* text) const
    {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    }
    /// The list of changes.
    [[nodiscard]] std::string pending() const
    {
        const auto& list = *test::child<QTableView>(*window, "PendingView").model();
        QStringList lines;
        for (int row = 0; row < list.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < list.columnCount(); ++column)
                cells += list.index(row, column).data().toString();
            lines += cells.join(u'|');
        }
        return lines.join(u' ').toStdString();
    }
    void save() const { test::press(*window, "SaveChanges"); }
    [[nodiscard]] std::string plus() const
    {
        return rows("select DESCRIPTION, PRICE1, GROUPNO, INactive from PLUDATA order by PLUNUMBER");
    }
    [[nodiscard]] QByteArray log() const { return m_folder.read("SHOP/norvane.log"); }

    std::shared_ptr<store::WorkHistory> m_history = std::make_shared<store::WorkHistory>();
    TableTools m_tools;
    test::RecordingBoxes m_boxes;
    std::unique_ptr<TableWindow> window;
    QTableView* view = nullptr;
    QStringList wanted;
    std::string notice;
};

} // namespace norvane::screens
