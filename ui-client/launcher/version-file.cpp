#include "ui-client/launcher/version-file.h"

#include <QFile>
#include <QSettings>
#include <cerrno>

#include "lib/platform/memory-file.h"

namespace {

using platform::Reading;

void LoadField(const QSettings& settings, const char* key, ustring& field) {
    const QString name = QString::fromLatin1(key);
    if (settings.contains(name)) {
        field = ustring(settings.value(name).toString().toUtf8().constData());
    }
}

}  // namespace

bool ParseVersion(const std::string& text, VerInfo& version) {
    // QSettings gets a copy, because it would open the file again and not report a failure. It also
    // caches files: it would not notice that one was replaced by one of the same size and time.
    const platform::MemoryFile copy(text);
    const QString copy_path = QString::fromStdString(copy.path());
    if (!QFile::exists(copy_path)) {
        return false;
    }
    QSettings settings(copy_path, QSettings::IniFormat);
    if (settings.status() == QSettings::AccessError) {
        return false;
    }
    settings.beginGroup(QStringLiteral("Version"));
    LoadField(settings, "major_version", version.major_version);
    LoadField(settings, "minor_version", version.minor_version);
    LoadField(settings, "build_version", version.build_version);
    LoadField(settings, "icon_overlay_version", version.icon_overlay_version);
    return true;
}

Reading LoadVersion(const char* path, VerInfo& version, const char* inside) {
    std::string text;
    const Reading reading = platform::ReadRegularFile(path, kMaxVersionFile, text, inside);
    if (reading != Reading::Done) {
        const bool forbidden = reading == Reading::Failed && (errno == EACCES || errno == EPERM);
        return forbidden ? Reading::Refused : reading;
    }
    return ParseVersion(text, version) ? Reading::Done : Reading::Failed;
}
