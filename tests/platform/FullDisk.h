// A disk that has just filled up, for the files that a test writes.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace norvane::test
{

/// While it lives, no file of this process may grow beyond so many bytes.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        (void)std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

} // namespace norvane::test
