#include "ui-client/launcher/client-file.h"

#include <unistd.h>

#include <cerrno>

#include "lib/install-layout.h"
#include "lib/platform/regular-file.h"

using platform::Presence;

namespace {

std::string ClientPath(const std::string& app) {
    return app + "/" + install_layout::kClient;
}

}  // namespace

Presence FindClient(const std::string& app) {
    struct stat status;
    switch (platform::FindRegularFile(ClientPath(app).c_str(), status, app.c_str())) {
        case platform::Reading::Done:
            return status.st_size > 0 ? Presence::There : Presence::NotThere;
        case platform::Reading::Failed:
            return Presence::CantTell;
        default:
            return Presence::NotThere;
    }
}

Presence FindStartableClient(const std::string& app) {
    const Presence client = FindClient(app);
    if (client != Presence::There || access(ClientPath(app).c_str(), X_OK) == 0) {
        return client;
    }
    return errno == EACCES ? Presence::NotThere : Presence::CantTell;
}
