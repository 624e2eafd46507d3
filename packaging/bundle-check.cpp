#include "packaging/bundle-check.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "lib/install-layout.h"
#include "lib/platform/open-bundle.h"
#include "packaging/app-check.h"
#include "packaging/build-number.h"
#include "packaging/package-check.h"

namespace fs = std::filesystem;

namespace {

const std::string kInfo = install_layout::kInfo;
const std::string kInfoPlist = install_layout::kInfoPlist;
const std::string kResources = install_layout::kResources;
const std::string kPackage = kResources + "/" + install_layout::kPackage;
const std::string kIcon = kResources + "/" + install_layout::kIcon;
const std::string kPlugins = "Contents/Frameworks/plugins/platforms";
const std::string kLevelFile = install_layout::kLevelFile;

class BundleCheck {
  public:
    BundleCheck(const std::string& bundle, const Progress& progress)
        : bundle_(bundle), progress_(progress), tree_(ReadTree(bundle)), check_(tree_) {}

    Summary run() {
        checkAccess();
        checkVersions();
        checkFiles();
        checkPackage();
        ThrowIfAny(Below(bundle_, check_.faults()));
        return package_.summary;
    }

  private:
    // Other users of the machine run the bundle too.
    void checkAccess() {
        struct stat status;
        if (stat(bundle_.c_str(), &status) == 0) {
            checkAccess(".", status.st_mode);
        }
        for (const auto& [path, node] : tree_.nodes) {
            checkAccess(path, node.mode);
        }
    }

    void checkAccess(const std::string& path, mode_t mode) {
        const bool executable = S_ISDIR(mode) || (mode & S_IXUSR) != 0;
        const mode_t needed = executable ? S_IROTH | S_IXOTH : S_IROTH;
        if (!S_ISLNK(mode) && !check_.isFaulty(path) && (mode & needed) != needed) {
            check_.add(path, "isn't accessible to every user", "chmod -R go+rX the bundle");
        }
    }

    void checkVersions() {
        Fault fault;
        if (check_.requireFile(kInfo, "copy the INFO of the packed application there") &&
            !ReadBuildNumber(bundle_ + "/" + kInfo, number_, fault)) {
            check_.add(kInfo, fault.what, fault.advice);
        }
        QByteArray text;
        if (!check_.requireFile(kInfoPlist, "without it the bundle can't be opened")) {
            return;
        }
        if (!ReadInfoPlist(bundle_ + "/" + kInfoPlist, text, fault)) {
            check_.add(kInfoPlist, fault.what, fault.advice);
            return;
        }
        const std::string launcher =
            "Contents/MacOS/" + platform::BundleExecutable(text).toStdString();
        if (check_.requireExecutable(launcher, "put the launcher there")) {
            launcher_ = CheckKind(bundle_, launcher, check_);
        }
        const std::string version =
            platform::PropertyListText(text, QStringLiteral("CFBundleVersion")).toStdString();
        if (!check_.isFaulty(kInfo) && version != std::to_string(number_)) {
            check_.add(kInfoPlist,
                       "has the CFBundleVersion '" + version + "', but INFO says build " +
                           std::to_string(number_),
                       "write the build number there");
        }
    }

    void checkFiles() {
        check_.requireFile(kIcon, "put the icon of the dialog there, 72 by 72 pixels");
        if (tree_.nodes.count(kLevelFile) != 0) {
            check_.add(kLevelFile, "is a level file, which is for development",
                       "remove the folder log");
        }
        const auto after = tree_.nodes.lower_bound(kPlugins + "/");
        if (!check_.isFaulty(kPlugins) &&
            (after == tree_.nodes.end() || after->first.rfind(kPlugins + "/", 0) != 0)) {
            check_.add(kPlugins, "has no plug-in, without which Qt aborts the launcher",
                       "make the bundle again");
        }
    }

    void checkPackage() {
        if (!check_.requireFile(kPackage, "put the package there")) {
            return;
        }
        try {
            package_ = CheckPackage(bundle_ + "/" + kPackage, progress_);
        } catch (const PackageError& error) {
            addFaultsOf(error);
            return;
        }
        const int packed = package_.summary.build_number;
        if (!check_.isFaulty(kInfo) && packed != number_) {
            check_.add(kInfo,
                       "says build " + std::to_string(number_) + ", but the package is build " +
                           std::to_string(packed),
                       "copy the INFO of the packed application there");
        }
        if (launcher_ != ExecutableKind::None && package_.client != ExecutableKind::Script &&
            package_.client != launcher_) {
            check_.add(kPackage,
                       std::string("its client is ") + NameOf(package_.client) +
                           ", but the launcher is " + NameOf(launcher_),
                       "pack the client that was built for the same system");
        }
    }

    void addFaultsOf(const PackageError& error) {
        for (const Fault& fault : error.faults()) {
            const bool is_inside = fault.where.rfind(bundle_ + "/", 0) == 0;
            if (!is_inside) {
                throw PackageError(error);  // a fault outside the bundle, such as in TMPDIR
            }
            check_.add(fault.where.substr(bundle_.size() + 1), fault.what, fault.advice);
        }
    }

    const std::string bundle_;
    const Progress& progress_;
    const AppTree tree_;
    TreeCheck check_;
    int number_ = 0;
    ExecutableKind launcher_ = ExecutableKind::None;
    CheckedPackage package_ = {{}, ExecutableKind::None};
};

}  // namespace

Summary CheckBundle(const std::string& bundle, const Progress& progress) {
    return BundleCheck(bundle, progress).run();
}

std::string BundleOf(const std::string& package) {
    std::error_code error;
    const std::string path = fs::canonical(package, error);
    const std::string inside = "/" + kPackage;
    return path.size() > inside.size() &&
                   path.compare(path.size() - inside.size(), inside.size(), inside) == 0
               ? path.substr(0, path.size() - inside.size())
               : "";
}
