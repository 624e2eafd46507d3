#ifndef UI_CLIENT_LAUNCHER_TARNWELL_SERVICE_H
#define UI_CLIENT_LAUNCHER_TARNWELL_SERVICE_H

#include <cstdint>
#include <memory>

#include "ui-client/launcher/version-file.h"
#include "ustring/ustring.h"

class AppReplacement;

// The object on which one upgrade runs. The target is what the launcher's bundle carries, the
// source what is installed for the user now. The operations that change something or read files
// belong to one thread (the worker's); the static path operations may be called from any.
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

    // Read a version file into source_version or target_version. A key that is missing, as all
    // are in a missing file, leaves its field as it was.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();

    // Replaces the per-user application folder by the package's content. The old folder is moved
    // aside first and moved back when unpacking fails. Returns 0 when the new installation is in
    // place, else -1. See AppReplacement.
    virtual int PrepareUserEnv();

    // Removes the application folder of an older layout, if it is there.
    void RemoveAgedFolders();

    // Copies a file, or a folder with everything below it, to the path dst; an existing folder is
    // merged into, existing files are overwritten. Links are followed, only names and bytes are
    // copied. A folder that can't be listed counts as empty. A destination inside the source is
    // refused, and so is whatever is neither file, folder nor link. Not atomic: a failure leaves
    // what was copied. Returns 0, or -1.
    int FSCopyPath(ustring const& src, ustring const& dst);

    // Where everything lives: absolute paths in UTF-8 without a trailing separator. Nothing is
    // checked or created, and each call looks anew. The application object must exist.
    static ustring GetUserInstallPath();                  // the home folder
    static ustring GetUserTarnwellInstallPath();          // ~/.Tarnwell
    static ustring GetUserTarnwellAppInstallPath();       // ~/.Tarnwell/Tarnwell.app
    static ustring GetUserTarnwellDataInstallPath();      // ~/.Tarnwell/data
    static ustring GetRootTarnwellInstallPath();          // the bundle that holds the executable
    static ustring GetRootTarnwellResourceInstallPath();  // its Contents/Resources

  protected:
    // The transaction that replaces the application. The first call waits for another launcher that
    // is at work, and finishes or undoes what an earlier run was cut off in; it must come before
    // anything looks at the application.
    AppReplacement& Replacement();

    std::int32_t timeout = 0;  // for services that wait; nothing reads it
    ustring user_app_path;     // set by the platform's service
    VerInfo target_version;
    VerInfo source_version;
    bool source_is_known = true;  // false: what is installed has a version that can't be read now

  private:
    std::unique_ptr<AppReplacement> replacement;  // from the first Replacement() on
};

#endif
