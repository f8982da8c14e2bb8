// Changes to this process's environment that last as long as the object.
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

namespace launchertest {

// Every variable changed through it gets its old value (or absence) back
// when it goes away, so that tests sharing a process stay independent.
class ScopedEnv {
public:
    ScopedEnv() = default;
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;
    ~ScopedEnv()
    {
        for (auto it = saved_.rbegin(); it != saved_.rend(); ++it) {
            if (it->was_set) {
                setenv(it->name.c_str(), it->value.c_str(), 1);
            } else {
                unsetenv(it->name.c_str());
            }
        }
    }

    // False, with errno set, when the environment could not be changed.
    bool Set(const std::string& name, const std::string& value)
    {
        Save(name);
        return setenv(name.c_str(), value.c_str(), 1) == 0;
    }
    bool Unset(const std::string& name)
    {
        Save(name);
        return unsetenv(name.c_str()) == 0;
    }

private:
    struct Saved {
        std::string name;
        std::string value;
        bool was_set;
    };

    void Save(const std::string& name)
    {
        const char* value = getenv(name.c_str());
        saved_.push_back(Saved{name, value != nullptr ? value : "", value != nullptr});
    }

    std::vector<Saved> saved_;
};

} // namespace launchertest
