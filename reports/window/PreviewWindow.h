// A report on the screen, to be read, searched, printed and saved.
#pragma once

#include "reports/pages/ReportDocument.h"
#include "reports/window/Printing.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace norvane
{
class Boxes;
namespace ui
{
class FindBar;
class StatusLine;
} // namespace ui
} // namespace norvane

namespace norvane::reports
{

class ChartPane;
class PageView;

/// A separate window that is deleted when it closes. It is above @p parent and can be used while that is
/// modal. It prints and saves what it shows.
class PreviewWindow : public QWidget
{
    Q_OBJECT

public:
    PreviewWindow(ReportData report, Boxes& boxes, PrinterSource findPrinter, QWidget* parent);

private:
    using Handler = void (PreviewWindow::*)();
    using FileWriter = void (*)(const ReportData& report, bool showsCharts, const QString& path,
                                const KeepGoing& keepGoing);
    struct FileKind;

    void buildControls();
    [[nodiscard]] QWidget* makeContent();
    [[nodiscard]] QBoxLayout* makeButtons();
    QPushButton* addButton(QBoxLayout& row, const QString& name, const QString& caption, Handler handler);
    void addSaveButton(QBoxLayout& row);
    void addChartSwitch(QBoxLayout& row);
    void addPageButtons(QBoxLayout& row);
    void addKeys();
    void openAtGoodSize();

    void layOutMore();
    void showPageNumber();
    void print();
    void save(const FileKind& kind);
    void copy();
    void openFind();
    void findNext();
    void findPrevious();
    void find(int step);
    void switchCharts(bool shows);
    void leave();
    void escape();
    void guarded(const std::function<void(const KeepGoing&)>& act, const QString& whenCancelled);

    ReportDocument m_document;
    Boxes& m_boxes;
    PrinterSource m_findPrinter;
    ui::FindBar* m_find;
    PageView* m_view;
    ChartPane* m_charts;
    QLabel* m_pageNumber = nullptr;
    ui::StatusLine* m_status;
};

} // namespace norvane::reports
