// One function for each kind of control; see ShownTexts.h.
#include "scripts/windows/ShownTexts.h"

#include <QtWidgets>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

using Texts = QVector<ShownText>;

/// Longer texts scroll in their box.
constexpr int shortText = 24;

QSize sizeOf(const QWidget& control, const QString& text)
{
    return control.fontMetrics().size(Qt::TextShowMnemonic, text);
}

/// The position of the current text.
QRect placeOf(const QWidget& control, const QString& text, Qt::Alignment alignment, const QRect& room)
{
    const QSize shown = sizeOf(control, text).boundedTo(room.size());
    return text.isEmpty() ? QRect() : QStyle::alignedRect(Qt::LeftToRight, alignment, shown, room);
}

void add(Texts& texts, const QWidget& control, const QString& text, const QRect& room, QSize need,
         Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter)
{
    if (!text.isEmpty())
        texts += {&control, text, room, need, placeOf(control, text, alignment, room)};
}

void addLabel(Texts& texts, const QLabel& label)
{
    const QRect room = label.contentsRect();
    QSize need = sizeOf(label, label.text());
    if (label.wordWrap()) {
        need = label.fontMetrics()
                   .boundingRect(QRect(0, 0, room.width(), 0), Qt::TextWordWrap, label.text())
                   .size();
    }
    const bool isRich = label.textFormat() == Qt::RichText || Qt::mightBeRichText(label.text());
    add(texts, label, label.text(), room, isRich ? label.minimumSizeHint() : need, label.alignment());
}

QRect roomOfButton(const QAbstractButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    if (qobject_cast<const QCheckBox*>(&button))
        return button.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
    if (qobject_cast<const QRadioButton*>(&button))
        return button.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
    const auto* const push = qobject_cast<const QPushButton*>(&button);
    const int arrow = push && push->menu() ? button.style()->pixelMetric(QStyle::PM_MenuButtonIndicator) : 0;
    return button.style()
        ->subElementRect(QStyle::SE_PushButtonContents, &option, &button)
        .adjusted(0, 0, -arrow, 0);
}

void addButton(Texts& texts, const QAbstractButton& button)
{
    const auto* const tool = qobject_cast<const QToolButton*>(&button);
    const bool showsIcon =
        tool && !tool->icon().isNull() && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
    if (showsIcon || (tool && tool->arrowType() != Qt::NoArrow))
        return;
    const bool isPush = tool || qobject_cast<const QPushButton*>(&button);
    add(texts, button, button.text(), roomOfButton(button), sizeOf(button, button.text()),
        isPush ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
}

void addGroup(Texts& texts, const QGroupBox& group)
{
    QStyleOptionGroupBox option;
    option.initFrom(&group);
    option.text = group.title();
    option.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
    const QRect room =
        group.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &group);
    add(texts, group, group.title(), room & group.rect(), QSize(sizeOf(group, group.title()).width(), 0));
}

void addCombo(Texts& texts, const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect room =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    QString longest = combo.placeholderText();
    for (int entry = 0; entry < combo.count(); ++entry) {
        longest = std::max(longest, combo.itemText(entry), [&](const QString& left, const QString& right) {
            return sizeOf(combo, left).width() < sizeOf(combo, right).width();
        });
    }
    add(texts, combo, longest, room, QSize(combo.fontMetrics().horizontalAdvance(longest), 0));
    if (!longest.isEmpty())
        texts.last().letters = placeOf(combo, combo.currentText(), Qt::AlignLeft | Qt::AlignVCenter, room);
}

/// The tool tip of a number box shows its range.
QString longestContent(const QLineEdit& box)
{
    if (const auto end = box.toolTip().indexOf(u" to "_s); end > 0 && box.toolTip().startsWith(u"From "_s))
        return box.toolTip().sliced(end + 4);
    const bool isShort = box.maxLength() <= shortText && !box.isReadOnly();
    const QString longest = isShort ? QString(box.maxLength(), u'0') : box.text();
    return longest.isEmpty() ? box.placeholderText() : longest;
}

void addBox(Texts& texts, const QLineEdit& box)
{
    const bool isInner =
        qobject_cast<const QAbstractSpinBox*>(box.parent()) || qobject_cast<const QComboBox*>(box.parent());
    // A key of an overlay looks as on paper; cut texts have a mark.
    if (isInner || box.objectName().startsWith(u"RichTextBox1_"_s))
        return;
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth =
        box.hasFrame() ? box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box) : 0;
    constexpr int margin = 2; ///< the toolkit's own, at both ends
    const QRect room = box.style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, &box)
                           .adjusted(margin, 0, -margin, 0);
    const QString shown = box.text().isEmpty() ? box.placeholderText() : box.text();
    const QString longest = longestContent(box);
    add(texts, box, longest, room,
        QSize(box.fontMetrics().horizontalAdvance(longest), box.fontMetrics().height()));
    if (!longest.isEmpty())
        texts.last().letters = placeOf(box, shown, box.alignment() | Qt::AlignVCenter, room);
}

