// See StyleChooser.h.
#include "overlay/StyleChooser.h"

#include "overlay/ColourStrip.h"
#include "overlay/OverlayDialogs.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QFontInfo>
#include <QLabel>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr QSize labelSampleSize{100, 28};
/// Larger letters would not fit the sample.
constexpr double largestSample = 16;

QFont fontOf(const CellFont& font)
{
    QFont shown(font.name);
    shown.setPointSizeF(font.size > 0 ? font.size : CellFont().size);
    shown.setBold(font.isBold);
    shown.setItalic(font.isItalic);
    return shown;
}

/// The dialog shows the substitute for a font that this computer does not have. Documents keep its name.
QString nameOf(const QFont& chosen, const QFont& initial)
{
    return QFontInfo(initial).family() == chosen.family() ? initial.family() : chosen.family();
}

} // namespace

StyleChooser::StyleChooser(CurrentStyle& style, OverlayDialogs& dialogs, QWidget* form)
    : QObject(form), m_style(style), m_dialogs(dialogs), m_colours(new ColourStrip(form)),
      Label1(new QLabel(u"Sample"_s, form))
{
}

void StyleChooser::addTo(QToolBar& bar)
{
    ui::nameControl(*Label1, u"Label1"_s);
    Label1->setToolTip(u"What a double click (colours) and a click (font) give to a cell"_s);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setFixedSize(ui::scaled(labelSampleSize));
    Label1->setFrameStyle(QFrame::Box);
    Label1->setAutoFillBackground(true);
    // A tool bar applies its roles to the widgets in it.
    Label1->setBackgroundRole(QPalette::Window);
    Label1->setForegroundRole(QPalette::WindowText);
    connect(m_colours, &ColourStrip::backgroundChosen, this, &StyleChooser::takeBackground);
    connect(m_colours, &ColourStrip::textColourChosen, this, &StyleChooser::takeTextColour);
    bar.addWidget(Label1);
    bar.addWidget(m_colours);
    showSample();
}

void StyleChooser::chooseFont(const CellFont& current)
{
    const QFont initial = fontOf(m_style.font.value_or(current));
    const auto chosen = m_dialogs.font(initial);
    if (!chosen)
        return;
    m_style.font = CellFont{nameOf(*chosen, initial), static_cast<float>(chosen->pointSizeF()),
                            chosen->bold(), chosen->italic()};
    showSample();
    Q_EMIT fontChosen();
}

void StyleChooser::chooseBackground()
{
    const auto chosen = m_dialogs.colour(drawnBackground(m_style.background), u"BackGround"_s);
    if (!chosen)
        return;
    m_colours->remember(*chosen);
    takeBackground(*chosen);
}

void StyleChooser::chooseTextColour()
{
    const auto chosen = m_dialogs.colour(drawnText(m_style.textColour), u"Text Colour"_s);
    if (!chosen)
        return;
    m_colours->remember(*chosen);
    takeTextColour(*chosen);
}

void StyleChooser::takeBackground(const QColor& colour)
{
    m_style.background = colourOf(colour);
    showSample();
    Q_EMIT backgroundChosen();
}

void StyleChooser::takeTextColour(const QColor& colour)
{
    m_style.textColour = colourOf(colour);
    showSample();
    Q_EMIT textColourChosen();
}

void StyleChooser::rememberColours(const Document& document)
{
    QList<QColor> colours;
    const auto note = [&colours](const QColor& colour) {
        if (colour != Qt::white && colour != Qt::black && !colours.contains(colour))
            colours += colour;
    };
    for (const TextCell& cell : document.cells()) {
        note(drawnBackground(cell.background));
        note(drawnText(cell.textColour));
    }
    for (const QColor& colour : colours)
        m_colours->remember(colour);
}

void StyleChooser::showSample()
{
    QPalette colours = Label1->palette();
    colours.setColor(QPalette::Window, drawnBackground(m_style.background));
    colours.setColor(QPalette::WindowText, drawnText(m_style.textColour));
    Label1->setPalette(colours);
    if (!m_style.font)
        return;
    QFont shown = fontOf(*m_style.font);
    shown.setPointSizeF(qMin(shown.pointSizeF(), largestSample));
    Label1->setFont(shown);
    Label1->setText(m_style.font->name);
}

} // namespace norvane::overlay
