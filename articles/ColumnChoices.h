// The columns of a file, and what each is imported as.
#pragma once

#include "articles/HeadingMap.h"

#include <QScrollArea>

#include <vector>

class QComboBox;
class QGridLayout;

namespace norvane::articles
{

/// A list of the table's columns beside each heading of a file.
class ColumnChoices : public QScrollArea
{
    Q_OBJECT

public:
    /// @param sheet must outlive it @param map what is chosen first
    ColumnChoices(const TableSheet& sheet, const ColumnNames& names, const QStringList& headings,
                  const HeadingMap& map, QWidget* parent);

    [[nodiscard]] HeadingMap map() const;
    /// Whether a column of the file has the numbers of the records.
    [[nodiscard]] bool hasNumber() const;
    /// Headings that are not imported.
    [[nodiscard]] QStringList leftOut() const;

Q_SIGNALS:
    void changed();

private:
    void addRow(QGridLayout& grid, const QString& heading, const SheetColumn* chosen,
                const ColumnNames& names);

    struct Row {
        QString heading;
        QComboBox* box;
        [[nodiscard]] const SheetColumn* column(const TableSheet& sheet) const;
    };
    const TableSheet& m_sheet;
    std::vector<Row> m_rows;
};

} // namespace norvane::articles
