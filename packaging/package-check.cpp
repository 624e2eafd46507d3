#include "packaging/package-check.h"

#include <QObject>
#include <fstream>

#include "lib/install-layout.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "packaging/app-check.h"
#include "packaging/package-content.h"
#include "packaging/temporary-folder.h"
#include "ui-client/launcher/content-checksum.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/notify-adapter.h"

namespace {

// The first message in the launcher's log, which has the cause, without time and source.
std::string FirstMessage(const std::string& log) {
    std::ifstream file(log);
    std::string line;
    std::getline(file, line);
    const std::size_t begin = line.find("): ");
    return begin != std::string::npos ? line.substr(begin + 3) : "it logs no reason";
}

void Extract(const std::string& file, const std::string& app, const TemporaryFolder& folder,
             const Progress& progress) {
    const std::string log = folder / "log";
    Logger::Initialize(Logger::TYPE_FILE, log, "", 1);
    bool go_on = true;  // a slot must not throw
    const QMetaObject::Connection connection = QObject::connect(
        Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress,
        [&](int total, int current) { go_on = progress(current, total) && go_on; });
    Extractor extractor;
    extractor.dest_dir = app;
    extractor.archive_path = file;
    const int result = FSMKDir(app, false) == 0 ? extractor.Extract() : -1;
    QObject::disconnect(connection);
    Logger::Destroy();
    if (!go_on) {
        throw PackageError(file, "was not checked to its end: interrupted", "run again");
    }
    if (result != 0) {
        folder.requireSpace();
        throw PackageError(file, "the launcher can't unpack it: " + FirstMessage(log),
                           "make the package again");
    }
}

// Throws the fault of a readable package, if it has one.
void CheckContent(const std::string& file, const PackageContent& content) {
    if (!content.has_client && !content.wrapper.empty()) {
        throw PackageError(file, "has " + content.wrapper + "/ around the application",
                           "pack what is in that folder: make-package " + content.wrapper);
    }
    if (content.has_client && content.last != install_layout::kClient) {
        throw PackageError(file,
                           "doesn't end with " + std::string(install_layout::kClient) +
                               ", so an interrupted installation could look complete",
                           "make it with make-package");
    }
}

}  // namespace

CheckedPackage CheckPackage(const std::string& file, const Progress& progress) {
    const PackageContent content = ReadPackage(file, progress);
    CheckContent(file, content);
    const TemporaryFolder folder;
    const std::string app = folder / install_layout::kApp;
    Extract(file, app, folder, progress);
    const Application application = ReadApplication(app, file);
    Summary summary;
    summary.build_number = application.build_number;
    summary.entries = content.entries;
    summary.size = SizeOf(file);
    summary.sha256 = Sha256Of(file);
    summary.info_plist = application.info_plist;
    if (!HasContentChecksum(file.c_str())) {
        summary.warnings.push_back(file +
                                   ": has no checksum over its content, so damage can go "
                                   "unnoticed; make it with make-package");
    }
    for (const std::string& path : application.left_out) {
        summary.warnings.push_back(
            Text({file, "contains " + path + ", which isn't part of an application",
                  "make it with make-package"}));
    }
    return {summary, application.client};
}
