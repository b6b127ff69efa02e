// The shop's own copies of layouts.
#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace norvane::sales
{

/// Copies the layout at @p path into @p folder, under its own name or the next free one: "groupsales 2.rpt".
/// @return the path of the copy. @throws ReportError with the reason if it cannot be written.
[[nodiscard]] QString copyLayout(const QString& path, const QString& folder);

/// Opens @p path in the editor that the system has for texts. The editor outlives the program.
/// @param context @p onFailure is called while it is there, now or later, if there is no such editor.
void openInEditor(const QString& path, QObject& context, const std::function<void()>& onFailure);

} // namespace norvane::sales
