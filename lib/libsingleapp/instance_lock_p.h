#pragma once

// Platform hook of QtSingleApplication: everything that touches the operating
// system lives behind these few calls, the choice of places stays portable.

#include <QString>

namespace singleapp {

enum class LockStatus {
    Acquired,      // this process now holds the instance
    HeldElsewhere, // another live process holds it
    Unusable,      // this place cannot serve as a lock; try the next one
};

enum class FolderUse {
    Given, // named by the session: used only if already private, never created or changed
    Own,   // named by us: created with mode 0700 when missing, tightened to 0700 when wider
};

struct LockAttempt {
    LockStatus status = LockStatus::Unusable;
    int handle = -1; // valid only with Acquired; give it back with releaseInstanceLock
};

enum class LockWait {
    No,  // another holder gives HeldElsewhere at once
    Yes, // another holder is waited for, without a time limit
};

// Tries to take the lock file `fileName` in `folder`, waiting for another
// holder as `wait` says. The folder is used only if it is a real folder (not
// a symlink) owned by the current user, made private as `use` allows.
// Leaves the lock file on disk.
LockAttempt tryInstanceLock(const QString& folder, const QString& fileName, FolderUse use,
                            LockWait wait = LockWait::No);

// Drops a lock taken by tryInstanceLock. The lock file stays where it is.
void releaseInstanceLock(int handle);

// The identity of the user in lock and folder names.
unsigned currentUserId();

} // namespace singleapp