void addSpin(Texts& texts, const QAbstractSpinBox& box)
{
    add(texts, box, box.text(), box.rect(), box.minimumSizeHint());
}

void addHeader(Texts& texts, const QHeaderView& header)
{
    if (header.orientation() != Qt::Horizontal || !header.model())
        return;
    for (int section = 0; section < header.count(); ++section) {
        if (header.isSectionHidden(section))
            continue;
        const QRect place(header.sectionViewportPosition(section), 0, header.sectionSize(section),
                          header.height());
        const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
        add(texts, header, text, place, sizeOf(header, text), header.defaultAlignment());
    }
}

/// Keys wrap and fit their letters themselves, and the status bar shows the whole text.
bool fitsItself(const QAbstractItemView& view)
{
    return view.inherits("norvane::keys::KeyGrid");
}

void addCell(Texts& texts, const QAbstractItemView& view, const QModelIndex& cell)
{
    const QRect place = view.visualRect(cell);
    const QString text = cell.data().toString();
    if (!place.intersects(view.viewport()->rect()) || text.isEmpty() || !cell.data(Qt::ToolTipRole).isNull())
        return;
    const QVariant ownAlignment = cell.data(Qt::TextAlignmentRole);
    const auto alignment = ownAlignment.isNull() ? Qt::AlignLeft | Qt::AlignVCenter
                                                 : Qt::Alignment::fromInt(ownAlignment.toUInt());
    const QSize need = fitsItself(view) ? QSize() : QSize(view.sizeHintForIndex(cell).width(), 0);
    add(texts, *view.viewport(), text, place, need, alignment);
    const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
    texts.last().letters =
        fitsItself(view) ? place
                         : placeOf(*view.viewport(), text, alignment, place.adjusted(margin, 0, -margin, 0));
}

void addCells(Texts& texts, const QAbstractItemView& view)
{
    const QAbstractItemModel* const model = view.model();
    if (!model || qobject_cast<const QHeaderView*>(&view))
        return;
    for (int row = 0; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column)
            addCell(texts, view, model->index(row, column));
    }
}

void addActions(Texts& texts, const QWidget& bar, const std::function<QRect(QAction*)>& placeOf)
{
    for (QAction* const action : bar.actions()) {
        if (!action->isSeparator() && action->isVisible() && action->isEnabled())
            texts += {&bar, action->text(), placeOf(action), {}, placeOf(action)};
    }
}

void addMessage(Texts& texts, const QStatusBar& bar)
{
    constexpr int margin = 6; ///< the toolkit's own
    const QRect room = bar.rect().adjusted(margin, 0, -margin, 0);
    add(texts, bar, bar.currentMessage(), room, sizeOf(bar, bar.currentMessage()));
}

template <typename Control>
bool addAs(Texts& texts, const QWidget& widget, void (*addTexts)(Texts&, const Control&))
{
    const auto* const control = qobject_cast<const Control*>(&widget);
    if (control)
        addTexts(texts, *control);
    return control != nullptr;
}

void addTextsOf(Texts& texts, const QWidget& widget)
{
    if (const auto* const menu = qobject_cast<const QMenu*>(&widget))
        return addActions(texts, *menu, [menu](QAction* action) { return menu->actionGeometry(action); });
    if (const auto* const bar = qobject_cast<const QMenuBar*>(&widget))
        return addActions(texts, *bar, [bar](QAction* action) { return bar->actionGeometry(action); });
    addAs(texts, widget, &addLabel) || addAs(texts, widget, &addButton) || addAs(texts, widget, &addGroup) ||
        addAs(texts, widget, &addCombo) || addAs(texts, widget, &addBox) || addAs(texts, widget, &addSpin) ||
        addAs(texts, widget, &addHeader) || addAs(texts, widget, &addCells) ||
        addAs(texts, widget, &addMessage);
}

} // namespace

QVector<ShownText> shownTexts(const QWidget& window)
{
    Texts texts;
    addTextsOf(texts, window);
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisibleTo(&window) && widget->window() == window.window())
            addTextsOf(texts, *widget);
    }
    return texts;
}

} // namespace norvane::windows
