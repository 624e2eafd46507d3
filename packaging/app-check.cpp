#include "packaging/app-check.h"

#include <cstdlib>
#include <filesystem>

#include "lib/install-layout.h"
#include "lib/platform/open-bundle.h"
#include "packaging/build-number.h"

namespace fs = std::filesystem;

namespace {

const std::string kClient = install_layout::kClient;
const std::string kInfo = install_layout::kInfo;
const std::string kInfoPlist = install_layout::kInfoPlist;

// The only application in a folder; empty when there is none, or more.
std::string ApplicationIn(const std::string& folder) {
    std::string found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (fs::is_directory(entry->path() / "Contents", error)) {
            found = found.empty() ? entry->path().filename().native() : "/";
        }
    }
    return found == "/" ? "" : found;
}

// Throws unless app is an application folder. The advice names the folder that was probably meant.
void RequireApplicationFolder(const std::string& app, const std::string& shown_as) {
    std::error_code error;
    const fs::path folder = fs::canonical(app, error);
    if (error) {
        throw PackageError(shown_as, "can't be opened: " + error.message(),
                           "name the application folder");
    }
    if (!fs::is_directory(folder, error)) {
        throw PackageError(shown_as, "isn't an application folder",
                           "name the folder that contains Contents");
    }
    if (IsBundle(app)) {
        throw PackageError(shown_as, "is a launcher's bundle, not the client that goes into one",
                           "name the client's application folder");
    }
    if (fs::is_directory(folder / "Contents", error)) {
        return;
    }
    if (folder.filename() == "Contents") {
        throw PackageError(shown_as, "is the folder Contents of an application",
                           "name the folder above it: " + folder.parent_path().native());
    }
    const std::string inner = ApplicationIn(app);
    throw PackageError(shown_as, "has no folder Contents",
                       inner.empty() ? "name the application folder, which has one"
                                     : "name the application in it: " + shown_as + "/" + inner);
}

// Checks the property list and the executable that it names. The system starts that one, not the
// one that the launcher looks for.
void CheckInfoPlist(const std::string& app, Application& application, TreeCheck& check) {
    if (!check.requireFile(kInfoPlist, "without it the application can't be opened")) {
        return;
    }
    Fault fault;
    if (!ReadInfoPlist(app + "/" + kInfoPlist, application.info_plist, fault)) {
        check.add(kInfoPlist, fault.what, fault.advice);
        return;
    }
    const std::string name = platform::BundleExecutable(application.info_plist).toStdString();
    const std::string path = "Contents/MacOS/" + name;
    if (path != kClient && check.requireExecutable(path, "CFBundleExecutable in " + kInfoPlist +
                                                             " names it; add it, or change that")) {
        CheckKind(app, path, check);
    }
}

}  // namespace

Application ReadApplication(const std::string& app, const std::string& shown_as) {
    RequireApplicationFolder(app, shown_as);
    Application application = {ReadTree(app), {}, 0, {}, ExecutableKind::None};
    application.left_out = RemoveDesktopFiles(application.tree);
    TreeCheck check(application.tree);
    if (check.requireExecutable(kClient, "put the client's executable there")) {
        application.client = CheckKind(app, kClient, check);
    }
    CheckInfoPlist(app, application, check);
    Fault fault;
    if (check.requireFile(kInfo, "write the version file, see docs/shipping.md") &&
        !ReadBuildNumber(app + "/" + kInfo, application.build_number, fault)) {
        check.add(kInfo, fault.what, fault.advice);
    }
    ThrowIfAny(Below(shown_as, check.faults()));
    return application;
}

ExecutableKind CheckKind(const std::string& root, const std::string& path, TreeCheck& check) {
    ExecutableKind kind = ExecutableKind::None;
    try {
        kind = KindOf(root + "/" + path);
    } catch (const PackageError& error) {
        check.add(path, error.faults().front().what, "");
        return kind;
    }
    if (kind == ExecutableKind::None) {
        check.add(path,
                  "is neither a program (ELF, Mach-O) nor a script whose first line is #! and an "
                  "interpreter's path",
                  "put the built program there");
    }
    return kind;
}

bool IsBundle(const std::string& folder) {
    std::error_code error;
    const fs::path contents = fs::path(folder) / "Contents";
    return fs::is_directory(contents / "Resources/package", error) ||
           fs::exists(contents / "MacOS/tarnwell-launcher", error);
}
