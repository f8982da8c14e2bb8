// What makes a set of entries a package the launcher can extract safely:
// the checks run identically on a folder being packed and on a package
// being checked, so both refuse the same things with the same words.
#include <algorithm>
#include <deque>
#include <map>
#include <set>

#include "vpkpack_p.h"

namespace vpkpack {

namespace {

// A chain of links longer than this is taken for a loop, as the kernel does.
constexpr int kMaxLinkHops = 40;

std::vector<std::string> SplitPath(const std::string& path)
{
    std::vector<std::string> parts;
    size_t start = 0;
    while (start <= path.size()) {
        const size_t slash = path.find('/', start);
        const size_t end = slash == std::string::npos ? path.size() : slash;
        parts.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

std::string JoinPath(const std::vector<std::string>& parts)
{
    std::string path;
    for (const std::string& part : parts) {
        if (!path.empty()) {
            path += '/';
        }
        path += part;
    }
    return path;
}

std::string ParentOf(const std::string& name)
{
    const size_t slash = name.rfind('/');
    return slash == std::string::npos ? std::string() : name.substr(0, slash);
}

enum class Resolution { Inside, Outside, Loop };

// Follows a link's target through the bundle, splicing in the targets of
// the links met on the way, since a chain of harmless-looking relative links
// can still climb out ("a -> ..", "b -> a/../x").
Resolution Resolve(const std::string& link, const std::map<std::string, std::string>& links)
{
    std::vector<std::string> folder;
    const std::string parent = ParentOf(link);
    if (!parent.empty()) {
        folder = SplitPath(parent);
    }
    const std::vector<std::string> first = SplitPath(links.at(link));
    std::deque<std::string> pending(first.begin(), first.end());
    int hops = 0;
    while (!pending.empty()) {
        const std::string part = pending.front();
        pending.pop_front();
        if (part.empty() || part == ".") {
            continue;
        }
        if (part == "..") {
            if (folder.empty()) {
                return Resolution::Outside;
            }
            folder.pop_back();
            continue;
        }
        folder.push_back(part);
        const auto next = links.find(JoinPath(folder));
        if (next == links.end()) {
            continue;
        }
        if (++hops > kMaxLinkHops) {
            return Resolution::Loop;
        }
        folder.pop_back();
        if (!next->second.empty() && next->second[0] == '/') {
            return Resolution::Outside;
        }
        const std::vector<std::string> spliced = SplitPath(next->second);
        pending.insert(pending.begin(), spliced.begin(), spliced.end());
    }
    return Resolution::Inside;
}

// Byte order with "/" below every other byte: a folder's contents follow
// the folder directly, before any sibling whose name merely extends it.
bool TreeLess(const std::string& a, const std::string& b)
{
    const auto key = [](char c) { return c == '/' ? 0 : static_cast<unsigned char>(c) + 1; };
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [&](char x, char y) { return key(x) < key(y); });
}

const Entry* Find(const std::vector<Entry>& entries, const std::string& name)
{
    for (const Entry& entry : entries) {
        if (entry.name == name) {
            return &entry;
        }
    }
    return nullptr;
}

} // namespace

Status Refuse(Error error, const std::string& entry, const std::string& detail)
{
    Status status;
    status.error = error;
    status.entry = entry;
    status.detail = detail;
    return status;
}

Status NormaliseName(const std::string& stored, std::string* name)
{
    if (stored.empty()) {
        return Refuse(Error::ArchiveError, stored, "entry without a name");
    }
    if (stored[0] == '/') {
        return Refuse(Error::AbsoluteName, stored);
    }
    std::vector<std::string> kept;
    for (const std::string& part : SplitPath(stored)) {
        if (part == "..") {
            return Refuse(Error::DotDotName, stored);
        }
        if (!part.empty() && part != ".") {
            kept.push_back(part);
        }
    }
    *name = JoinPath(kept);
    return {};
}

Status CheckEntries(const std::vector<Entry>& entries)
{
    std::set<std::string> seen;
    std::map<std::string, std::string> links;
    for (const Entry& entry : entries) {
        if (!seen.insert(entry.name).second) {
            return Refuse(Error::DuplicateEntry, entry.name);
        }
        if (entry.hard_link) {
            return Refuse(Error::HardLink, entry.name);
        }
        if (entry.type == EntryType::Other) {
            return Refuse(Error::UnsupportedType, entry.name);
        }
        if (entry.type == EntryType::Symlink) {
            links[entry.name] = entry.link_target;
        }
    }
    for (const Entry& entry : entries) {
        for (size_t slash = entry.name.find('/'); slash != std::string::npos;
             slash = entry.name.find('/', slash + 1)) {
            const std::string prefix = entry.name.substr(0, slash);
            if (links.count(prefix) != 0) {
                return Refuse(Error::BelowSymlink, entry.name, "'" + prefix + "' is a symbolic link");
            }
        }
    }
    for (const Entry& entry : entries) {
        if (entry.type != EntryType::Symlink) {
            continue;
        }
        const std::string detail = "-> " + entry.link_target;
        if (entry.link_target.empty()) {
            return Refuse(Error::EscapingSymlink, entry.name, "empty target");
        }
        if (entry.link_target[0] == '/') {
            return Refuse(Error::AbsoluteSymlink, entry.name, detail);
        }
        switch (Resolve(entry.name, links)) {
        case Resolution::Inside:
            break;
        case Resolution::Outside:
            return Refuse(Error::EscapingSymlink, entry.name, detail);
        case Resolution::Loop:
            return Refuse(Error::SymlinkLoop, entry.name, detail);
        }
    }
    return {};
}

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

Status CheckBundleFiles(const std::vector<Entry>& entries, const std::string& ui_entry)
{
    const Entry* info = Find(entries, kInfoEntry);
    if (info == nullptr) {
        return Refuse(Error::MissingInfo, kInfoEntry);
    }
    if (info->type != EntryType::File) {
        return Refuse(Error::NotRegularFile, kInfoEntry);
    }
    const Entry* ui = Find(entries, ui_entry);
    if (ui == nullptr) {
        return Refuse(Error::MissingUi, ui_entry);
    }
    if (ui->type != EntryType::File) {
        return Refuse(Error::NotRegularFile, ui_entry);
    }
    if (!ui->executable) {
        return Refuse(Error::UiNotExecutable, ui_entry);
    }
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
