// Asks for the smallest letters with which texts are set in whole words, and lists what does not fit.
#pragma once

#include "overlay/WholeWords.h"

#include <QDialog>

class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QListWidget;

namespace norvane::overlay
{

/// Works on a copy of a document: every change of the size shows at once what would come of it.
class WholeWordsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param selected keys that are offered as the only ones to work on; none for all.
    /// @p document must outlive this.
    WholeWordsDialog(const Document& document, std::vector<int> selected, ProgrammeTexts programme,
                     QWidget* parent);

    /// The document as it will be, and what does not fit in it.
    [[nodiscard]] const Document& outcome() const { return m_outcome; }
    [[nodiscard]] const WholeWordsResult& result() const { return m_result; }

Q_SIGNALS:
    /// The user looks at a key of the list.
    void keyShown(int key);

private:
    [[nodiscard]] QWidget* makeChoices();
    void work();
    void showResult();

    const Document& m_document;
    std::vector<int> m_selected;
    ProgrammeTexts m_programme;
    QDoubleSpinBox* m_smallest;
    QCheckBox* m_onlySelected;
    QLabel* m_summary;
    QListWidget* m_unfit;
    Document m_outcome;
    WholeWordsResult m_result;
};

} // namespace norvane::overlay
