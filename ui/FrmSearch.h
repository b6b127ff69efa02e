// The find dialog.
#pragma once

#include <QDialog>

#include <optional>

class QLineEdit;

namespace norvane::ui
{

/// Asks for a search text. Enter finds, Escape and the window's close button cancel.
class FrmSearch : public QDialog
{
    Q_OBJECT

public:
    /// @param sought what the text is: "number".
    /// @return the text, which may be empty; nothing when the user cancelled.
    [[nodiscard]] static std::optional<QString> ask(QWidget* parent, const QString& sought);

private:
    FrmSearch(QWidget* parent, const QString& sought);

    QLineEdit* SearchData;
};

} // namespace norvane::ui
