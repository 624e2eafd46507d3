#ifndef UI_CLIENT_LAUNCHER_TARNWELL_SERVICE_H
#define UI_CLIENT_LAUNCHER_TARNWELL_SERVICE_H

#include <cstdint>
#include <memory>

#include "ui-client/launcher/version-file.h"
#include "ustring/ustring.h"

class AppReplacement;

// Runs one upgrade. The target is the version that the launcher's bundle carries, the source the
// one that is installed for the user now. The operations that change something or read files belong
// to one thread (the worker's); the static path operations may be called from any.
class Service {
  public:
    Service();
    virtual ~Service();
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    virtual void StopService() = 0;
    virtual void SetTimeout(int value);
    virtual int HandlePackageUpgrade() = 0;  // 0, or -1 when nothing new was installed
    virtual void PostUpgrade() = 0;
    virtual void PreUpgrade() = 0;
    virtual bool IsNeedUpgrade() = 0;

    // Unpacks the bundle's package into the per-user application folder, which is created if
    // needed. Returns -1 on failure, which leaves what was unpacked.
    virtual int ExtractPackage();

    // Read a version file into source_version or target_version. A missing key leaves its field
    // unchanged, and so does a missing file.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();

    // Replaces the per-user application folder with the package's content. The old folder is moved
    // aside first and moved back when unpacking fails. Returns 0 when the new installation is in
    // place, else -1. See AppReplacement.
    virtual int PrepareUserEnv();

    // Removes the application folder of an older layout, if there is one.
    void RemoveAgedFolders();

    // Copies a file, or a folder with everything below it, to the path dst; an existing folder is
    // merged into, existing files are overwritten. Links to files are followed; only names and
    // bytes are copied. A folder that can't be listed counts as empty. A destination inside the
    // source is refused, and so are pipes, sockets and devices. Not atomic: a failure leaves what
    // was copied. Returns 0, or -1.
    int FSCopyPath(ustring const& src, ustring const& dst);

    // The paths of what is installed: absolute, in UTF-8, without a trailing separator. Nothing is
    // checked, created or cached. The application object must exist.
    static ustring GetUserInstallPath();                  // the home folder
    static ustring GetUserTarnwellInstallPath();          // ~/.Tarnwell
    static ustring GetUserTarnwellAppInstallPath();       // ~/.Tarnwell/Tarnwell.app
    static ustring GetUserTarnwellDataInstallPath();      // ~/.Tarnwell/data
    static ustring GetRootTarnwellInstallPath();          // the bundle that holds the executable
    static ustring GetRootTarnwellResourceInstallPath();  // its Contents/Resources

  protected:
    // The transaction that replaces the application. The first call waits for another launcher to
    // finish, and finishes or undoes an interrupted upgrade; it must precede anything that looks at
    // the application.
    AppReplacement& Replacement();

    std::int32_t timeout = 0;  // for services that wait; not read here
    ustring user_app_path;     // set by the platform's service
    VerInfo target_version;
    VerInfo source_version;
    bool source_is_known = true;  // false when the installed version can't be read at present

  private:
    std::unique_ptr<AppReplacement> replacement;  // from the first Replacement() on
};

#endif
