#pragma once

// One service run per user at a time, whatever copy of the launcher runs
// it: two bundles of the same user (one installed, one on a mounted disk
// image) meet on this lock although each holds the instance of its own
// executable. It lives in the same private places as the instance locks.
class UserServiceLock {
public:
    UserServiceLock() = default;
    ~UserServiceLock();
    UserServiceLock(const UserServiceLock&) = delete;
    UserServiceLock& operator=(const UserServiceLock&) = delete;

    // Waits, without a time limit, until this process holds the current
    // user's lock. Returns true once held; false when no place could hold a
    // lock, in which case the run goes on unguarded rather than not at all.
    bool acquire();
    // Gives the lock back; nothing when it is not held.
    void release();

private:
    int handle_ = -1;
};
