// See ZoomBox.h.
#include "overlay/ZoomBox.h"

#include "overlay/KeyboardView.h"
#include "ui/FormKit.h"

#include <QShortcut>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr std::array<std::pair<const char*, int>, 6> zooms = {
    {{"Fit window", 0}, {"75 %", 75}, {"100 %", 100}, {"125 %", 125}, {"150 %", 150}, {"200 %", 200}}};
constexpr double perCent = 100;

} // namespace

ZoomBox::ZoomBox(KeyboardView& keyboard, QWidget* form) : QComboBox(form), m_keyboard(keyboard)
{
    ui::nameControl(*this, u"Zoom"_s, u"Size of the keyboard on the screen"_s);
    for (const auto& [caption, size] : zooms)
        addItem(QLatin1StringView(caption), size);
    setToolTip(u"Size of the keyboard on the screen (Ctrl and + or -; Ctrl+0 fits the window)"_s);
    connect(this, &QComboBox::currentIndexChanged, this,
            [this] { m_keyboard.setZoom(currentData().toInt()); });
    // Where + needs no Shift its key is the first; elsewhere it is on that of the equals sign.
    for (const auto& keys : {u"Ctrl++"_s, u"Ctrl+="_s})
        connect(new QShortcut(QKeySequence(keys), form), &QShortcut::activated, this, &ZoomBox::zoomIn);
    connect(new QShortcut(QKeySequence(u"Ctrl+-"_s), form), &QShortcut::activated, this, &ZoomBox::zoomOut);
    connect(new QShortcut(QKeySequence(u"Ctrl+0"_s), form), &QShortcut::activated, this,
            [this] { setCurrentIndex(0); });
}

/// The window may show any size: the next in the list counts from there.
void ZoomBox::zoomIn()
{
    const double shown = m_keyboard.shownScale() * perCent;
    for (int row = 1; row < count(); ++row) {
        if (itemData(row).toInt() > shown + 1) {
            setCurrentIndex(row);
            return;
        }
    }
}

void ZoomBox::zoomOut()
{
    const double shown = m_keyboard.shownScale() * perCent;
    for (int row = count() - 1; row > 0; --row) {
        if (itemData(row).toInt() < shown - 1) {
            setCurrentIndex(row);
            return;
        }
    }
    setCurrentIndex(0);
}

} // namespace norvane::overlay
