// Chooses keys by what they do in the customer's programme.
#pragma once

#include "overlay/Document.h"
#include "overlay/KeyCategories.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace norvane::overlay
{

/// Lists the kinds and groups of a level with the number of their keys. A group shows the colours that are
/// remembered for it. A level that cannot be read has an empty list and says why.
class KeyKinds : public QDialog
{
    Q_OBJECT

public:
    /// Begins with the level that @p document was imported from last. @p document must outlive this.
    KeyKinds(const Document& document, QString databasePath, QWidget* parent);

    /// What the user chose. Only after the dialog was accepted.
    [[nodiscard]] const KeyCategory& choice() const;

private:
    void showLevel();
    void fill();
    [[nodiscard]] QIcon iconOf(const KeyCategory& category) const;

    const Document& m_document;
    QString m_databasePath;
    QComboBox* m_level;
    QListWidget* m_list;
    QLabel* m_failure;
    QPushButton* m_select;
    std::vector<KeyCategory> m_categories;
};

} // namespace norvane::overlay
