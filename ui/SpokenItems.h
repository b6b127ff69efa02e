// Presents the items that a widget paints to screen readers.
#pragma once

#include <QRect>
#include <QString>

class QWidget;

namespace norvane::ui
{

/// A thing on a painted widget, such as a line or a key.
struct SpokenItem {
    QString text;
    QString state;         ///< the meaning of colours and marks; empty for none
    QRect place;           ///< in pixels of the widget
    bool isChosen = false; ///< as shown by the colour of selections
};

/// Second base of a widget that paints its contents: screen readers see it as a document with its items as
/// children. Items have no objects, so that ten thousand cost nothing until a screen reader asks for them.
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

/// Reports that the user has moved to item @p index of @p widget.
void sayItem(QWidget& widget, int index);

} // namespace norvane::ui
