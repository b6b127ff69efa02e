// The marks and the paper of a sheet.
#pragma once

#include "overlay/SheetOptions.h"

#include <QCheckBox>
#include <QDialog>

#include <vector>

class QComboBox;
class QSpinBox;

namespace norvane::overlay
{

/// Asks what is printed beside the keys, on which paper and how often.
class SheetOptionsForm : public QDialog
{
    Q_OBJECT

public:
    SheetOptionsForm(const SheetOptions& initial, int copies, QWidget* parent);

    [[nodiscard]] SheetOptions options() const;
    /// From 1 on.
    [[nodiscard]] int copies() const;

private:
    std::vector<QCheckBox*> m_boxes; ///< one for each of sheetOptionRows
    QComboBox* PaperList = nullptr;
    QSpinBox* Copies = nullptr;
};

} // namespace norvane::overlay
