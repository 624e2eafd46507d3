#include <QDesktopServices>
#include <QFile>
#include <QUrl>

#include "lib/platform/open-bundle.h"

namespace platform {

bool OpenBundle(const std::string& path) {
    const QString name = QFile::decodeName(path.c_str());
    return QDesktopServices::openUrl(QUrl::fromLocalFile(name));
}

}  // namespace platform
