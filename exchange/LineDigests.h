// Digests of the lines of a register file: what a file held is remembered and compared without its text.
#pragma once

#include <QtGlobal>

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvane::exchange
{

/// One for each line, sorted. A file that is not made of lines has one.
using Digests = std::vector<std::uint64_t>;

/// Makes the digests of a file's lines, which come in their order. Registers know the records of most files
/// by their place, so there the same line at another place has another digest.
class LineDigester
{
public:
    /// @param file number of a register file; the lines of one without a table are never counted.
    explicit LineDigester(int file);
    [[nodiscard]] std::uint64_t next(std::string_view line);
    /// Whether a line has another digest at another place.
    [[nodiscard]] bool isPlaced() const { return m_isPlaced; }

private:
    bool m_isPlaced;
    std::uint64_t m_place = 0;
};

/// How many records differ: a changed record is in both as another line, an added or removed one in only one
/// of them.
[[nodiscard]] qint64 differences(const Digests& now, const Digests& then);

[[nodiscard]] Digests inBoth(const Digests& left, const Digests& right);

/// Digest of any bytes, the same on every machine and in every later version.
[[nodiscard]] std::uint64_t digestOf(std::string_view bytes, std::uint64_t seed = 0);

} // namespace norvane::exchange
