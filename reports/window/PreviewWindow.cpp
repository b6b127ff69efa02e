// See PreviewWindow.h.
#include "reports/window/PreviewWindow.h"

#include "platform/Boxes.h"
#include "reports/data/ReportError.h"
#include "reports/window/ChartPane.h"
#include "reports/window/FileKinds.h"
#include "reports/window/HistoryBar.h"
#include "reports/window/MakingBar.h"
#include "reports/window/MistakePane.h"
#include "reports/window/PageView.h"
#include "reports/window/RunProgress.h"
#include "ui/Appearance.h"
#include "ui/FindBar.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStandardPaths>
#include <QTimer>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr QSize goodSize{1060, 800};
constexpr int pagesAtOnce = 40;

QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// Shown above the lines, or in their place.
QString spokenHeading(const ReportHeading& heading)
{
    QStringList texts{heading.title, heading.subtitle, heading.customer, heading.notice};
    texts.removeAll(QString());
    return texts.join(u", "_s);
}

} // namespace

PreviewWindow::PreviewWindow(ReportData report, Boxes& boxes, PrinterSource findPrinter, QWidget* parent)
    : QWidget(parent, Qt::Window), m_history({{}, std::make_shared<ReportDocument>(std::move(report))}),
      m_boxes(boxes), m_findPrinter(std::move(findPrinter)), m_find(new ui::FindBar(this)),
      m_way(new HistoryBar(this)), m_making(new MakingBar(this)), m_view(new PageView(document(), this)),
      m_mistakes(new MistakePane(this)), m_charts(new ChartPane(document(), this)),
      m_status(new ui::StatusLine(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"ReportPreview"_s);
    // The first page appears immediately; the others are laid out while it is shown.
    document().pages().layOut(1);
    buildControls();
    addKeys();
    openAtGoodSize();
    showHeading();
    showPageNumber();
    QTimer::singleShot(0, this, &PreviewWindow::layOutMore);
}

void PreviewWindow::showHeading()
{
    const ReportHeading& heading = document().report().heading;
    setWindowTitle(heading.windowTitle);
    m_view->setAccessibleName(spokenHeading(heading));
    m_chartSwitch->setVisible(document().hasCharts());
    showPanes();
}

/// Mistakes take the place of the charts: beside both the pages would be too small to read.
void PreviewWindow::showPanes()
{
    m_charts->setVisible(document().hasCharts() && m_chartSwitch->isChecked() && m_mistakes->isHidden());
}

void PreviewWindow::buildControls()
{
    ui::nameControl(*m_view, u"Pages"_s);
    ui::nameControl(*m_charts, u"Charts"_s);
    ui::nameControl(*m_find, u"FindBar"_s);
    m_status->setSizeGripEnabled(true);
    m_find->hide();
    auto* const column = new QVBoxLayout(this);
    const int margin = ui::spacing::controlGap;
    column->setContentsMargins(margin, margin, margin, 0);
    column->setSpacing(margin);
    column->addLayout(makeButtons());
    column->addWidget(m_way);
    column->addWidget(m_making);
    column->addWidget(m_find);
    column->addWidget(makeContent(), 1);
    column->addWidget(m_status);
    connect(m_find, &ui::FindBar::findWanted, this, &PreviewWindow::find);
    connect(m_view, &PageView::currentPageChanged, this, &PreviewWindow::showPageNumber);
    connect(m_view, &PageView::linkOpened, this, &PreviewWindow::openLink);
    connect(m_view, &PageView::goWanted, this, &PreviewWindow::go);
    connect(m_way, &HistoryBar::goWanted, this, &PreviewWindow::go);
    connect(m_making, &MakingBar::cancelWanted, this, &PreviewWindow::cancelMaking);
    m_view->setFocus();
}

QWidget* PreviewWindow::makeContent()
{
    auto* const content = new QSplitter(this);
    content->addWidget(m_view);
    content->addWidget(m_charts);
    content->addWidget(m_mistakes);
    content->setStretchFactor(0, 1);
    content->setSizes({goodSize.width() * 2 / 3, goodSize.width() / 3, goodSize.width() / 3});
    content->setChildrenCollapsible(false);
    return content;
}

