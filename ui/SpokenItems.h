// What a widget paints by itself, told to screen readers thing by thing.
#pragma once

#include <QRect>
#include <QString>

class QWidget;

namespace norvane::ui
{

/// A thing on a painted widget, such as a line or a key.
struct SpokenItem {
    QString text;
    QString state;         ///< what colours and marks tell; empty when they tell nothing
    QRect place;           ///< in pixels of the widget
    bool isChosen = false; ///< as shown by the colour of selections
};

/// Second base of a widget that paints its contents: screen readers meet it as a document and find each of
/// its items below it. Items have no objects of their own, so that ten thousand cost nothing until somebody
/// asks.
class SpokenItems
{
public:
    SpokenItems();
    SpokenItems(const SpokenItems&) = delete;
    SpokenItems& operator=(const SpokenItems&) = delete;
    virtual ~SpokenItems() = default;

    [[nodiscard]] virtual int spokenItemCount() const = 0;
    /// @param index from 0 to spokenItemCount() - 1.
    [[nodiscard]] virtual SpokenItem spokenItem(int index) const = 0;
};

/// Tells that the user has come to item @p index of @p widget.
void sayItem(QWidget& widget, int index);

} // namespace norvane::ui
