#include "packaging/package.h"

#include <filesystem>
#include <optional>

#include "lib/install-layout.h"
#include "packaging/app-check.h"
#include "packaging/package-content.h"
#include "packaging/replacement.h"

namespace fs = std::filesystem;

namespace {

// The package's path, with links in its folder resolved. Throws if it is in the application.
fs::path ResolveOut(const std::string& app, const std::string& out) {
    std::error_code error;
    const fs::path folder = fs::canonical(fs::absolute(out).parent_path(), error);
    if (error) {
        throw PackageError(out, "its folder can't be opened: " + error.message(),
                           "make the folder");
    }
    fs::path path = folder / fs::path(out).filename();
    const fs::file_type type = fs::symlink_status(path, error).type();
    if (!path.has_filename() || type == fs::file_type::directory) {
        throw PackageError(out, "is a folder", "name the file to make");
    }
    if (type != fs::file_type::not_found && type != fs::file_type::regular) {
        throw PackageError(out, "isn't a regular file", "name the file to make");
    }
    for (fs::path above = folder;; above = above.parent_path()) {
        if (fs::equivalent(above, app, error)) {
            throw PackageError(out, "is in the application folder", "make the package elsewhere");
        }
        if (above == above.parent_path()) {
            return path;
        }
    }
}

// Reads the package that is to be replaced, if there is one.
std::optional<PackageContent> ReadPrevious(const fs::path& path, const std::string& out,
                                           const Progress& progress) {
    std::error_code error;
    if (!fs::exists(path, error)) {
        return std::nullopt;
    }
    std::string reason = "has no client";
    try {
        const PackageContent content = ReadPackage(path, progress);
        if (content.has_client) {
            return content;
        }
    } catch (const PackageError& failure) {
        reason = failure.faults().front().what;
    }
    throw PackageError(out, "exists and isn't a complete package: it " + reason,
                       "remove it first, or name another file");
}

std::vector<std::string> WarningsAbout(const std::string& out, const PackageContent& previous,
                                       int number, const std::string& digest) {
    const std::string was = out + ": was build " + std::to_string(previous.build_number);
    const std::string advice = "; raise build_version in " + std::string(install_layout::kInfo);
    if (previous.build_number > number) {
        return {was + ", whose users would not get build " + std::to_string(number) + advice};
    }
    if (previous.build_number == number && previous.digest != digest) {
        return {was + " too, with other content, whose users would not get this one" + advice};
    }
    return {};
}

Summary Describe(const Application& application) {
    Summary summary;
    summary.build_number = application.build_number;
    summary.entries = application.tree.nodes.size();
    summary.info_plist = application.info_plist;
    for (const std::string& path : application.left_out) {
        summary.warnings.push_back(path + ": left out, as it isn't part of an application");
    }
    return summary;
}

// Writes all entries, the client last, and checks that the application didn't change meanwhile.
void Write(const Application& application, const std::string& app, PackageWriter& writer) {
    for (const auto& [name, node] : application.tree.nodes) {
        if (name != install_layout::kClient) {
            writer.add(app, name, node);
        }
    }
    writer.add(app, install_layout::kClient, application.tree.nodes.at(install_layout::kClient));
    writer.finish();
    AppTree now = ReadTree(app);
    RemoveDesktopFiles(now);
    if (!(now == application.tree)) {
        throw PackageError(app, "was changed while it was read", "pack when nothing writes to it");
    }
}

}  // namespace

Summary MakePackage(const std::string& app, const std::string& out, const PackageOptions& options,
                    const Progress& progress) {
    const Application application = ReadApplication(app, app);
    const fs::path path = ResolveOut(app, out);
    const auto previous = ReadPrevious(path, out, progress);
    RequireNewer(application.build_number, app, options, progress);

    std::int64_t total = 0;
    for (const auto& [name, node] : application.tree.nodes) {
        total += node.size;
    }
    const Replacement file(path);
    PackageWriter writer(options.format, file.fd(), out, progress, total);
    Write(application, app, writer);

    Summary summary = Describe(application);
    const PackageContent content = ReadPackage(file.temporary(), progress);
    if (previous) {
        for (const std::string& warning :
             WarningsAbout(out, *previous, application.build_number, content.digest)) {
            summary.warnings.push_back(warning);
        }
    }
    summary.size = SizeOf(file.temporary());
    summary.sha256 = Sha256Of(file.temporary());
    file.commit();
    return summary;
}

Summary CheckFolder(const std::string& app, const PackageOptions& options) {
    const Application application = ReadApplication(app, app);
    RequireNewer(application.build_number, app, options, [](auto, auto) { return true; });
    return Describe(application);
}

void RequireNewer(int build_number, const std::string& where, const PackageOptions& options,
                  const Progress& progress) {
    if (options.newer_than.empty()) {
        return;
    }
    const int other = ReadPackage(options.newer_than, progress).build_number;
    if (other == 0) {
        throw PackageError(options.newer_than, "has no build number", "name a package");
    }
    if (build_number <= other) {
        throw PackageError(where,
                           "is build " + std::to_string(build_number) + ", not newer than build " +
                               std::to_string(other) + " of " + options.newer_than,
                           "raise build_version in " + std::string(install_layout::kInfo));
    }
}
