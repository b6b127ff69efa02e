// Asks for the name of a new customer and what it takes from another, and makes it.
#pragma once

#include "platform/Boxes.h"
#include "programme/NewShop.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace norvane::shell
{

/// Run it with exec(): Accepted means that the new customer exists. Whatever refuses it is shown in a box,
/// and the dialog remains open with what was typed.
class NewShopDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param typed what the customer dialog shows: the customer to take from, or the name of a new one.
    NewShopDialog(QString appPath, const QString& typed, Boxes& boxes, QWidget* parent = nullptr);

    /// The name of the new customer as typed.
    [[nodiscard]] QString name() const;
    /// What was made, in words for the user.
    [[nodiscard]] QString summary() const { return m_summary; }

public Q_SLOTS:
    void accept() override;

private:
    void layOut();
    [[nodiscard]] QLayout* makeNames();
    [[nodiscard]] QGroupBox* makeChoices();
    [[nodiscard]] QLayout* makeParts();
    [[nodiscard]] QCheckBox* addBox(const QString& name, const QString& caption);
    void tickAll(bool isTicked);
    void listCustomers(const QString& typed);
    void showNotice();
    [[nodiscard]] programme::NewShop shop() const;
    void make();

    const QString m_appPath;
    Boxes& m_boxes;
    QLineEdit* m_name;
    QComboBox* m_like; ///< the folder is the data of an entry
    QCheckBox* m_settings = nullptr;
    QCheckBox* m_overlays = nullptr;
    QList<QCheckBox*> m_parts; ///< in the order of programmeParts()
    QLabel* m_notice;
    QString m_summary;
};

} // namespace norvane::shell