QBoxLayout* PreviewWindow::makeButtons()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    addButton(*row, u"PrintButton"_s, u"&Print"_s, &PreviewWindow::print);
    addSaveButton(*row);
    addButton(*row, u"CopyButton"_s, u"&Copy lines"_s, &PreviewWindow::copy);
    addButton(*row, u"FindButton"_s, u"&Find"_s, &PreviewWindow::openFind);
    paper::addZoomBox(*row, *m_view, {paper::Zoom::FitWidth, paper::Zoom::FitPage, paper::Zoom::TrueSize},
                      this);
    addChartSwitch(*row);
    row->addStretch();
    addPageButtons(*row);
    addButton(*row, u"CloseButton"_s, u"C&lose"_s, &PreviewWindow::leave);
    return row;
}

QPushButton* PreviewWindow::addButton(QBoxLayout& row, const QString& name, const QString& caption,
                                      Handler handler)
{
    QPushButton* const button = ui::makeButton(name, caption, this);
    button->setMinimumWidth(ui::buttonWidth); // in large type the row would be wider than a small screen
    connect(button, &QPushButton::clicked, this, handler);
    row.addWidget(button);
    return button;
}

void PreviewWindow::addSaveButton(QBoxLayout& row)
{
    QPushButton* const button = ui::makeButton(u"SaveButton"_s, u"&Save as"_s, this);
    button->setMinimumWidth(ui::buttonWidth);
    auto* const menu = new QMenu(button);
    for (const FileKind& kind : fileKinds()) {
        QAction* const action =
            menu->addAction(QLatin1String(kind.caption), this, [this, &kind] { save(kind); });
        action->setObjectName(QLatin1String(kind.name));
    }
    button->setMenu(menu);
    row.addWidget(button);
}

void PreviewWindow::addChartSwitch(QBoxLayout& row)
{
    m_chartSwitch = new QCheckBox(u"C&hart"_s, this);
    ui::nameControl(*m_chartSwitch, u"ChartSwitch"_s);
    m_chartSwitch->setToolTip(u"Shows the chart here, on paper and in the PDF"_s);
    m_chartSwitch->setChecked(true);
    connect(m_chartSwitch, &QCheckBox::toggled, this, &PreviewWindow::switchCharts);
    row.addWidget(m_chartSwitch);
}

void PreviewWindow::addPageButtons(QBoxLayout& row)
{
    const auto turn = [&](const QString& name, const QString& caption, const QString& spoken, int pages) {
        QPushButton* const button = ui::makeButton(name, caption, this);
        button->setAccessibleName(spoken);
        button->setFixedWidth(ui::scaled(32));
        connect(button, &QPushButton::clicked, this,
                [this, pages] { m_view->goToPage(m_view->currentPage() + pages); });
        row.addWidget(button);
    };
    turn(u"PreviousPageButton"_s, u"&<"_s, u"Previous page"_s, -1);
    m_pageNumber = new QLabel(this);
    ui::nameControl(*m_pageNumber, u"PageNumber"_s);
    row.addWidget(m_pageNumber);
    turn(u"NextPageButton"_s, u"&>"_s, u"Next page"_s, 1);
}

