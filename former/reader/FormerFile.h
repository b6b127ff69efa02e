// A database file of the former program, read through libmdb.
#pragma once

#include "former/reader/FieldText.h"
#include "former/reader/Library.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace norvane::former
{

/// A table as its definition says.
struct TableShape {
    std::string name;
    std::uint32_t recordCount = 0;
    std::vector<FieldShape> fields;
};

/// An open file. It may come from strangers, so it is read in a process of its own.
class FormerFile
{
public:
    explicit FormerFile(const char* path);

    [[nodiscard]] Refusal refusal() const { return m_refusal; }
    /// "1997" or "2000", which 2002 and 2003 write too.
    [[nodiscard]] const char* format() const;
    /// The user's tables, in the order of the file's list.
    [[nodiscard]] std::vector<std::string> tableNames() const;
    /// Calls @p begin with the definition of the table and @p takeRow with each of its records: the values as
    /// texts (see FieldText.h), in the order of the definition's fields. Nothing is called for a table whose
    /// definition cannot be read.
    void readTable(const std::string& name, const std::function<void(const TableShape&)>& begin,
                   const std::function<void(std::span<const std::string>)>& takeRow) const;

private:
    struct Close {
        void operator()(MdbHandle* file) const { mdb_close(file); }
    };

    std::unique_ptr<MdbHandle, Close> m_file;
    Refusal m_refusal = Refusal::None;
    bool m_isCutOff = false; ///< in the middle of a page
};

} // namespace norvane::former
