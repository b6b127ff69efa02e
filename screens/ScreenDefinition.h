// What a screen file (.scn) says: table, window, controls, buttons and report.
#pragma once

#include "platform/Decimal.h"

#include <QString>
#include <QVector>

#include <optional>

namespace norvane::screens
{

/// Section "Database".
struct ScreenTable {
    QString table;       ///< empty when the file does not say it
    QString firstIndex;  ///< order at the start and of find button 1; empty when the file does not say it
    QString secondIndex; ///< order of find button 2; the first index if the file gives no second one
};

/// Section "FormName".
struct ScreenWindow {
    QString name; ///< caption
    std::optional<double> width;
    std::optional<double> height;
};

/// Kinds of controls, in the order of the tables in FieldPanel and ControlMaker.
enum class ControlKind { Find, Check, Label, Integer, Decimal, Text, Combo, Grid };

/// Column of a grid.
struct GridColumn {
    QString caption;
    std::optional<double> width; ///< twips
    bool locked = false;         ///< cannot be edited
    QString numberFormat;        ///< zeros with a point ("0.00"); empty shows the value as it is
    bool visible = true;
};

/// Section "FieldN". Missing keys remain empty, and the control keeps its default.
struct ControlDefinition {
    QString section; ///< "Field12"
    ControlKind kind = ControlKind::Label;
    std::optional<double> x; ///< twips, as are all lengths here
    std::optional<double> y;
    std::optional<double> width;
    std::optional<double> height;
    std::optional<bool> visible;
    std::optional<bool> enabled;
    std::optional<bool> readOnly;
    std::optional<int> tabIndex;
    std::optional<int> decimals;
    std::optional<Decimal> maximum; ///< largest number of a number box, most characters of a text box
    QString description;
    QString dataField;
    QString justify;            ///< "0" left, "1" right, "2" centre
    QString characters;         ///< "NUMERIC" in any case for digits only
    bool isHexadecimal = false; ///< no word of the file, see RegisterRules.h
    std::optional<int> largest; ///< largest number that a text of digits may be; not a key of the file either
    std::optional<int> digits;  ///< that a whole number is shown with at least; not a key of the file either
    QString sqlCriteria;        ///< query of a combo or grid
    QString list;               ///< rows of a combo without query: "0;Off,1;On"
    QString columnWidths;       ///< of a combo's list, in twips, separated by ";"; 0 hides a column
    QString valueColumn;        ///< column of a combo's list that is the value, from 0
    QVector<GridColumn> gridColumns;
};

/// Section "visiblekeys". The exit button is always shown.
struct ScreenButtons {
    bool add = false;
    bool previous = false;
    bool next = false;
    bool remove = false;
    bool save = true;
    bool print = false;
};

/// Section "CrystalReport", as written in the file.
struct ScreenReport {
    QString file;
    QString title;
};

} // namespace norvane::screens
