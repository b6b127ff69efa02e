// What is wrong in a layout file, and where.
#pragma once

#include "reports/data/ReportError.h"

namespace norvane::reports
{

/// A mistake in a layout file.
struct LayoutMistake {
    int line = 0;    ///< from 1; that of the section where the key is missing, 0 without either
    QString section; ///< without its brackets; empty for the whole file
    QString key;     ///< empty for a whole section
    QString reason;

    /// "line 12, section [Column2], key Width"
    [[nodiscard]] QString place() const;
};

/// The line of @p key in @p section of the file at @p path, or else that of the section's name; names in
/// capitals or small letters. @return 0 without either.
[[nodiscard]] int lineInLayout(const QString& path, const QString& section, const QString& key);

/// Thrown for a mistake in a layout file. The text names the file, too.
class LayoutError : public ReportError
{
public:
    LayoutError(const QString& path, LayoutMistake mistake);
    [[nodiscard]] const LayoutMistake& mistake() const { return m_mistake; }

private:
    LayoutMistake m_mistake;
};

} // namespace norvane::reports
