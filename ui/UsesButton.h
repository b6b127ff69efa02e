// The button that says in how many places a record is used, and lists them.
#pragma once

#include <QPushButton>
#include <QStringList>

#include <functional>
#include <optional>

class QTimer;

namespace norvane::ui
{

/// The places that use a record, in words.
struct Uses {
    int count = 0;
    QStringList first; ///< some of them
};

/// Says "Used in 3 Places..." of the record on a screen; a press shows them. It is greyed for a record that
/// nothing uses.
class UsesButton : public QPushButton
{
    Q_OBJECT

public:
    /// Reads the uses of the record on the screen now, of which so many are described. @return nothing if
    /// they cannot be read, such as while another program holds the database.
    using Reader = std::function<std::optional<Uses>(int atMost)>;

    UsesButton(Reader reader, QWidget* parent);

    /// Another record is on the screen, or its uses may have changed. They are counted when the user rests,
    /// since this takes a moment in a shop with many PLUs.
    void recount();

private:
    void showCount();
    void showList();
    void placeList(QWidget& list) const;

    Reader m_read;
    QTimer* m_rest;
};

} // namespace norvane::ui
