// The correction of a printer that prints too far to one side, or a little too large or small.
#pragma once

#include "paper/Length.h"

#include <QString>
#include <QTransform>

namespace norvane::paper
{

/// In one direction: across the sheet or down it.
struct AxisCorrection {
    Length offset;      ///< by which all is moved, to the right or down
    double stretch = 1; ///< from the sheet's edge, after the move

    bool operator==(const AxisCorrection&) const = default;
};

/// A line on the test page, that @p before was printed with.
struct MeasuredLine {
    Length start;          ///< where it should begin, from the sheet's edge
    Length length;         ///< what it should measure
    Length measuredStart;  ///< the measured start
    Length measuredLength; ///< the measured length; above 0
};

/// Improves @p before by the error that @p line still shows.
[[nodiscard]] AxisCorrection improved(const AxisCorrection& before, const MeasuredLine& line);

/// The correction of a printer in both directions.
struct PrinterCorrection {
    AxisCorrection across;
    AxisCorrection down;

    /// For a painter in mm from the sheet's upper left corner.
    [[nodiscard]] QTransform transform() const;
    bool operator==(const PrinterCorrection&) const = default;
};

/// The corrections of the printers of this computer, in a separate file: they belong to the printers, not to
/// a customer.
class PrinterCorrections
{
public:
    /// @param path of an initialisation file, which need not exist.
    explicit PrinterCorrections(QString path) : m_path(std::move(path)) {}
    /// Those in the user's folder for settings.
    [[nodiscard]] static PrinterCorrections ofThisComputer();

    /// @return none for a printer without one; values beyond any printer's need count as none.
    [[nodiscard]] PrinterCorrection of(const QString& printer) const;
    /// @return false when the file cannot be written.
    [[nodiscard]] bool keep(const QString& printer, const PrinterCorrection& correction) const;

private:
    QString m_path;
};

/// The largest move and the largest change in size that are kept.
inline constexpr Length largestOffset = millimetres(50);
inline constexpr double smallestStretch = 0.8;
inline constexpr double largestStretch = 1.25;

} // namespace norvane::paper
