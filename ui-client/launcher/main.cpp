#include <langinfo.h>
#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>
#include <QTextCodec>
#include <QTranslator>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <string>

#include "lib/install-layout.h"
#include "lib/liblogger/log.h"
#include "lib/platform/QtSingleApplication.h"
#include "lib/platform/executable-path.h"
#include "lib/platform/open-bundle.h"
#include "lib/platform/quit-on-signal.h"
#include "lib/platform/standard-streams.h"
#include "lib/platform/time-zone.h"
#include "libcommon/OrvLocale.h"
#include "ui-client/launcher/launcher.h"
#include "ui-client/launcher/tarnwell-service.h"
#include "ui-client/launcher/translations/str-table.h"

#define LOG_SOURCE "main"

int qInitResources_texts();  // generated with the catalogs

namespace {

const ustring log_component("launcher_debug");

const int kRotateCount = 50;

// File names are UTF-8, whatever character set the environment names, so that a package is unpacked
// to the same names for every user. Qt sets the C library's locale from the environment while the
// application object is created, so UseUtf8InLibC() is called after that.
void UseUtf8InQt() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void UseUtf8InLibC() {
    const bool is_utf8 = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
    if (!is_utf8 && setlocale(LC_CTYPE, "C.UTF-8") == nullptr) {
        static_cast<void>(setlocale(LC_CTYPE, "UTF-8"));  // its name on macOS
    }
}

// Makes the bundle's plug-in folder the only place where Qt looks for plug-ins.
QString SetLibraryPath(const char* program_path) {
    QString plugins = QDir::cleanPath(QString::fromLatin1(program_path) +
                                      QStringLiteral("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths(QStringList(plugins));
    std::printf("lib path = '%s'\n", plugins.toUtf8().constData());
    static_cast<void>(std::fflush(stdout));  // because Qt aborts if it finds no plug-in there
    return plugins;
}

// Tells Qt the platform plug-in's folder while the application object is created, if the library
// path doesn't lead there: the program's name was found in PATH, or isn't ASCII. Without that
// plug-in Qt aborts.
class PlatformPluginPath {
  public:
    explicit PlatformPluginPath(const QString& library_path)
        : needed_(!QFileInfo(library_path).isDir() && !qEnvironmentVariableIsSet(kVariable)) {
        if (needed_) {
            const QFileInfo executable(platform::ExecutablePath());
            qputenv(kVariable,
                    QFile::encodeName(executable.path() +
                                      QStringLiteral("/../Frameworks/plugins/platforms")));
        }
    }
    // The variable is for this process, not for the client that it starts.
    void release() const {
        if (needed_) {
            qunsetenv(kVariable);
        }
    }

  private:
    static constexpr char kVariable[] = "QT_QPA_PLATFORM_PLUGIN_PATH";
    const bool needed_;
};

// Anything but a regular file in the log's place could block this process or lead elsewhere.
bool MayOpenLog(const ustring& path) {
    struct stat status;
    return lstat(path.c_str(), &status) != 0 || S_ISREG(status.st_mode);
}

// If there can't be a log file, the messages go to standard error.
void InitializeLog() {
    const ustring level_file =
        Service::GetRootTarnwellInstallPath() + "/" + install_layout::kLevelFile;
    const ustring user_folder = Service::GetUserTarnwellInstallPath();
    const ustring folder = user_folder + "/" + install_layout::kLogFolder;
    const ustring log_file = user_folder + "/" + install_layout::kLogFile;
    if (!QDir().mkpath(QString::fromUtf8(folder.c_str()))) {
        return;
    }
    if (MayOpenLog(log_file)) {
        Logger::Initialize(Logger::TYPE_FILE, log_file, level_file, kRotateCount);
        return;
    }
    Logger::Initialize(Logger::TYPE_STDERR, "", level_file, kRotateCount);
    LOG_MSG(WARNING, "'%s' is not a regular file, the log is not written to it\n",
            log_file.c_str());
}

bool IsUtf8(const QByteArray& bytes) {
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

// If the home isn't named in UTF-8, Qt would use another folder.
void OnlyStartClient(const QByteArray& home) {
    LOG_MSG(ERROR, "home folder '%s' is not named in UTF-8, the client is not upgraded\n",
            home.constData());
    const std::string user_folder = home.toStdString() + "/" + install_layout::kUserFolder;
    if (!platform::OpenBundle(user_folder + "/" + install_layout::kApp)) {
        LOG_MSG(ERROR, "there is no client in '%s'\n", user_folder.c_str());
    }
}

}  // namespace

int main(int argc, char** argv) {
    platform::SecureStandardStreams();
    static_cast<void>(setlocale(LC_ALL, ""));
    platform::NameTimeZone();
    qInitResources_texts();
    UseUtf8InQt();
    const QByteArray home = qgetenv("HOME");
    if (!IsUtf8(home)) {
        OnlyStartClient(home);
        return 0;
    }
    const PlatformPluginPath plugin_path(SetLibraryPath(argc > 0 ? argv[0] : ""));
    QtSingleApplication app(argc, argv, true);
    plugin_path.release();
    UseUtf8InLibC();
    InitializeLog();
    if (app.isRunning()) {
        LOG_MSG_AT(80, DEBUG, "app has already launched, return\n");
        return 0;
    }
    QTranslator translator;
    translator.load(QStringLiteral(":/") + OrvLocale::getDefaultLanguage() + QStringLiteral(".qm"));
    if (!translator.isEmpty()) {
        QCoreApplication::installTranslator(&translator);
    }
    StrTable::InitStrTable();
    platform::QuitOnSignal();  // an upgrade that has begun is finished first

    auto* const launcher = new Launcher;
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    delete launcher;
    return result;
}
