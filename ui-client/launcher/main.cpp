#include <QDir>
#include <QFileInfo>
#include <QTextCodec>
#include <QTranslator>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "lib/liblogger/log.h"
#include "lib/platform/QtSingleApplication.h"
#include "lib/platform/executable-path.h"
#include "libcommon/OrvLocale.h"
#include "ui-client/launcher/launcher.h"
#include "ui-client/launcher/tarnwell-service.h"
#include "ui-client/launcher/translations/str-table.h"

#define LOG_SOURCE "main"

int qInitResources_texts();  // generated with the catalogs

namespace {

const ustring log_component("launcher_debug");

const int kRotateCount = 50;
const char kPlatformPluginPath[] = "QT_QPA_PLATFORM_PLUGIN_PATH";

// File names are UTF-8, whatever character set the environment names: a package unpacks the same
// for every user. Qt reads the environment again while the application object is made, so the C
// library's part comes after it.
void UseUtf8InQt() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void UseUtf8InLibC() {
    if (MB_CUR_MAX == 1 && setlocale(LC_CTYPE, "C.UTF-8") == nullptr) {
        setlocale(LC_CTYPE, "UTF-8");  // its name on macOS
    }
}

// Makes the bundle's plug-in folder the only place where Qt looks for plug-ins.
void SetLibraryPath(const char* program_path) {
    const QString plugins = QDir::cleanPath(QString::fromLatin1(program_path) +
                                            QStringLiteral("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths(QStringList(plugins));
    // A name found in PATH, or one that isn't ASCII, doesn't lead there; without its platform
    // plug-in Qt would end the process.
    if (!QFileInfo(plugins).isDir() && !qEnvironmentVariableIsSet(kPlatformPluginPath)) {
        const QFileInfo executable(platform::ExecutablePath());
        qputenv(kPlatformPluginPath,
                QFile::encodeName(executable.path() +
                                  QStringLiteral("/../Frameworks/plugins/platforms")));
    }
    std::printf("lib path = '%s'\n", plugins.toUtf8().constData());
    std::fflush(stdout);  // to be seen also when Qt finds no plug-in there and gives up
}

void InitializeLog() {
    const ustring level_file = Service::GetRootTarnwellInstallPath() + "/log/launcher.debug";
    const ustring folder = Service::GetUserTarnwellInstallPath() + "/log";
    if (QDir().mkpath(QString::fromUtf8(folder.c_str()))) {
        // Without a log file the messages go to standard error.
        Logger::Initialize(Logger::TYPE_FILE, folder + "/launcher.log", level_file, kRotateCount);
    }
}

}  // namespace

int main(int argc, char** argv) {
    setlocale(LC_ALL, "");
    qInitResources_texts();
    UseUtf8InQt();
    SetLibraryPath(argc > 0 ? argv[0] : "");
    QtSingleApplication app(argc, argv, true);
    qunsetenv(kPlatformPluginPath);  // for us, not for the client that we start
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

    Launcher* const launcher = new Launcher;
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    delete launcher;
    return result;
}
