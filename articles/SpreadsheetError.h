// Why a spreadsheet cannot be read.
#pragma once

#include "platform/TextError.h"

namespace norvane::articles
{

/// The text continues "The file ...", as in "is damaged".
class SpreadsheetError : public TextError
{
public:
    using TextError::TextError;
};

} // namespace norvane::articles
