#include "package_rules.h"

#include <archive_entry.h>
#include <deque>
#include <map>
#include <set>

#include "bundle_layout.h"

namespace pkgrules {

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

const Entry* Find(const std::vector<Entry>& entries, const std::string& name)
{
    for (const Entry& entry : entries) {
        if (entry.name == name) {
            return &entry;
        }
    }
    return nullptr;
}

const char* Reason(Error error)
{
    switch (error) {
    case Error::None:
        return "no error";
    case Error::NotFound:
        return "no such file or folder";
    case Error::PermissionDenied:
        return "permission denied";
    case Error::NoSpace:
        return "no space left on device";
    case Error::IoError:
        return "input/output error";
    case Error::NoOutputFolder:
        return "output folder does not exist";
    case Error::NotAPackage:
        return "not a package (tar.zst, zip, tar.gz or tar.xz)";
    case Error::NotAFolder:
        return "not a folder";
    case Error::OutputInsideBundle:
        return "output would lie inside the bundle";
    case Error::ArchiveError:
        return "archive error";
    case Error::ChangedWhilePacking:
        return "file changed while it was being packed";
    case Error::TooLarge:
        return "file too large";
    case Error::HardLink:
        return "hard links are not allowed";
    case Error::AbsoluteSymlink:
        return "symbolic link with an absolute target";
    case Error::EscapingSymlink:
        return "symbolic link leads out of the bundle";
    case Error::SymlinkLoop:
        return "symbolic link loop";
    case Error::BelowSymlink:
        return "entry below a symbolic link";
    case Error::DotDotName:
        return "entry name contains '..'";
    case Error::AbsoluteName:
        return "absolute entry name";
    case Error::UnsupportedType:
        return "not a file, folder or symbolic link";
    case Error::DuplicateEntry:
        return "duplicate entry";
    case Error::MissingInfo:
        return "missing version file";
    case Error::BadInfo:
        return "version file is not valid INI";
    case Error::MissingBuildVersion:
        return "no build_version in the [Version] section";
    case Error::BadBuildVersion:
        return "build_version is not a decimal number above 0";
    case Error::BadInfoPlist:
        return "unreadable property list";
    case Error::ForeignUiName:
        return "property list names another UI executable than calderix-drive-ui";
    case Error::MissingUi:
        return "missing UI executable";
    case Error::UiNotExecutable:
        return "UI executable is not executable";
    case Error::NotRegularFile:
        return "not a regular file";
    case Error::OutOfOrder:
        return "entry out of order";
    case Error::NotExecutable:
        return "not an executable file";
    case Error::NoPlatformPlugin:
        return "no Qt platform plug-in";
    case Error::BuildMismatch:
        return "build numbers differ";
    }
    return "unknown error";
}

EntryType TypeOf(archive_entry* header)
{
    switch (archive_entry_filetype(header)) {
    case AE_IFDIR:
        return EntryType::Folder;
    case AE_IFREG:
        return EntryType::File;
    case AE_IFLNK:
        return EntryType::Symlink;
    default:
        return EntryType::Other;
    }
}

// The stored bytes first: they are what the launcher's extractor uses.
const char* PathnameOf(archive_entry* header)
{
    const char* name = archive_entry_pathname(header);
    return name != nullptr ? name : archive_entry_pathname_utf8(header);
}

} // namespace

std::string Status::Message() const
{
    std::string text = std::string(Reason(error)) + ": '" + entry + "'";
    if (!detail.empty()) {
        text += " (" + detail + ")";
    }
    return text;
}

Status Refuse(Error error, const std::string& entry, const std::string& detail)
{
    Status status;
    status.error = error;
    status.entry = entry;
    status.detail = detail;
    return status;
}

