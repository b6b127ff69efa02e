// A user whom read-only files stop: root may write them all.
#pragma once

#include <sys/fsuid.h>
#include <unistd.h>

namespace norvane::test
{

/// While it lives, this thread of root reaches files as a user of no group that owns them. Any other user's
/// own rights count as they are.
class PlainUser
{
public:
    PlainUser() { setfsuid(nobody); }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;
    ~PlainUser() { setfsuid(geteuid()); }

private:
    static constexpr uid_t nobody = 65534;
};

} // namespace norvane::test
