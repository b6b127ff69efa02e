// See GuideWindow.h.
#include "shell/GuideWindow.h"

#include "ui/Appearance.h"
#include "ui/FindBar.h"
#include "ui/FormKit.h"

#include <QImage>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr QSize goodSize{900, 680};

/// Shows the pictures inside the page no wider than the window, which the toolkit's own does not.
class GuideText : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override
    {
        if (type != QTextDocument::ImageResource)
            return QTextBrowser::loadResource(type, name);
        const QByteArray encoded = name.path().section(u"base64,"_s, 1).toLatin1();
        QImage picture = QImage::fromData(QByteArray::fromBase64(encoded));
        const int room = viewport()->width() - 2 * static_cast<int>(document()->documentMargin());
        if (picture.width() > room) {
            const qreal dots = devicePixelRatioF();
            picture =
                picture.scaledToWidth(qMin(picture.width(), qRound(room * dots)), Qt::SmoothTransformation);
            picture.setDevicePixelRatio(picture.width() / static_cast<qreal>(room));
        }
        return picture;
    }
};

} // namespace

GuideWindow::GuideWindow(QString path, QWidget* parent)
    : QWidget(parent, Qt::Window), m_path(std::move(path)), m_find(new ui::FindBar(this)),
      m_text(new GuideText(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"GuideWindow"_s);
    setWindowTitle(u"User guide"_s);
    layOut();
    addKeys();
    resize(ui::scaled(goodSize).boundedTo(screen()->availableSize() * 0.94));
}

void GuideWindow::layOut()
{
    auto* const back = ui::makeButton(u"BackButton"_s, u"&Back"_s, this);
    auto* const contents = ui::makeButton(u"ContentsButton"_s, u"&Contents"_s, this);
    auto* const row = new QHBoxLayout;
    for (QWidget* const control : std::initializer_list<QWidget*>{back, contents, m_find})
        row->addWidget(control, control == m_find ? 1 : 0);
    auto* const column = ui::makeFormColumn(*this, ui::spacing::controlGap);
    column->addLayout(row);
    column->addWidget(m_text, 1);
    column->setSizeConstraint(QLayout::SetDefaultConstraint);
    m_text->document()->setDocumentMargin(ui::spacing::formMargin);
    m_text->setAccessibleName(windowTitle());
    m_text->setObjectName(u"GuideText"_s);
    back->setEnabled(false);
    connect(m_text, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(back, &QPushButton::clicked, m_text, &QTextBrowser::backward);
    connect(contents, &QPushButton::clicked, this, [this] { showPlace(u"user-guide"_s); });
    connect(m_find, &ui::FindBar::findWanted, this, &GuideWindow::find);
}

void GuideWindow::addKeys()
{
    const auto onKey = [this](QKeySequence::StandardKey key, const auto& handler) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, handler);
    };
    onKey(QKeySequence::Find, [this] { m_find->open(); });
    onKey(QKeySequence::FindNext, [this] { find(1); });
    onKey(QKeySequence::FindPrevious, [this] { find(-1); });
    onKey(QKeySequence::Cancel, [this] { close(); });
}

void GuideWindow::showPlace(const QString& anchor)
{
    // Pictures and the place depend on the width, which a window has once it is shown.
    show();
    raise();
    activateWindow();
    QUrl place = QUrl::fromLocalFile(m_path);
    place.setFragment(anchor);
    m_text->setSource(place);
    m_text->setFocus();
}

/// Begins at the current place, and continues at the other end of the guide if nothing more is found.
void GuideWindow::find(int step)
{
    const QString sought = m_find->sought();
    QTextCursor from = m_text->textCursor();
    if (!m_text->viewport()->rect().intersects(m_text->cursorRect()))
        from = m_text->cursorForPosition({});
    const QTextDocument::FindFlags direction =
        step < 0 ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (step == 0)
        from.setPosition(from.selectionStart());
    QTextCursor found = m_text->document()->find(sought, from, direction);
    if (found.isNull()) {
        from.movePosition(step < 0 ? QTextCursor::End : QTextCursor::Start);
        found = m_text->document()->find(sought, from, direction);
    }
    m_find->setFound(!found.isNull());
    if (!found.isNull())
        m_text->setTextCursor(found);
}

} // namespace norvane::shell
