// Find and replace in the texts of the designer.
#pragma once

#include "overlay/TextSearch.h"

#include <QDialog>

class QCheckBox;
class QLabel;

namespace norvane::ui
{
class TextBox;
}

namespace norvane::overlay
{

class DocumentEditor;
class KeyboardView;

/// Stays open beside the keyboard, which shows what was found as its selection.
class FindDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p editor and @p keyboard must outlive this.
    FindDialog(DocumentEditor& editor, KeyboardView& keyboard, QWidget* parent);

    /// Shows the dialog with its text ready to be typed over.
    void openAgain();
    void done(int result) override;

private:
    [[nodiscard]] QWidget* makeBoxes();
    [[nodiscard]] SoughtText sought() const;
    void findNextCell();
    void replace();
    void replaceAll();
    void showCell(int cell);
    void keepOff(const QRect& place);

    DocumentEditor& m_editor;
    KeyboardView& m_keyboard;
    std::vector<int> m_order; ///< of reading
    ui::TextBox* m_sought;
    ui::TextBox* m_replacement;
    QCheckBox* m_matchesCase;
    QLabel* m_outcome;
};

} // namespace norvane::overlay
