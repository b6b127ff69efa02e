// The list in which the user chooses the record that a form shows.
#pragma once

#include "keys/KeyItems.h"

#include <QComboBox>
#include <QVector>

namespace norvane::keys
{

/// Drop-down list with two columns, number and text, in which one can type: a number, or any part of the
/// text, narrows the list, and Enter takes the record of that number or else the first one found. A click
/// into the text of the record shown chooses all of it, so that typing replaces it. QComboBox's signal
/// activated reports each choice; data() of a row is the number.
class RecordPicker : public QComboBox
{
    Q_OBJECT

public:
    /// @p hint is what the empty box says.
    RecordPicker(const QString& name, const QString& hint, QWidget* parent = nullptr);

    /// Fills the list. No record is chosen then.
    void setItems(const QVector<ListedItem>& items);
    /// Shows the record of this number as the chosen one, without a signal.
    void showRecord(const QString& number);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The wheel changes no key.
    void wheelEvent(QWheelEvent* event) override;

private:
    void takeTyped();
    void dropTyped();
    void chooseText();
    [[nodiscard]] int find(const QString& typed) const;
};

} // namespace norvane::keys
