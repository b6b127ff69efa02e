// The find dialog of a screen.
#pragma once

#include "base/ApplicationValues.h"

#include <QDialog>

class QLineEdit;

namespace norvane::screens
{

/// Asks for a search text. Its answer stands in searchText and searchConfirmed afterwards. Enter finds,
/// Escape and the window's close button cancel.
class FrmSearch : public QDialog
{
    Q_OBJECT

public:
    explicit FrmSearch(ApplicationValues& values, QWidget* parent = nullptr);

    void done(int result) override;

private:
    ApplicationValues& m_values;
    QLineEdit* SearchData;
};

} // namespace norvane::screens
