// The rows that Layout.cpp reads; only it needs them.
#pragma once

#include <vector>

namespace bank
{

/// Capacity from the register's memory file: the number in this column, counted from 1.
struct Memory {
    int column;
};

struct Room {
    int records = 0;
    int memoryColumn = 0;

    // Rows write either form directly.
    Room(int fixed) : records(fixed) {}                  // NOLINT(google-explicit-constructor)
    Room(Memory memory) : memoryColumn(memory.column) {} // NOLINT(google-explicit-constructor)
};

struct LayoutRow {
    int code;
    const char* columns;
    Room onVelmar;
    Room onDorvik;
};

/// Ascending by code.
[[nodiscard]] const std::vector<LayoutRow>& layoutTable();

} // namespace bank
