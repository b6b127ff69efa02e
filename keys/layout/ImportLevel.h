// Asks before a level from a file takes the place of the shown one.
#pragma once

#include "keys/layout/LevelImport.h"

#include <QDialog>

namespace norvane::keys
{

/// Lists what is missing in this shop first, then what has another number or name, and how many keys would
/// change. "Import" accepts; Cancel is preset.
class ImportLevel : public QDialog
{
    Q_OBJECT

public:
    ImportLevel(const LevelImport& plan, int level, QWidget* parent);
};

} // namespace norvane::keys
