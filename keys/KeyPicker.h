// The list in which the user chooses a function key.
#pragma once

#include "keys/FunctionKeys.h"

#include <QComboBox>

namespace norvane::keys
{

/// Drop-down list with two columns, number and text, in which one can type: a number, or any part of the
/// text, narrows the list, and Enter takes the key of that number or else the first key found. QComboBox's
/// signal activated tells each choice; data() of a row is the number.
class KeyPicker : public QComboBox
{
    Q_OBJECT

public:
    explicit KeyPicker(QWidget* parent = nullptr);

    /// Fills the list. No key is chosen then.
    void setItems(const QVector<FunctionKeys::Item>& items);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The wheel changes no key.
    void wheelEvent(QWheelEvent* event) override;

private:
    void takeTyped();
    void dropTyped();
    [[nodiscard]] int find(const QString& typed) const;
};

} // namespace norvane::keys
