#ifndef UI_CLIENT_LAUNCHER_MAC_MAC_SERVICE_H
#define UI_CLIENT_LAUNCHER_MAC_MAC_SERVICE_H

#include "ui-client/launcher/tarnwell-service.h"

// The service for application bundles: stops and starts the client "tarnwell-ui" of the per-user
// application, and decides whether that application must be replaced.
class MacService : public Service {
  public:
    MacService();

    static MacService* GetInstace();  // one for the whole process, made by the first call

    // Ends the running client that ~/.Tarnwell/ui.pid names: SIGTERM, up to five seconds, SIGKILL.
    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;  // starts the per-user application
    // Finishes or undoes an interrupted upgrade, then loads and logs both versions.
    void PreUpgrade() override;
    // True when no client is installed, when the application may be incomplete, or when the
    // target's build number is greater than the source's. False when the source's can't be read at
    // present. When the system can't tell whether there is a client, the numbers alone decide.
    bool IsNeedUpgrade() override;

    bool PerUserBinPathExist();  // whether a client is installed, or may be (see FindClient)
    int LaunchPerUserBin();      // 0 when the system accepted the request, else -1

    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
};

#endif
