#include "bundle_layout.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

namespace layout {

// strtol reads what atoi reads and, unlike atoi, defines what happens past
// the range of long; the clamp then keeps the value inside int.
int BuildNumber(const std::string& text)
{
    const long value = std::strtol(text.c_str(), nullptr, 10);
    if (value > INT_MAX) {
        return INT_MAX;
    }
    if (value < INT_MIN) {
        return INT_MIN;
    }
    return static_cast<int>(value);
}

bool IsBuildNumberInRange(const std::string& text)
{
    errno = 0;
    const long value = std::strtol(text.c_str(), nullptr, 10);
    return errno != ERANGE && value <= INT_MAX && value >= INT_MIN;
}

bool IsPlainBuildNumber(const std::string& text, int* build)
{
    if (text.empty() || text.size() > 10) {
        return false;
    }
    long long value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') {
            return false;
        }
        value = value * 10 + (c - '0');
    }
    if (value <= 0 || value > INT_MAX) {
        return false;
    }
    *build = static_cast<int>(value);
    return true;
}

} // namespace layout
