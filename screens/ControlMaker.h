// Makes the controls of a screen from their definitions.
#pragma once

#include "screens/ScreenDefinition.h"
#include "store/engine/Database.h"

#include <QHash>
#include <QStringList>
#include <QVector>

#include <memory>

class QWidget;

namespace norvane::screens
{

/// Makes controls with their texts, rows and limits. Names and places are up to the panel that they are on.
class ControlMaker
{
public:
    /// @param parent of the controls; must outlive this.
    ControlMaker(std::shared_ptr<store::Database> database, QWidget& parent);

    /// @throws RuntimeFailure as the control's query does, and with Failure::TypeMismatch for a list column
    /// that is not a number.
    [[nodiscard]] QWidget* make(const ControlDefinition& definition);

private:
    [[nodiscard]] QWidget* makeFind(const ControlDefinition& definition);
    [[nodiscard]] QWidget* makeCheck(const ControlDefinition& definition);
    [[nodiscard]] QWidget* makeLabel(const ControlDefinition& definition);
    [[nodiscard]] QWidget* makeNumber(const ControlDefinition& definition);
    [[nodiscard]] QWidget* makeText(const ControlDefinition& definition);
    [[nodiscard]] QWidget* makeCombo(const ControlDefinition& definition);
    [[nodiscard]] QWidget* makeGrid(const ControlDefinition& definition);
    [[nodiscard]] const QVector<QStringList>& queriedRows(const QString& query);

    std::shared_ptr<store::Database> m_database;
    QWidget& m_parent;
    QHash<QString, QVector<QStringList>> m_queriedRows; ///< many lists of a screen have the same query
};

} // namespace norvane::screens
