// See MapPreview.h.
#include "keys/layout/MapPreview.h"

#include "base/LossQuestion.h"
#include "paper/DefaultPrinter.h"
#include "paper/ZoomedView.h"
#include "platform/Boxes.h"
#include "platform/WholeFile.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/SpokenItems.h"
#include "ui/StatusLine.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr QSize mapWindowSize(1180, 900);
constexpr int sheetGap = 10;           ///< around the sheet, in pixels
constexpr double smallestMapScale = 1; ///< in pixels to the millimetre

/// Screen readers find the keys on it, row by row.
class MapView : public paper::ZoomedView, public ui::SpokenItems
{
public:
    MapView(const LevelMap& map, QWidget* parent)
        : ZoomedView(paper::Zoom::FitPage, smallestMapScale, parent), m_map(map)
    {
    }

    [[nodiscard]] int spokenItemCount() const override
    {
        return m_map.keyboard().rows * m_map.keyboard().columns;
    }
    [[nodiscard]] ui::SpokenItem spokenItem(int index) const override
    {
        const KeyCell cell{index / m_map.keyboard().columns, index % m_map.keyboard().columns};
        return {m_map.keyText(cell), {}, fromSheet().mapRect(m_map.placeOf(cell)).toRect()};
    }

protected:
    [[nodiscard]] QSizeF sheetSize() const override { return mapSheet.rect().size(); }
    [[nodiscard]] QSizeF surroundings() const override { return {2 * sheetGap, 2 * sheetGap}; }
    [[nodiscard]] QSizeF contentsSize() const override
    {
        return sheetSize() * pixelsPerMillimetre() + surroundings();
    }
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(viewport());
        painter.fillRect(viewport()->rect(), ui::colours::desktop());
        painter.setTransform(fromSheet(), true);
        painter.fillRect(mapSheet.rect(), Qt::white);
        m_map.paint(painter);
    }

private:
    /// To pixels of the viewport.
    [[nodiscard]] QTransform fromSheet() const
    {
        const double free = (viewport()->width() - sheetSize().width() * pixelsPerMillimetre()) / 2;
        QTransform place;
        place.translate(qMax<double>(sheetGap, free) - horizontalScrollBar()->value(),
                        sheetGap - verticalScrollBar()->value());
        place.scale(pixelsPerMillimetre(), pixelsPerMillimetre());
        return place;
    }

    const LevelMap& m_map;
};

} // namespace

MapPreview::MapPreview(LevelMap map, Boxes& boxes, reports::PrinterSource findPrinter, QWidget* parent)
    : QDialog(parent), m_map(std::move(map)), m_boxes(boxes), m_findPrinter(std::move(findPrinter)),
      m_status(new ui::StatusLine(this))
{
    setObjectName(u"MapPreview"_s);
    setWindowTitle(m_map.title());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* const view = new MapView(m_map, this);
    ui::nameControl(*view, u"MapView"_s, u"Map of the level"_s);
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    addButton(*row, u"PrintButton"_s, u"&Print"_s, &MapPreview::print);
    addButton(*row, u"SaveButton"_s, u"&Save as PDF"_s, &MapPreview::savePdf);
    paper::addZoomBox(*row, *view, {paper::Zoom::FitPage, paper::Zoom::FitWidth, paper::Zoom::TrueSize},
                      this);
    row->addStretch();
    addButton(*row, u"CloseButton"_s, u"C&lose"_s, &MapPreview::reject);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(ui::spacing::controlGap);
    column->addLayout(row);
    column->addWidget(view, 1);
    column->addWidget(m_status);
    ui::centreOnScreen(*this, ui::scaled(mapWindowSize).boundedTo(screen()->availableSize() * 0.94));
    view->setFocus();
}

void MapPreview::addButton(QBoxLayout& row, const QString& name, const QString& caption, Handler pressed)
{
    QPushButton* const button = ui::makeButton(name, caption, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    row.addWidget(button);
}

void MapPreview::refuse(const QString& why)
{
    m_boxes.message(why, QString(pleaseCheck), BoxIcon::Exclamation);
}

void MapPreview::print()
{
    const auto job = reports::askForPrint(m_findPrinter, {1, 1}, this);
    if (!job)
        return;
    if (!job->printer) {
        return refuse(u"There is no printer to print on. Choose a default printer in the system's settings, "
                      "or save the map as a PDF file."_s);
    }
    job->printer->setDocName(m_map.title());
    if (!m_map.print(*job->printer) || !paper::isThere(*job->printer)) {
        return refuse(
            u"The printer %1 does not print. Is it still there?"_s.arg(job->printer->printerName()));
    }
    m_status->setNotice(reports::sentText(*job->printer));
}

void MapPreview::savePdf()
{
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString path = m_boxes.fileToSave(
        {u"Save Map"_s, documents.filePath(m_map.title() + u".pdf"_s), u"PDF (*.pdf)"_s, u"pdf"_s});
    if (path.isEmpty())
        return;
    const QByteArray content = m_map.pdf();
    if (content.isEmpty())
        return refuse(u"The page could not be painted."_s);
    if (const auto error = replaceWholeFile(path, content))
        return refuse(u"%1 was not written. %2"_s.arg(QDir::toNativeSeparators(path), error->reason));
    m_status->setNotice(u"Saved as %1."_s.arg(QDir::toNativeSeparators(path)));
}

} // namespace norvane::keys
