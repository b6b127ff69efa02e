// Which files a step of an exchange was to write, and whether it did.
#pragma once

#include <QMap>
#include <QStringList>

#include <cstdint>
#include <filesystem>
#include <optional>

namespace norvane::link
{

/// Of several files whose names differ from @p path in case only, keeps the one that was written last.
/// Otherwise one step writes "POLL190.txt" and the next reads an old "poll190.txt".
/// @throws RuntimeFailure with Failure::PathOrFileAccess if another one cannot be removed.
void keepLatestSpelling(const QString& path);

/// The files that a step is to write, as they were before it. That a file exists does not show that this step
/// wrote it: an old one looks the same. A file that was just written gets a time some seconds older, so that
/// writing the same bytes again can be distinguished from not writing, however coarse the file system's times
/// are.
class ExpectedFiles
{
public:
    /// Notes files of the working directory; @p names are matched without regard to case.
    /// @throws RuntimeFailure as keepLatestSpelling().
    explicit ExpectedFiles(const QStringList& names);

    /// After a tool has run: it may spell a file in another way than the one that was there.
    /// @throws RuntimeFailure as keepLatestSpelling().
    void keepLatestSpellings() const;

    [[nodiscard]] QStringList names() const { return m_before.keys(); }
    /// Whether the file is there and was written since.
    [[nodiscard]] bool wasWritten(const QString& name) const;
    [[nodiscard]] bool allWritten() const;

private:
    struct State {
        std::filesystem::file_time_type time;
        std::uintmax_t size;
        bool operator==(const State&) const = default;
    };
    [[nodiscard]] static std::optional<State> stateOf(const QString& name);
    static void setTimeBack(const QString& name);

    QMap<QString, std::optional<State>> m_before;
};

/// A file of the working directory with its age, in words for the user: "67.txt of 24/11/2026 18:03, 15 hours
/// old", or "no 67.txt".
[[nodiscard]] QString fileAndAge(const QString& name);

} // namespace norvane::link
