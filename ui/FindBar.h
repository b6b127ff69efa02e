// The row in which a text is sought.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace norvane::ui
{

/// What the find bars of different windows differ in.
struct FindBarParts {
    QString name;      ///< of the box; that of the outcome is the same with "Outcome"
    QString caption;   ///< with its access letter
    QString toolTip;   ///< of the box
    int narrowest = 0; ///< the box, in pixels at the usual font
    int widest = 0;
};

/// Searches while the user types, beginning at the chosen place; Enter finds the next one. The window looks
/// for the text and reports the outcome.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// The bar of a window that shows a text: with buttons for the next and the previous place.
    explicit FindBar(QWidget* parent);
    /// A bar without buttons, whose box can be cleared with a click.
    FindBar(const FindBarParts& parts, QWidget* parent);

    /// Shows the row with its text ready to be typed over.
    void open();
    /// Empties the box and searches again.
    void clear();
    [[nodiscard]] QString sought() const;
    /// Shows the outcome of a search and has screen readers say it; an empty text shows nothing.
    void showOutcome(const QString& outcome);
    /// Shows whether the last search found something.
    void setFound(bool isFound);
    [[nodiscard]] QString outcome() const;

Q_SIGNALS:
    /// @param step 0 to begin at the chosen place itself, 1 and -1 for the next and the previous one.
    void findWanted(int step);

protected:
    [[nodiscard]] QLineEdit& box() { return *m_text; }

private:
    void addButton(const QString& name, const QString& caption, int step);

    QLineEdit* m_text;
    QLabel* m_outcome;
    QHBoxLayout* m_row;
};

} // namespace norvane::ui
