// Runs the controller, its worker and the dialog in the real event loop.

#include "ui-client/launcher/launcher.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <tuple>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"
#include "ui-client/launcher/tarnwell-service.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

// The test program is in a bundle that only it uses. Each test rewrites the bundle's package.
class LauncherTest : public testing::Test {
  protected:
    LauncherTest() {
        qputenv("HOME", QByteArray::fromStdString(home_.path()));
        StrTable::InitStrTable();
        MakeFile(bundle() + "/Contents/Resources/INFO", VersionFile("100"));
        MakeFolder(bundle() + "/Contents/Resources/package");
        const Entry client = {"Contents/MacOS/tarnwell-ui", "#!/bin/sh\n", 0755};
        MakeArchive(bundle() + "/Contents/Resources/package/tarnwell.opk", "zip",
                    {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}, client});
    }

    static std::string bundle() { return Service::GetRootTarnwellInstallPath().c_str(); }

    static ProcessingProgressDialog* dialog() {
        return qobject_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
    }

    struct Watched {
        std::string progress;  // before the run, at each value, and after the run
        std::vector<QString> labels;
    };
    // Runs a launcher until its event loop ends and records what the user would see.
    static Watched runAndWatch() {
        Launcher launcher;
        Watched watched;
        const auto observe = [&](int value) {
            watched.progress += dialog()->isVisible() ? std::to_string(value) + " " : "hidden ";
            watched.labels.push_back(dialog()->findChild<QLabel*>()->text());
        };
        observe(0);
        QObject::connect(dialog()->findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                         observe);
        launcher.Run();
        launcher.Start();
        EXPECT_EQ(QApplication::exec(), 0);
        observe(100);
        return watched;
    }

    bool installed() const { return Exists(home_ / ".Tarnwell/Tarnwell.app/Contents/MacOS"); }

    Folder home_;
};

TEST_F(LauncherTest, TheDialogShowsAnUpgrade) {
    const Watched watched = runAndWatch();
    EXPECT_EQ(watched.progress, "hidden 14 28 42 57 71 85 100 hidden ");
    EXPECT_EQ(watched.labels.at(1), QStringLiteral("Tarnwell is initializing..."));
    EXPECT_EQ(watched.labels.back(), QStringLiteral("Tarnwell is ready."));
    EXPECT_TRUE(installed());
}

TEST_F(LauncherTest, TheDialogIsBuiltAsDesigned) {
    Launcher launcher;
    const QProgressDialog* const built = dialog();
    EXPECT_EQ(built->windowTitle(), QStringLiteral("Tarnwell Backup"));
    EXPECT_EQ(built->labelText(), QStringLiteral("Tarnwell is initializing..."));
    EXPECT_EQ(int(built->windowFlags() & ~Qt::Window), 0x3000);  // Qt adds Qt::Window
    EXPECT_EQ(std::make_tuple(built->minimum(), built->maximum(), built->value()),
              std::make_tuple(0, 100, 0));
    EXPECT_EQ(std::pair(built->minimumWidth(), built->maximumWidth()), std::pair(400, 400));
    EXPECT_EQ(built->font().family(), QStringLiteral("Arial"));
    EXPECT_EQ(built->windowModality(), Qt::WindowModal);
    EXPECT_FALSE(built->autoReset());
}

TEST_F(LauncherTest, AFailureKeepsTheLabel) {
    MakeFile(bundle() + "/Contents/Resources/package/tarnwell.opk", "no archive");
    EXPECT_EQ(runAndWatch().labels.back(), QStringLiteral("Tarnwell is initializing..."));
}

// By default, QProgressDialog shows itself after four seconds.
TEST_F(LauncherTest, TheDialogNeverShowsItself) {
    Launcher launcher;
    QTimer::singleShot(4500, qApp, &QCoreApplication::quit);
    QApplication::exec();
    EXPECT_FALSE(dialog()->isVisible());
}

TEST_F(LauncherTest, ClosingTheWindowStopsNothing) {
    QTimer::singleShot(0, [] {
        dialog()->show();
        dialog()->close();
    });
    EXPECT_EQ(runAndWatch().labels.back(), QStringLiteral("Tarnwell is ready."));
    EXPECT_TRUE(installed());
}

}  // namespace
