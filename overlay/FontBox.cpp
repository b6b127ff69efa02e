// See FontBox.h.
#include "overlay/FontBox.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr double smallest = 0.1; ///< points
constexpr double largest = 2160;
/// Larger letters would not fit the sample.
constexpr double largestShownSize = 30;
constexpr QSize sampleSize{300, 70};

/// "8 pt" and "8.25 pt".
class PointBox : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;
    [[nodiscard]] QString textFromValue(double points) const override
    {
        return locale().toString(points, 'g', 6);
    }
};

} // namespace

FontBox::FontBox(const QFont& initial, QWidget* parent)
    : QDialog(parent), m_name(new QFontComboBox(this)), m_size(new PointBox(this)),
      m_bold(new QCheckBox(u"&Bold"_s, this)), m_italic(new QCheckBox(u"&Italic"_s, this)),
      m_sample(new QLabel(u"COFFEE Tea 1.50"_s, this))
{
    setObjectName(u"FontBox"_s);
    setWindowTitle(u"Font"_s);
    QHBoxLayout* const buttons = ui::makeOkCancelRow(*this);
    ui::nameControl(*m_sample, u"FontSample"_s);
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setFrameStyle(QFrame::Box);
    m_sample->setBackgroundRole(QPalette::Base);
    m_sample->setAutoFillBackground(true);
    m_sample->setFixedHeight(ui::scaled(sampleSize).height());
    m_sample->setMinimumWidth(ui::scaled(sampleSize).width());
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addWidget(makeControls(initial));
    column->addWidget(m_sample);
    column->addLayout(buttons);
    showSample();
}

QWidget* FontBox::makeControls(const QFont& initial)
{
    ui::nameControl(*m_name, u"FontName"_s);
    ui::nameControl(*m_size, u"FontSize"_s);
    ui::nameControl(*m_bold, u"FontBold"_s);
    ui::nameControl(*m_italic, u"FontItalic"_s);
    m_name->setEditable(false); // a typed name without a font would choose nothing
    m_name->setCurrentFont(initial);
    m_size->setRange(smallest, largest);
    m_size->setSuffix(u" pt"_s);
    m_size->setValue(initial.pointSizeF());
    m_bold->setChecked(initial.bold());
    m_italic->setChecked(initial.italic());
    connect(m_name, &QFontComboBox::currentFontChanged, this, &FontBox::showSample);
    connect(m_size, &QDoubleSpinBox::valueChanged, this, &FontBox::showSample);
    connect(m_bold, &QCheckBox::toggled, this, &FontBox::showSample);
    connect(m_italic, &QCheckBox::toggled, this, &FontBox::showSample);
    auto* const controls = new QWidget(this);
    auto* const form = new QFormLayout(controls);
    form->setContentsMargins({});
    form->addRow(u"&Font:"_s, m_name);
    form->addRow(u"&Size:"_s, m_size);
    form->addRow(QString(), m_bold);
    form->addRow(QString(), m_italic);
    return controls;
}

QFont FontBox::choice() const
{
    QFont font(m_name->currentFont().family());
    font.setPointSizeF(m_size->value());
    font.setBold(m_bold->isChecked());
    font.setItalic(m_italic->isChecked());
    return font;
}

void FontBox::showSample()
{
    QFont shown = choice();
    shown.setPointSizeF(qMin(shown.pointSizeF(), largestShownSize));
    m_sample->setFont(shown);
}

} // namespace norvane::overlay
