// See OverviewRow.h.
#include "shell/OverviewRow.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int markSide = 14;
constexpr int edge = 4;

QString nameOf(Subject subject)
{
    switch (subject) {
    case Subject::Collection:
        return u"OverviewCollection"_s;
    case Subject::Takings:
        return u"OverviewTakings"_s;
    case Subject::Unsent:
        return u"OverviewUnsent"_s;
    case Subject::Copies:
        return u"OverviewCopies"_s;
    case Subject::Log:
        break;
    }
    return u"OverviewLog"_s;
}

/// The row itself is pressed, wherever the pointer is.
QLabel* makePart(QWidget* row, QPalette::ColorRole role)
{
    auto* const label = new QLabel(row);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(role);
    return label;
}

} // namespace

OverviewRow::OverviewRow(Subject subject, QWidget* parent)
    : QPushButton(parent), m_subject(subject), m_mark(makePart(this, QPalette::WindowText)),
      m_caption(makePart(this, QPalette::Link)), m_text(makePart(this, QPalette::WindowText))
{
    ui::nameControl(*this, nameOf(subject));
    setFlat(true);
    setAutoDefault(true);
    setCursor(Qt::PointingHandCursor);
    m_text->setWordWrap(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    const int side = ui::scaled(markSide);
    m_mark->setFixedWidth(side);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(edge, edge, edge, edge);
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(m_caption);
    row->addWidget(m_mark);
    row->addWidget(m_text, 1);
}

void OverviewRow::setLine(const OverviewLine& line)
{
    const int side = ui::scaled(markSide);
    m_caption->setText(line.caption);
    m_text->setText(line.text);
    m_mark->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    m_mark->setVisible(line.needsAttention);
    const QString spoken = line.text.isEmpty() ? line.caption : u"%1: %2"_s.arg(line.caption, line.text);
    setAccessibleName(line.needsAttention ? u"Attention. "_s + spoken : spoken);
    // Otherwise the panel would still know the height of the former text.
    updateGeometry();
}

int OverviewRow::captionWidth() const
{
    return m_caption->fontMetrics().horizontalAdvance(m_caption->text());
}

void OverviewRow::setCaptionWidth(int pixels)
{
    m_caption->setMinimumWidth(pixels);
}

int OverviewRow::textPlace() const
{
    return edge + m_caption->minimumWidth() + ui::spacing::controlGap;
}

QSize OverviewRow::sizeHint() const
{
    return layout()->sizeHint();
}

/// The layout wraps the text to fit the width; a narrow one would ask for lines that nobody needs.
QSize OverviewRow::minimumSizeHint() const
{
    return {layout()->minimumSize().width(), m_caption->sizeHint().height() + 2 * edge};
}

/// Flat buttons of the style show neither the focus nor the pointer.
void OverviewRow::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int hoverAlpha = 40;
    QPainter painter(this);
    QColor colour = palette().color(QPalette::Link);
    if (hasFocus()) {
        painter.setPen(colour);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (underMouse() || isDown()) {
        colour.setAlpha(hoverAlpha);
        painter.fillRect(rect(), colour);
    }
}

} // namespace norvane::shell
