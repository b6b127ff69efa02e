// The font dialog of the overlay forms.
#pragma once

#include <QDialog>

class QCheckBox;
class QDoubleSpinBox;
class QFontComboBox;
class QLabel;

namespace norvane::overlay
{

/// Asks for what a cell's font has and for nothing else: name, size in hundredths of a point, bold, italic.
class FontBox : public QDialog
{
    Q_OBJECT

public:
    /// @param initial a font that this computer has.
    FontBox(const QFont& initial, QWidget* parent);
    [[nodiscard]] QFont choice() const;

private:
    [[nodiscard]] QWidget* makeControls(const QFont& initial);
    void showSample();

    QFontComboBox* m_name;
    QDoubleSpinBox* m_size;
    QCheckBox* m_bold;
    QCheckBox* m_italic;
    QLabel* m_sample;
};

} // namespace norvane::overlay