Status NormaliseName(const std::string& stored, Names names, std::string* name)
{
    if (stored.empty()) {
        return Refuse(Error::ArchiveError, stored, "entry without a name");
    }
    if (stored[0] == '/' && names == Names::Relative) {
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

Status CheckEntries(const std::vector<Entry>& entries, std::vector<Status>* all)
{
    // Three passes, each rule in the entries' order: what an entry is, what
    // lies above it, where a link leads. An entry refused once is not
    // looked at again.
    std::vector<Status> refused;
    std::set<std::string> refused_names;
    const auto refuse = [&](const Status& status) {
        refused.push_back(status);
        refused_names.insert(status.entry);
        return all != nullptr;
    };
    std::set<std::string> seen;
    std::map<std::string, std::string> links;
    for (const Entry& entry : entries) {
        Status status;
        if (!seen.insert(entry.name).second) {
            status = Refuse(Error::DuplicateEntry, entry.name);
        } else if (entry.hard_link) {
            status = Refuse(Error::HardLink, entry.name);
        } else if (entry.type == EntryType::Other) {
            status = Refuse(Error::UnsupportedType, entry.name);
        } else if (entry.type == EntryType::Symlink) {
            links[entry.name] = entry.link_target;
        }
        if (!status.ok() && !refuse(status)) {
            return status;
        }
    }
    for (const Entry& entry : entries) {
        for (size_t slash = entry.name.find('/');
             slash != std::string::npos && refused_names.count(entry.name) == 0;
             slash = entry.name.find('/', slash + 1)) {
            const std::string prefix = entry.name.substr(0, slash);
            if (links.count(prefix) != 0 &&
                !refuse(Refuse(Error::BelowSymlink, entry.name, "'" + prefix + "' is a symbolic link"))) {
                return refused.front();
            }
        }
    }
    for (const Entry& entry : entries) {
        if (entry.type != EntryType::Symlink || refused_names.count(entry.name) != 0) {
            continue;
        }
        const std::string detail = "-> " + entry.link_target;
        Status status;
        if (entry.link_target.empty()) {
            status = Refuse(Error::EscapingSymlink, entry.name, "empty target");
        } else if (entry.link_target[0] == '/') {
            status = Refuse(Error::AbsoluteSymlink, entry.name, detail);
        } else {
            switch (Resolve(entry.name, links)) {
            case Resolution::Inside:
                break;
            case Resolution::Outside:
                status = Refuse(Error::EscapingSymlink, entry.name, detail);
                break;
            case Resolution::Loop:
                status = Refuse(Error::SymlinkLoop, entry.name, detail);
                break;
            }
        }
        if (!status.ok() && !refuse(status)) {
            return status;
        }
    }
    if (all != nullptr) {
        all->insert(all->end(), refused.begin(), refused.end());
    }
    return refused.empty() ? Status() : refused.front();
}

const char* StoredName(archive_entry* header)
{
    const char* name = PathnameOf(header);
    return name != nullptr ? name : "";
}

Status EntryFromHeader(archive_entry* header, Names names, Entry* entry)
{
    Entry read;
    Status status = NormaliseName(StoredName(header), names, &read.name);
    if (!status.ok()) {
        return status;
    }
    read.type = TypeOf(header);
    read.executable = (archive_entry_perm(header) & 0111) != 0;
    read.hard_link = archive_entry_hardlink(header) != nullptr;
    const char* target = archive_entry_symlink(header);
    if (target == nullptr) {
        target = archive_entry_symlink_utf8(header);
    }
    read.link_target = target != nullptr ? target : "";
    read.size = archive_entry_size(header);
    *entry = read;
    return {};
}

Status CheckBundleFiles(const std::vector<Entry>& entries, const std::string& ui_entry,
                        std::vector<Status>* all)
{
    Status info;
    const Entry* info_entry = Find(entries, layout::kInfoEntry);
    if (info_entry == nullptr) {
        info = Refuse(Error::MissingInfo, layout::kInfoEntry);
    } else if (info_entry->type != EntryType::File) {
        info = Refuse(Error::NotRegularFile, layout::kInfoEntry);
    }
    Status ui;
    const Entry* ui_file = Find(entries, ui_entry);
    if (ui_file == nullptr) {
        ui = Refuse(Error::MissingUi, ui_entry);
    } else if (ui_file->type != EntryType::File) {
        ui = Refuse(Error::NotRegularFile, ui_entry);
    } else if (!ui_file->executable) {
        ui = Refuse(Error::UiNotExecutable, ui_entry);
    }
    for (const Status* status : {&info, &ui}) {
        if (all != nullptr && !status->ok()) {
            all->push_back(*status);
        }
    }
    return info.ok() ? ui : info;
}

} // namespace pkgrules
