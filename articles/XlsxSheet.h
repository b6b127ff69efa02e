// The sheet in a spreadsheet, row by row.
#pragma once

#include "articles/XmlPart.h"
#include "platform/KeepGoing.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace norvane::articles
{

/// What the cells of a sheet refer to.
struct XlsxTables {
    std::vector<std::string> texts; ///< that cells share
    std::vector<bool> timeStyles;
};

/// Cells that are merged into their first one. Rows and columns count from 1.
struct MergedCells {
    int firstRow;
    int firstColumn;
    int lastRow;
    int lastColumn;
};

/// Writes the text of a sheet as spreadsheetText() describes it.
class XlsxSheet
{
public:
    /// @param merged in the order of their first rows
    XlsxSheet(XmlPart& part, const XlsxTables& tables, const std::vector<MergedCells>& merged,
              const KeepGoing& keepGoing)
        : m_part(part), m_tables(tables), m_merged(merged), m_keepGoing(keepGoing)
    {
    }
    /// @throws SpreadsheetError, and RuntimeFailure with Failure::UserInterrupt
    void read();
    [[nodiscard]] const QByteArray& text() const { return m_text; }
    /// What the sheet says about merged cells, which comes after the cells.
    [[nodiscard]] std::vector<MergedCells> merged() const;

private:
    void beginRow();
    void endRow();
    void readCell();
    void addMerged();
    [[nodiscard]] bool isHidden() const;
    [[nodiscard]] std::string contents();
    [[nodiscard]] std::string valueOf(QStringView type, std::size_t style, const QString& stored) const;
    [[nodiscard]] std::string sharedText(const QString& number) const;
    void add(const std::string& cell);

    XmlPart& m_part;
    const XlsxTables& m_tables;
    const std::vector<MergedCells>& m_merged;
    const KeepGoing& m_keepGoing;
    std::size_t m_nextMerged = 0;
    std::vector<MergedCells> m_ofRow; ///< merged cells that reach into the row
    std::vector<MergedCells> m_found;
    QByteArray m_text;
    int m_row = 0;
    int m_column = 0;
    int m_written = 0; ///< cells of the row; 0 if it has none so far
};

/// A number as the file has it, in digits with a point. Spreadsheets keep 15 digits, but write 17 of
/// some: 1.1 may be "1.1000000000000001". A larger number with an exponent has lost digits and is returned as
/// it is.
[[nodiscard]] std::string plainNumber(const std::string& stored);

} // namespace norvane::articles
