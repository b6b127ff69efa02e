// The row in which a text is sought.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace norvane::ui
{

/// Searches while the user types, beginning at the chosen place; Enter finds the next one.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent);

    /// Shows the row with its text ready to be typed over.
    void open();
    /// Shows whether the last search found something.
    void setFound(bool isFound);
    [[nodiscard]] QString sought() const;

Q_SIGNALS:
    /// @param step 0 to begin at the chosen place itself, 1 and -1 for the next and the former one.
    void findWanted(int step);

private:
    QLineEdit* m_text;
    QLabel* m_note;
};

} // namespace norvane::ui
