// Copies a record, or the table of a screen, to other customers.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "programme/ReceivingShop.h"
#include "ui/EventTurns.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class QBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStandardItemModel;
class QTableView;

namespace norvane::programme
{

/// What a screen shows.
struct ScreenContents {
    QString table;
    QString title;      ///< of the screen: "PLU"
    QString record;     ///< stored key of the record; empty without one
    QString recordName; ///< "PLU 1001"
    bool isUnsaved = false;
    std::function<QString(const QString& field)> labelOf; ///< on the screen; may return empty texts
};

/// Lists the differences of the chosen customers, and again after each choice; stores nothing before Copy is
/// pressed. Work goes on while the window is used: another choice ends a comparison, Close a copy.
class CopyToShopsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param from the customer whose database the screen shows: name, folder and database.
    /// @throws RuntimeFailure as Database and registerModel().
    CopyToShopsDialog(const ApplicationValues& from, ScreenContents contents, Boxes& boxes,
                      QWidget* parent = nullptr);
    ~CopyToShopsDialog() override;

public Q_SLOTS:
    /// While it copies: stops before the next customer, and leaves the present one as it was.
    void reject() override;

private:
    using Shops = std::vector<std::unique_ptr<ReceivingShop>>;

    void layOut();
    void addChoice(QBoxLayout& column);
    void addDifferences(QBoxLayout& column);
    void addButtons(QBoxLayout& column);
    void listShops();
    void connectChoice();
    [[nodiscard]] QStringList chosenShops() const;
    [[nodiscard]] ChosenParts chosenParts() const;
    void choiceChanged();
    void refresh();
    void compareAll();
    void compareWith(const QString& name);
    void listChanges(const ReceivingShop& shop);
    void addLine(const ReceivingShop& shop, const QString& record, const ChangeLine& line);
    void listLeftOut(const ReceivingShop& shop);
    void showFound();
    [[nodiscard]] bool mayCopy();
    void copy();
    void copyAll();
    void beginAgain();
    [[nodiscard]] bool copyTo(ReceivingShop& shop);
    void note(const QString& shop, const QString& text);
    void say(const QString& text);
    [[nodiscard]] bool keepsGoing();

    ApplicationValues m_from;
    ScreenContents m_contents;
    Boxes& m_boxes;
    store::Database m_database;
    const RegisterModel& m_model;
    Shops m_shops;     ///< compared
    QWidget* m_choice; ///< with the next three
    QRadioButton* m_thisRecord;
    QRadioButton* m_wholeTable;
    QListWidget* m_customers;
    QStandardItemModel* m_changes;
    QTableView* m_table = nullptr; ///< of them
    QListWidget* m_notes;
    QLabel* m_state;
    QPushButton* m_copy;
    QPushButton* m_close;
    QTimer m_refresh;
    ui::EventTurns m_turns{ui::EventTurns::between};
    bool m_isComparing = false;
    bool m_isCopying = false;
    bool m_isStopped = false;
};

} // namespace norvane::programme
