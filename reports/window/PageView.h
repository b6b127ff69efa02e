// The pages of a report on the screen, one below the other.
#pragma once

#include "paper/ZoomedView.h"
#include "reports/pages/ReportDocument.h"
#include "reports/window/PreviewHistory.h"
#include "ui/SpokenItems.h"

namespace norvane::reports
{

/// Pages are turned with Page Up, Page Down, Home and End, and scrolled with wheel, arrows and the space bar.
/// Lines are chosen with the mouse, or with Shift and the arrows from the line that was found or clicked.
/// Lines with a link are marked; a click on their text opens it, and so does Enter on a chosen line. Ctrl
/// with the arrows chooses the next and the previous one. Screen readers find the lines of the current page.
class PageView : public paper::ZoomedView, public ui::SpokenItems
{
    Q_OBJECT

public:
    /// @p document must outlive this.
    PageView(const ReportDocument& document, QWidget* parent);

    /// Shows another document from its beginning; it must outlive this.
    void setDocument(const ReportDocument& document);
    /// Marks lines with a link and offers to open them.
    void offerLinks();
    [[nodiscard]] ReadingPlace readingPlace() const;
    void goTo(const ReadingPlace& place);

    /// To be called when further pages are laid out, or all pages are new.
    void updatePages();

    /// The page in the upper part of the view, from 0.
    [[nodiscard]] int currentPage() const;
    /// Shows the top of @p page, or of the last one before it.
    void goToPage(int page);

    /// Selects only @p line and scrolls to its page.
    void showLine(qsizetype line);
    void chooseAll();
    [[nodiscard]] bool hasChosen() const { return m_anchor >= 0; }
    [[nodiscard]] qsizetype firstChosen() const { return qMin(m_anchor, m_current); }
    [[nodiscard]] qsizetype lastChosen() const { return qMax(m_anchor, m_current); }

    [[nodiscard]] int spokenItemCount() const override;
    [[nodiscard]] ui::SpokenItem spokenItem(int index) const override;

Q_SIGNALS:
    void currentPageChanged();
    void linkOpened(qsizetype line);
    void goWanted(int steps); ///< -1 back, 1 forward, by a button of the mouse

protected:
    [[nodiscard]] QSizeF sheetSize() const override { return sheet().size(); }
    [[nodiscard]] QSizeF surroundings() const override;
    [[nodiscard]] QSizeF contentsSize() const override;
    void updateScale() override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    [[nodiscard]] const QRectF& sheet() const { return m_document->pages().frame().sheet; }
    [[nodiscard]] double pagePitch() const;
    [[nodiscard]] QRectF pageRect(int page) const;
    struct PagePoint;
    [[nodiscard]] std::optional<PagePoint> pagePointAt(QPoint place) const;
    [[nodiscard]] qsizetype lineAt(QPoint place) const;
    [[nodiscard]] qsizetype linkAt(QPoint place) const;
    [[nodiscard]] qsizetype lineOnPage(int page, QPointF place) const;
    void paintPage(QPainter& painter, int page) const;
    void paintChosen(QPainter& painter, int page) const;
    void choose(qsizetype line, bool extends);
    void extendBy(int lines);
    void reveal(qsizetype line);
    void say(qsizetype line);
    [[nodiscard]] bool isChosen(const PlacedLine& line) const;
    bool turnPage(int key);
    bool useLinks(const QKeyEvent& event);
    void chooseLink(int step);
    void hover(qsizetype line);
    void scrollBy(int pixels);

    const ReportDocument* m_document;
    qsizetype m_anchor = -1;  ///< the line where the selection began; -1 while none is selected
    qsizetype m_current = -1; ///< the line where it ends
    bool m_offersLinks = false;
    qsizetype m_hovered = -1; ///< the link below the pointer
    qsizetype m_pressed = -1; ///< the link where the mouse was pressed
};

} // namespace norvane::reports
