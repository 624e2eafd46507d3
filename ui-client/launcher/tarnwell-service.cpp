#include "ui-client/launcher/tarnwell-service.h"

#include <QCoreApplication>
#include <QDir>

#include "lib/install-layout.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "ui-client/launcher/app-replacement.h"
#include "ui-client/launcher/extractor.h"

#define LOG_SOURCE "tarnwell-service"

namespace {

const ustring log_component("service_debug");

ustring FromQt(const QString& text) {
    return ustring(text.toUtf8().constData());
}

void WarnUnlessRead(platform::Reading reading, const ustring& path) {
    if (reading == platform::Reading::Failed || reading == platform::Reading::Refused) {
        LOG_MSG(WARNING, "the version file '%s' can't be read\n", path.c_str());
    }
}

}  // namespace

Service::Service() = default;

Service::~Service() = default;

void Service::SetTimeout(int value) {
    timeout = value;
}

int Service::ExtractPackage() {
    const ustring package = GetRootTarnwellResourceInstallPath() + "/" + install_layout::kPackage;
    const ustring target = GetUserTarnwellAppInstallPath();
    if (FSMKDir(target, true) < 0) {
        LOG_MSG(ERROR, "failed to create folder: '%s'\n", target.c_str());
        return -1;
    }
    LOG_MSG(INFO, "extract package: '%s' -> '%s'\n", package.c_str(), target.c_str());
    Extractor extractor;
    extractor.dest_dir = target;
    extractor.archive_path = package;
    return extractor.Extract();
}

void Service::LoadSourceVersion() {
    const ustring app = GetUserTarnwellAppInstallPath();
    const ustring path = app + "/" + install_layout::kInfo;
    const platform::Reading reading = LoadVersion(path.c_str(), source_version, app.c_str());
    source_is_known = reading != platform::Reading::Failed;
    if (reading == platform::Reading::Missing) {
        LOG_MSG(INFO, "source does not exist\n");
        return;
    }
    WarnUnlessRead(reading, path);
    LOG_MSG(INFO, "source_version = (%s, %s, %s, %s)\n", source_version.major_version.c_str(),
            source_version.minor_version.c_str(), source_version.build_version.c_str(),
            source_version.icon_overlay_version.c_str());
}

void Service::LoadTargetVersion() {
    const ustring path = GetRootTarnwellInstallPath() + "/" + install_layout::kInfo;
    WarnUnlessRead(LoadVersion(path.c_str(), target_version), path);
    LOG_MSG(INFO, "target_version = (%s, %s, %s, %s)\n", target_version.major_version.c_str(),
            target_version.minor_version.c_str(), target_version.build_version.c_str(),
            target_version.icon_overlay_version.c_str());
}

int Service::PrepareUserEnv() {
    if (Replacement().Begin() != 0) {
        return -1;
    }
    if (ExtractPackage() != 0) {
        Replacement().RollBack();
        return -1;
    }
    return Replacement().Commit();
}

AppReplacement& Service::Replacement() {
    if (replacement == nullptr) {
        replacement = std::make_unique<AppReplacement>(GetUserTarnwellInstallPath(), user_app_path);
        replacement->Lock();
        replacement->Recover();
    }
    return *replacement;
}

void Service::RemoveAgedFolders() {
    const ustring path = GetUserTarnwellInstallPath() + "/" + install_layout::kOldLayoutApp;
    LOG_MSG(INFO, "removing aged app folder %s\n", path.c_str());
    FSRemoveOwnTree(path);  // tried again at the next start
}

ustring Service::GetUserInstallPath() {
    return FromQt(QDir::homePath());
}

ustring Service::GetUserTarnwellInstallPath() {
    return GetUserInstallPath() + "/" + install_layout::kUserFolder;
}

ustring Service::GetUserTarnwellAppInstallPath() {
    return GetUserTarnwellInstallPath() + "/" + install_layout::kApp;
}

ustring Service::GetUserTarnwellDataInstallPath() {
    return GetUserTarnwellInstallPath() + "/" + install_layout::kData;
}

ustring Service::GetRootTarnwellInstallPath() {
    return FromQt(QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/") +
                                  QStringLiteral("../..")));
}

ustring Service::GetRootTarnwellResourceInstallPath() {
    return GetRootTarnwellInstallPath() + "/" + install_layout::kResources;
}