void PreviewWindow::addKeys()
{
    static constexpr std::array<std::pair<QKeySequence::StandardKey, Handler>, 6> keys = {{
        {QKeySequence::Print, &PreviewWindow::print},
        {QKeySequence::Copy, &PreviewWindow::copy},
        {QKeySequence::Find, &PreviewWindow::openFind},
        {QKeySequence::FindNext, &PreviewWindow::findNext},
        {QKeySequence::FindPrevious, &PreviewWindow::findPrevious},
        {QKeySequence::Cancel, &PreviewWindow::escape},
    }};
    for (const auto& [key, handler] : keys)
        connect(new QShortcut(key, this), &QShortcut::activated, this, handler);
    connect(new QShortcut(QKeySequence::SelectAll, m_view, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, m_view, &PageView::chooseAll);
}

void PreviewWindow::openAtGoodSize()
{
    ui::centreOnScreen(*this, goodSize.boundedTo(screen()->availableSize() * 0.94));
}

void PreviewWindow::layOutMore()
{
    const bool isMore = document().pages().layOut(pagesAtOnce);
    m_view->updatePages();
    if (isMore)
        QTimer::singleShot(0, this, &PreviewWindow::layOutMore);
}

void PreviewWindow::showPageNumber()
{
    const QString count =
        document().pages().isComplete() ? QString::number(document().pages().pageCount()) : u"..."_s;
    m_pageNumber->setText(u"Page %1 of %2"_s.arg(m_view->currentPage() + 1).arg(count));
}

/// Shows a box for a failure; the window remains open.
void PreviewWindow::guarded(const std::function<void(const KeepGoing&)>& act, const QString& whenCancelled)
{
    try {
        RunProgress progress(*this, u"The report is being written."_s);
        act([&progress] { return progress.goOn(); });
    } catch (const ReportCancelled&) {
        m_status->setNotice(whenCancelled);
    } catch (const ReportError& error) {
        m_boxes.message(error.text(), u"Report Error"_s, BoxIcon::Critical);
    }
}

void PreviewWindow::print()
{
    const auto shown =
        m_history.current().document; // another one may be shown before the question is answered
    shown->pages().layOutAll();
    m_view->updatePages();
    const auto job =
        askForPrint(m_findPrinter, {shown->pages().pageCount(), m_view->currentPage() + 1}, this);
    if (!job)
        return;
    const auto printPages = [&](const KeepGoing& keepGoing) {
        printOn(*job, shown->report(), shown->showsCharts(), keepGoing);
        m_status->setNotice(sentText(*job->printer));
    };
    guarded(printPages, u"Cancelled. The pages that were ready are printed."_s);
}

void PreviewWindow::save(const FileKind& kind)
{
    const QString suffix = QLatin1String(kind.suffix);
    const auto shown = m_history.current().document; // as for printing
    const QString suggested = fileNameFor(shown->report().heading) + u'.' + suffix;
    const QString path = m_boxes.fileToSave(
        {u"Save Report"_s, QDir(documents()).filePath(suggested), QLatin1String(kind.filter), suffix});
    if (path.isEmpty())
        return;
    const auto write = [&](const KeepGoing& keepGoing) {
        kind.write(shown->report(), shown->showsCharts(), path, keepGoing);
        m_status->setNotice(u"Saved as %1."_s.arg(QDir::toNativeSeparators(path)));
    };
    guarded(write, u"Cancelled. Nothing was saved."_s);
}

/// Copies all lines if none are selected.
void PreviewWindow::copy()
{
    const qsizetype first = m_view->hasChosen() ? m_view->firstChosen() : 0;
    const qsizetype last = m_view->hasChosen() ? m_view->lastChosen() : document().report().lineCount() - 1;
    QGuiApplication::clipboard()->setText(document().linesAsText(first, last));
    m_status->setNotice(last == first ? u"1 line copied."_s : u"%1 lines copied."_s.arg(last - first + 1));
}

void PreviewWindow::openFind()
{
    m_find->open();
}

void PreviewWindow::findNext()
{
    find(1);
}

void PreviewWindow::findPrevious()
{
    find(-1);
}

void PreviewWindow::find(int step)
{
    const qsizetype start = m_view->hasChosen() ? m_view->firstChosen() + step : 0;
    const qsizetype found = document().findLine(m_find->sought(), start, step < 0 ? -1 : 1);
    m_find->setFound(found >= 0);
    if (found < 0)
        return;
    document().pages().layOutAll();
    m_view->updatePages();
    m_view->showLine(found);
}

void PreviewWindow::switchCharts(bool shows)
{
    showPanes();
    document().setShowsCharts(shows);
    document().pages().layOutAll();
    m_view->updatePages();
}

void PreviewWindow::leave()
{
    close();
}

/// Closes the search row if it is open, else cancels what is being made, else closes the window.
void PreviewWindow::escape()
{
    if (!m_find->isVisible()) {
        if (!cancelMaking())
            leave();
        return;
    }
    m_find->hide();
    m_view->setFocus();
}

} // namespace norvane::reports
