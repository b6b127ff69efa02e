// The charts of a report beside its pages.
#pragma once

#include "reports/pages/ReportDocument.h"

#include <QScrollArea>

namespace norvane::reports
{

/// One chart below the other, as wide as the pane.
class ChartPane : public QScrollArea
{
    Q_OBJECT

public:
    /// @p document must outlive this.
    ChartPane(const ReportDocument& document, QWidget* parent);

    /// Shows the charts of another document.
    void setDocument(const ReportDocument& document);

private:
    class Sheet;
    Sheet* m_sheet;
};

} // namespace norvane::reports
