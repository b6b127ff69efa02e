// A report on the screen, to be read, searched, printed and saved.
#pragma once

#include "reports/window/PreviewHistory.h"
#include "reports/window/Printing.h"
#include "reports/window/ReportMaker.h"

#include <QWidget>

class QBoxLayout;
class QCheckBox;
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

class BackgroundRun;
class ChartPane;
class HistoryBar;
class LayoutWatch;
class MakingBar;
class MistakePane;
class PageView;
struct FileKind;

/// A separate window that is deleted when it closes. It is above @p parent and can be used while that is
/// modal. It prints and saves what it shows.
class PreviewWindow : public QWidget
{
    Q_OBJECT

public:
    PreviewWindow(ReportData report, Boxes& boxes, PrinterSource findPrinter, QWidget* parent);

    /// Offers what the lines of the report open, made by @p runner in a thread of its own; the report is that
    /// of @p request.
    void followLinks(ReportRequest request, Runner runner);
    /// Makes the report again whenever its layout is saved, and lists the mistakes of the file beside the
    /// last report that could be made. After followLinks().
    void followLayout();

private:
    using Handler = void (PreviewWindow::*)();

    [[nodiscard]] ReportDocument& document() { return *m_history.current().document; }
    void buildControls();
    void showHeading();
    void showHint();
    void showPanes();
    void openLink(qsizetype line);
    void showLinked(BackgroundRun& run);
    bool cancelMaking();
    void makeAgain();
    void showAgain(BackgroundRun& run);
    void replaceFirst(ReportData report);
    void go(int steps);
    void showCurrent();
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

    PreviewHistory m_history;
    Runner m_runner;
    Boxes& m_boxes;
    PrinterSource m_findPrinter;
    ui::FindBar* m_find;
    HistoryBar* m_way;
    MakingBar* m_making;
    PageView* m_view;
    MistakePane* m_mistakes;
    LayoutWatch* m_watch = nullptr;
    bool m_makesLinked = false; ///< and not the report itself, when one is made
    ChartPane* m_charts;
    QCheckBox* m_chartSwitch = nullptr;
    QLabel* m_pageNumber = nullptr;
    ui::StatusLine* m_status;
};

} // namespace norvane::reports
