// The scrolling panel of a screen with the controls of its fields.
#pragma once

#include "screens/ControlMaker.h"
#include "screens/RecordEditor.h"
#include "screens/ScreenDefinition.h"

#include <QHash>
#include <QScrollArea>

#include <memory>

class QLabel;
class QLineEdit;

namespace norvane::screens
{

class GridControl;

/// Heights of the controls in twips, which screen files do not define; labels are as high as boxes, so that a
/// label is level with the box of the same "Y".
inline constexpr double controlHeight = 360;
inline constexpr double checkHeight = 300; ///< keeps long columns of check boxes close together
inline constexpr double findButtonWidth = 1200;

/// Holds a control for each definition, named by its kind and element. The panel is as high as the largest
/// "Y" of its find buttons, boxes and combos (a grid counts by its height, check boxes and labels do not
/// count) and 10 twips more; the part below is cut.
class FieldPanel : public QScrollArea
{
    Q_OBJECT

public:
    explicit FieldPanel(std::shared_ptr<store::Database> database, QWidget* parent = nullptr);

    /// @throws RuntimeFailure as ControlMaker::make().
    void addControl(const ControlDefinition& definition);
    /// After the last control: size of the panel, tab order, labels tied to their controls.
    /// @param numberField the field that holds the number of the record.
    void finish(const QString& numberField);

    /// The controls that are bound to fields, in the order of the file, with what they show.
    [[nodiscard]] BoundFields contents() const;
    /// Of contents() those that the user may change.
    [[nodiscard]] BoundFields entries() const;
    /// The box for @p dataField that the user may type into; nullptr if there is none.
    [[nodiscard]] QLineEdit* entryBox(const QString& dataField) const;
    /// Shows @p fields, which come from contents().
    void showContents(const BoundFields& fields);
    /// The one grid of the screen, nullptr without one.
    [[nodiscard]] GridControl* grid() const { return m_grid; }
    /// What the label beside the control of @p dataField says.
    [[nodiscard]] QString labelOf(const QString& dataField) const;
    /// Sets the focus for a stored record: to the first editable control in tab order except its number,
    /// which typing would replace.
    void focusFirst();
    /// Puts the focus where the user begins in a new record: into the first that takes an entry.
    void focusNew();

Q_SIGNALS:
    /// A control holds something else than before; not raised by showContents().
    void edited();
    void findPressed(int element);
    void maximumExceeded(QLineEdit* box);
    void gridDataError(norvane::screens::GridControl* grid, const QModelIndex& index, const QString& why);

private:
    struct Control {
        ControlDefinition definition;
        QWidget* widget;
    };

    [[nodiscard]] QWidget* make(const ControlDefinition& definition, int element);
    void listenTo(QWidget& widget, int element);
    void tellEdited();
    [[nodiscard]] int nextElement(ControlKind kind);
    void place(const ControlDefinition& definition, QWidget& widget);
    void countBottom(const ControlDefinition& definition);
    static void tieShownLabels(const QVector<QWidget*>& shown);
    [[nodiscard]] QVector<Control> inTabOrder() const;
    void chain(const QVector<Control>& ordered);
    [[nodiscard]] static QWidget* firstEditable(const QVector<Control>& ordered, const QString& except);
    void focusOn(QWidget* control);
    [[nodiscard]] static BoundField contentOfControl(const Control& control);

    std::shared_ptr<store::Database> m_database;
    QWidget* m_picture; ///< parent of the controls
    ControlMaker m_maker;
    QVector<Control> m_controls;
    QHash<ControlKind, int> m_counters; ///< next element of each kind
    GridControl* m_grid = nullptr;      ///< the one grid, which every grid section describes
    bool m_isShowing = false;           ///< within showContents()
    double m_bottom = 0;                ///< twips
    QVector<QWidget*> m_tabOrder;
    QWidget* m_first = nullptr;    ///< that takes an entry; nullptr without one
    QWidget* m_firstNew = nullptr; ///< the same in a new record
};

} // namespace norvane::screens
