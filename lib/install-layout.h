#ifndef LIB_INSTALL_LAYOUT_H
#define LIB_INSTALL_LAYOUT_H

// The names of what is installed, relative to the folder that each comment names. They are spelled
// nowhere else.
namespace install_layout {

constexpr char kUserFolder[] = ".Tarnwell";  // in the home folder

// Outside the home folder, for locks; see platform::PrivateFolder.
constexpr char kPrivateFolder[] = "tarnwell-launcher";

// In the user folder.
constexpr char kApp[] = "Tarnwell.app";
constexpr char kOldLayoutApp[] = "app";  // where earlier versions kept the application
constexpr char kData[] = "data";
constexpr char kLogFolder[] = "log";
constexpr char kLogFile[] = "log/launcher.log";
constexpr char kPidFile[] = "ui.pid";

// In an application folder or a bundle.
constexpr char kResources[] = "Contents/Resources";
constexpr char kInfo[] = "Contents/Resources/INFO";
constexpr char kInfoPlist[] = "Contents/Info.plist";
constexpr char kClient[] = "Contents/MacOS/tarnwell-ui";

// In the launcher's bundle.
constexpr char kLevelFile[] = "log/launcher.debug";

// In the resources of the launcher's bundle.
constexpr char kPackage[] = "package/tarnwell.opk";
constexpr char kIcon[] = "images/ico_72_tarnwell.png";

}  // namespace install_layout

#endif
