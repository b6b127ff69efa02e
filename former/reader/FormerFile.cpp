// Opening and reading; see FormerFile.h.
#include "former/reader/FormerFile.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace norvane::former
{
namespace
{

/// Where the first page has the password and the day of making, once the library has deciphered the page.
constexpr std::size_t passwordAt = 0x42;
constexpr std::size_t oldPasswordSize = 20;
constexpr std::size_t passwordSize = 40;
constexpr int madeAt = 0x72;

/// Where every file of the engine has its name and version.
constexpr std::size_t nameAt = 4;
constexpr std::string_view engineName = "Standard ";
constexpr std::size_t versionAt = 0x14;

/// Checks the file first, because the library takes any file for a database.
Refusal lookAt(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    std::array<char, 0x18> head{};
    if (!file)
        return Refusal::NotReadable;
    file.read(head.data(), head.size());
    if (file.gcount() != static_cast<std::streamsize>(head.size()))
        return Refusal::NotFormer;
    if (std::string_view(head.data() + nameAt, engineName.size()) != engineName)
        return Refusal::NotFormer;
    return head[versionAt] > MDB_VER_JET4 ? Refusal::NewerFormat : Refusal::None;
}

/// Whether the deciphered first page holds a password. In the format of 2000 the password is masked with the
/// day on which the file was made.
bool hasPassword(MdbHandle& file)
{
    std::array<unsigned char, 4> mask{};
    const bool isOld = IS_JET3((&file));
    if (!isOld) {
        const auto made = static_cast<std::int32_t>(mdb_get_double(file.pg_buf, madeAt));
        std::memcpy(mask.data(), &made, mask.size());
    }
    for (std::size_t i = 0; i < (isOld ? oldPasswordSize : passwordSize); ++i) {
        if ((file.pg_buf[passwordAt + i] ^ mask.at(i % mask.size())) != 0)
            return true;
    }
    return false;
}

struct FreeTable {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};
using Table = std::unique_ptr<MdbTableDef, FreeTable>;

/// The library confuses two names: its col_prec has the number of places.
TableShape definitionOf(const MdbTableDef& table)
{
    TableShape definition{table.name, table.num_rows, {}};
    for (guint i = 0; i < table.num_cols; ++i) {
        const auto* const column = static_cast<const MdbColumn*>(g_ptr_array_index(table.columns, i));
        definition.fields.push_back({column->name, column->col_type, column->col_prec});
    }
    return definition;
}

/// Sets @p texts to the record that the library has just fetched. @return false for a damaged one.
bool setRow(std::vector<std::string>& texts, MdbTableDef& table, const TableShape& definition)
{
    MdbHandle& file = *table.entry->mdb;
    int start = 0;
    size_t size = 0;
    std::array<MdbField, MDB_MAX_COLS> fields{};
    if (mdb_find_row(&file, static_cast<int>(table.cur_row) - 1, &start, &size) != 0)
        return false;
    constexpr int offsetMask = 0x1fff; // the bits above mark deleted and moved records
    if (mdb_crack_row(&table, start & offsetMask, size, fields.data()) < 0)
        return false;
    for (std::size_t i = 0; i < texts.size(); ++i)
        setFieldText(texts[i], file, fields.at(i), definition.fields[i]);
    return true;
}

/// What the library returns for a record of a page that is cut off.
bool isEmptyRow(const std::vector<std::string>& texts, const TableShape& definition)
{
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (definition.fields[i].type != MDB_BOOL && texts[i] != nullText)
            return false;
    }
    return true;
}

} // namespace

FormerFile::FormerFile(const char* path) : m_refusal(lookAt(path))
{
    if (m_refusal != Refusal::None)
        return;
    m_file.reset(mdb_open(path, MDB_NOFLAGS));
    // The password is in the page that opening has read; the list of tables comes after it.
    if (m_file != nullptr && hasPassword(*m_file)) {
        m_refusal = Refusal::Password;
    } else if (m_file == nullptr || mdb_read_catalog(m_file.get(), MDB_TABLE) == nullptr) {
        m_refusal = Refusal::NotFormer;
    } else {
        m_isCutOff =
            std::filesystem::file_size(path) % static_cast<std::uintmax_t>(m_file->fmt->pg_size) != 0;
    }
}

const char* FormerFile::format() const
{
    return IS_JET3(m_file) ? "1997" : "2000";
}

std::vector<std::string> FormerFile::tableNames() const
{
    std::vector<std::string> names;
    for (guint i = 0; i < m_file->num_catalog; ++i) {
        auto* const entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(m_file->catalog, i));
        if (mdb_is_user_table(entry) != 0)
            names.emplace_back(entry->object_name);
    }
    return names;
}

void FormerFile::readTable(const std::string& name, const std::function<void(const TableShape&)>& begin,
                           const std::function<void(std::span<const std::string>)>& takeRow) const
{
    std::string wanted = name;
    const Table table(mdb_read_table_by_name(m_file.get(), wanted.data(), MDB_TABLE));
    if (table == nullptr || mdb_read_columns(table.get()) == nullptr || table->num_cols > MDB_MAX_COLS)
        return;
    const TableShape definition = definitionOf(*table);
    begin(definition);
    std::vector<std::string> texts(definition.fields.size());
    mdb_rewind_table(table.get());
    while (mdb_fetch_row(table.get()) != 0) {
        if (setRow(texts, *table, definition) && !(m_isCutOff && isEmptyRow(texts, definition)))
            takeRow(texts);
    }
}

} // namespace norvane::former
