// Launch Services: the desktop's record of application bundles and the way
// it starts one. macOS has it built in; elsewhere the little that the
// launcher needs is emulated.
#pragma once

#include <string>

namespace platform {

class LaunchServices {
public:
    virtual ~LaunchServices() = default;

    // Makes the desktop forget what it recorded about the bundle at `bundle`.
    // Returns 0, or the non-zero status of the failed request.
    virtual int Unregister(const std::string& bundle) = 0;

    // Starts the application bundle at `bundle`, unless its executable
    // already runs for this user. Returns 0 once it runs, or the non-zero
    // status of the failure (an errno value on Linux).
    //
    // On Linux what the program writes to its standard output and error
    // goes to the file `output`, made afresh for each start (a file that
    // cannot be made leaves the output unkept, and the start goes on).
    // macOS keeps the output of the programs it starts in its own log, so
    // there `output` is not used.
    virtual int Open(const std::string& bundle, const std::string& output) = 0;
};

// The platform's own implementation; it lives until the process exits.
LaunchServices& SystemLaunchServices();

} // namespace platform
