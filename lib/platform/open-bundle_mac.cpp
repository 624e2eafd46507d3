#include <QDesktopServices>
#include <QUrl>

#include "lib/platform/open-bundle.h"

namespace platform {

bool OpenBundle(const QString& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

}  // namespace platform
