// What is wrong in the layout file that a preview follows.
#pragma once

#include "reports/lines/LayoutMistake.h"

#include <QWidget>

#include <vector>

class QLabel;
class QTreeWidget;

namespace norvane::reports
{

/// Lists the mistakes with line, key and reason, and shows the whole reason of the chosen one. Hidden without
/// any.
class MistakePane : public QWidget
{
    Q_OBJECT

public:
    explicit MistakePane(QWidget* parent);

    /// @param path of the file
    void showMistakes(const QString& path, const std::vector<LayoutMistake>& mistakes);

private:
    QLabel* m_heading;
    QTreeWidget* m_list;
    QLabel* m_reason; ///< of the chosen mistake, which may be too long for its row
};

} // namespace norvane::reports
