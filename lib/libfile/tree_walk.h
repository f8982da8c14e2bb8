// The one walk over a directory tree: depth first, entries in the order the
// folder listing gives them, a folder's own visit before its contents and a
// second one after them. Links are never followed below the root. It logs
// nothing and changes nothing: what happens to each entry, and what a
// failure means, is the visitor's to say.
#pragma once

#include <string>
#include <sys/stat.h>

namespace treewalk {

struct Entry {
    std::string path;     // the root, or the root + "/" + relative
    std::string relative; // empty for the root
    struct stat st;       // lstat of path; unset when looking it up failed
};

enum class Next {
    Go,   // carry on (into a folder's contents, after Enter)
    Skip, // from Enter: pass over the folder's contents and its Leave
    Stop, // end the walk
};

// The step that failed on an entry, for Visitor::Failed.
enum class Step {
    Stat, // lstat of the entry; Go passes over it
    Open, // opening the folder; Go passes over its contents and its Leave
    Read, // reading the folder's listing; Go ends the listing there, Leave follows
};

class Visitor {
public:
    virtual ~Visitor() = default;
    // Every entry, the root first; a folder before its contents.
    virtual Next Enter(const Entry& entry) = 0;
    // A folder after its contents.
    virtual Next Leave(const Entry&) { return Next::Go; }
    // A system call failed with error; anything but Go ends the walk.
    virtual Next Failed(const Entry&, Step, int) { return Next::Stop; }
    // After a Stop: the entry where the walk stopped, then each folder that
    // holds it, up to the root.
    virtual void Stopped(const Entry&) {}
};

// Walks root and everything below it. The root is looked up with lstat, or
// with stat when follow_root_link is set (a root that is a link to a folder
// is then walked as that folder). Returns false when the visitor stopped the
// walk, true otherwise.
bool Walk(const std::string& root, Visitor& visitor, bool follow_root_link = false);

} // namespace treewalk
