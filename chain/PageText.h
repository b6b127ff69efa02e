// The text of a page: HTML that is XML as well, with charts as SVG in it.
#pragma once

#include "chain/PageSections.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace norvane::chain
{

/// The cells of a row as the server wrote them; a null text for what is missing there.
using PageRow = QStringList;

/// A section with its heading, its chart and its table; empty if there are no rows.
[[nodiscard]] QString sectionText(const PageSection& section, const QList<PageRow>& rows);

/// A whole page. @param subtitle HTML. @param body of sectionText().
[[nodiscard]] QString pageText(const QString& title, const QString& subtitle, const QString& body);

/// "shop-12.html".
[[nodiscard]] QString shopPageName(const QString& shop);

} // namespace norvane::chain
