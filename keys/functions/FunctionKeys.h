// The records of the function keys, shown in and saved from the controls of their editor.
#pragma once

#include "base/ApplicationValues.h"
#include "keys/functions/KeyOptions.h"
#include "keys/KeyItems.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <QVector>

#include <memory>

namespace norvane::keys
{

/// What the editor's controls hold, visible or not. A hidden control keeps its number, and Halo's is saved
/// with every key.
struct KeyControls {
    /// A box of the options.
    struct Tick {
        bool visible = false;
        QString caption;
        bool ticked = false;
        bool operator==(const Tick&) const = default;
    };
    /// A number with its label.
    struct Number {
        bool visible = false;
        QString caption;
        Decimal value;
        Decimal largest; ///< that can be typed
        bool operator==(const Number&) const = default;
    };

    [[nodiscard]] Number& number(NumberControl control);
    [[nodiscard]] const Number& number(NumberControl control) const;

    QString description;
    QVector<Tick> Check1{checkCount}; ///< by index
    Number Halo;
    Number otherno;
    Number otherno2;
    /// Digits after the point that Halo shows at least for this key.
    int haloDigits = 2;
    /// The same for keys that do not say.
    int standingHaloDigits = 2;
    bool operator==(const KeyControls&) const = default;
};

/// The table of the function keys with a place in it.
class FunctionKeys
{
public:
    /// Keeps the connection. @p values provide the register model whenever a key is shown.
    /// @throws RuntimeFailure with Failure::NoCurrentRecord for an empty table, and as Database does.
    FunctionKeys(std::shared_ptr<store::Database> database, const ApplicationValues& values);

    /// All keys in their order. The place is the first key afterwards.
    [[nodiscard]] QVector<ListedItem> readItems();
    /// Characters that a description can have.
    [[nodiscard]] int descriptionLength() const;

    /// Goes to the row at @p position, which counts from 1: keys are found by their place in the table.
    /// @throws RuntimeFailure with Failure::NoCurrentRecord if the table has no such row.
    void moveTo(qint64 position);
    /// Shows the current key. What it does not show is hidden, and no longer ticked.
    /// @throws RuntimeFailure with Failure::TypeMismatch when a field holds no number.
    void GetData(KeyControls& controls) const;
    /// Saves the current key as one step. Every option that is not ticked, and so every hidden one, is
    /// cleared. A key without an amount takes Halo's number unless that is above 21474836.47.
    /// @throws RuntimeFailure as Recordset does; the record is unchanged then.
    void SaveData(const KeyControls& controls);

private:
    void getdata2(const RegisterModel& model, KeyControls& controls) const;
    void show(const KeyOptions* options, const RegisterModel& model, KeyControls& controls) const;
    void showNumber(const NumberField& field, KeyControls& controls) const;
    [[nodiscard]] bool isSet(int index) const;
    void storeAll(const KeyControls& controls);
    [[nodiscard]] qint64 id() const;
    [[nodiscard]] QString textOf(KeyField field) const;

    const ApplicationValues& m_values;
    std::shared_ptr<store::Database> m_database;
    store::Recordset m_table;
};

} // namespace norvane::keys
