// Which styles of a spreadsheet show a number as a date.
#pragma once

#include <QStringView>

#include <vector>

namespace norvane::articles
{

class XmlPart;

/// Whether a number format such as "dd/mm/yyyy" or "[h]:mm" shows days or times. Letters in quotes, after a
/// backslash and in most brackets are text.
[[nodiscard]] bool showsTime(QStringView format);

/// For each style of a cell, by its number, whether it shows days or times.
/// @throws SpreadsheetError
[[nodiscard]] std::vector<bool> timeStyles(XmlPart& styles);

} // namespace norvane::articles
