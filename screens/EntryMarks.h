// Marks the boxes of a screen that wait for an entry.
#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class QLineEdit;

namespace norvane::screens
{

/// A marked box has another background, says what is missing while it is empty, and loses its mark as soon as
/// the user types into it.
class EntryMarks : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void mark(QLineEdit& box);
    void clear();

private:
    static void unmark(QLineEdit& box);

    QVector<QPointer<QLineEdit>> m_marked;
};

} // namespace norvane::screens
