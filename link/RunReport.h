// The part of a form below its status bar that says more about a run than fits there.
#pragma once

#include <QPlainTextEdit>

namespace norvane::link
{

/// What the tools of a run said, step by step, and what the result means that has ended it. It can be read
/// and copied, and is hidden while it is empty.
class RunReport : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit RunReport(QWidget* parent);

    void empty();
    /// Adds @p words under the name of their step; nothing if there are none.
    void addWords(const QString& step, const QString& words);
    /// Adds @p text, below a free line if there are words.
    void explain(const QString& text);

    /// In large type on a small screen fewer lines show at once. @param height pixels that the form has left
    void setRoom(int height);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The form has another size now.
    void cameOrWent();

private:
    void add(const QString& text);
    void setShown(bool isShown);

    int m_room = QWIDGETSIZE_MAX;
    QString m_lastStep; ///< that has words here
};

} // namespace norvane::link
