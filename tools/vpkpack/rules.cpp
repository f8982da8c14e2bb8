// How vpkpack lays a bundle out in a package: the UI executable's name from
// the property list, and the order of the entries. What makes an entry safe
// to extract lives in package_rules, which the launcher's extractor applies
// as well.
#include <algorithm>

#include "vpkpack_p.h"

namespace vpkpack {

namespace {

// Byte order with "/" below every other byte: a folder's contents follow
// the folder directly, before any sibling whose name merely extends it.
bool TreeLess(const std::string& a, const std::string& b)
{
    const auto key = [](char c) { return c == '/' ? 0 : static_cast<unsigned char>(c) + 1; };
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [&](char x, char y) { return key(x) < key(y); });
}

} // namespace

Status UiEntryFromPlist(const std::string& plist, bool present, std::string* ui_entry)
{
    std::string name;
    if (present) {
        Status status = ReadPlistString(plist, "CFBundleExecutable", &name);
        if (!status.ok()) {
            return status;
        }
        // The launcher looks for this one name to tell a complete
        // installation, so a bundle starting anything else would be
        // reinstalled on every start.
        if (!name.empty() && name != kUiName) {
            return Refuse(Error::ForeignUiName, kPlistEntry, "CFBundleExecutable is '" + name + "'");
        }
    }
    *ui_entry = layout::kUiEntry;
    return {};
}

void SortForPackage(std::vector<Entry>* entries, const std::string& ui_entry)
{
    std::stable_sort(entries->begin(), entries->end(),
                     [](const Entry& a, const Entry& b) { return TreeLess(a.name, b.name); });
    const auto rank = [&](const Entry& entry) {
        if (entry.name == kInfoEntry) {
            return 2;
        }
        return entry.name == ui_entry ? 1 : 0;
    };
    std::stable_sort(entries->begin(), entries->end(),
                     [&](const Entry& a, const Entry& b) { return rank(a) < rank(b); });
}

Status CheckOrder(const std::vector<Entry>& entries, const std::string& ui_entry)
{
    const size_t n = entries.size();
    if (n == 0 || entries[n - 1].name != kInfoEntry) {
        return Refuse(Error::OutOfOrder, kInfoEntry, "must be the last entry");
    }
    if (n < 2 || entries[n - 2].name != ui_entry) {
        return Refuse(Error::OutOfOrder, ui_entry, std::string("must come right before ") + kInfoEntry);
    }
    return {};
}

} // namespace vpkpack
