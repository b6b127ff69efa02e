// What does not change between two reports: names and groups of articles, in the order of the lines.
#pragma once

#include "reports/lines/TextTemplate.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace norvane::reports
{

/// The key of a line as a text, by which it is searched; null is not the same as an empty text.
[[nodiscard]] std::string keyTextOf(const store::Value& key);

/// Records in the order of a report's lines. The first field of a row is the key of the line.
class RecordRows
{
public:
    void add(LineFields row);
    [[nodiscard]] const std::vector<LineFields>& rows() const { return m_rows; }
    [[nodiscard]] std::optional<std::size_t> placeOf(const store::Value& key) const;

    std::vector<store::Value> others; ///< keys that have a place but no record

private:
    std::vector<LineFields> m_rows;
    std::unordered_map<std::string, std::size_t> m_places;
};

/// The records of the latest reports of a form. They are read again once the database has changed. Reports
/// that are made in different threads share them.
class RecordCache
{
public:
    /// A state of a database file; see store::fileChanges().
    struct State {
        QString file;
        std::uint32_t changes = 0;
        bool operator==(const State&) const = default;
    };

    /// @return nullptr if the records of @p statement were not kept in this state.
    [[nodiscard]] std::shared_ptr<const RecordRows> find(const State& state,
                                                         const std::string& statement) const;
    void keep(const State& state, const std::string& statement, std::shared_ptr<const RecordRows> records);

private:
    mutable std::mutex m_mutex;
    State m_state;
    std::unordered_map<std::string, std::shared_ptr<const RecordRows>> m_records; ///< by their statement
};

} // namespace norvane::reports
