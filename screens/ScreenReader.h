// Reader of screen files (.scn).
#pragma once

#include "platform/ProfileFile.h"
#include "screens/ScreenDefinition.h"

namespace norvane::screens
{

/// Reads a screen file once and returns it section by section, so that a screen reports mistakes in the order
/// in which it is built. Missing keys, sections and files are not failures. A wrong number, or a word that is
/// neither true nor false, is Failure::TypeMismatch, which names file, section and key.
class ScreenReader
{
public:
    explicit ScreenReader(const QString& path);

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] ScreenTable table() const;
    /// @throws RuntimeFailure with Failure::TypeMismatch
    [[nodiscard]] ScreenWindow window() const;
    /// The controls from "Field1" up to the first section without a control type; sections of an unknown type
    /// are left out. @throws RuntimeFailure with Failure::TypeMismatch, or Failure::Overflow for a number
    /// that is too large
    [[nodiscard]] QVector<ControlDefinition> controls() const;
    [[nodiscard]] ScreenButtons buttons() const;
    [[nodiscard]] ScreenReport report() const;

private:
    [[nodiscard]] ControlDefinition control(const QString& section, ControlKind kind) const;
    [[nodiscard]] QVector<GridColumn> gridColumns(const QString& section) const;
    /// Hands the value of a key that is given to @p convert.
    template <typename Convert>
    void read(QStringView section, QStringView key, int limit, Convert convert) const;

    QString m_path;
    ProfileFile m_file;
};

} // namespace norvane::screens
