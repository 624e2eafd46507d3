// Tests the choice of the language, the embedded catalogs and the string table.

#include "libcommon/OrvLocale.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTranslator>
#include <regex>

#include "tests/support/scenario.h"
#include "tests/support/system.h"
#include "ui-client/launcher/translations/str-table.h"

int qInitResources_texts();
int qCleanupResources_texts();

namespace {

class LocaleTest : public testing::Test {
  protected:
    LocaleTest() {
        qInitResources_texts();
        StrTable::InitStrTable();
    }

    // Runs in a child process, because Qt reads the locale from the environment only once.
    static QString languageOf(const char* locale) {
        const pid_t pid = fork();
        if (pid == 0) {
            qputenv("LC_ALL", locale);
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
            const QString code = OrvLocale::getDefaultLanguage();
            _exit(OrvLocale::getSupportedLanguages().indexOf(code));
        }
        int status = 0;
        waitpid(pid, &status, 0);
        return WIFEXITED(status) ? OrvLocale::getLanguageAbbrByID(WEXITSTATUS(status))
                                 : QStringLiteral("crashed");
    }
};

TEST_F(LocaleTest, FollowsTheSystemsLocale) {
    if (!HasLocaleInEnvironment()) {
        GTEST_SKIP() << "the environment doesn't name the locale";
    }
    const std::regex language(" language=\"(\\w+)\"");
    for (const QString& code : OrvLocale::getSupportedLanguages()) {
        const std::string catalog = ReadFile(TRANSLATIONS "/" + code.toStdString() + ".ts");
        std::smatch match;
        ASSERT_TRUE(std::regex_search(catalog, match, language)) << code.toStdString();
        EXPECT_EQ(languageOf(match[1].str().c_str()), code) << match[1];
    }
    // The last four are locales that macOS forms from the user's first language and region.
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"zh_SG", "chs"}, {"de_CH", "deu"},
        {"nn_NO", "nor"}, {"el_GR", "enu"}, {"C", "enu"},     {"de_US", "deu"},
        {"pt_FI", "ptb"}, {"zh_DE", "chs"}, {"fi_DE", "enu"}};
    for (const auto& [locale, code] : cases) {
        EXPECT_EQ(languageOf(locale).toStdString(), code) << locale;
    }
}

TEST_F(LocaleTest, TracesItsChoiceAlsoWithoutTheCatalogs) {
    if (!HasLocaleInEnvironment()) {
        GTEST_SKIP() << "the environment doesn't name the locale";
    }
    qputenv("LC_ALL", "de_DE");
    const auto trace = [] { return CaptureStderr([] { OrvLocale::getDefaultLanguage(); }); };
    const std::string start =
        "../libcommon/OrvLocale.cpp:64 qPrintable(qstrLocaleLower)=[de_de\n] \n"
        "../libcommon/OrvLocale.cpp:80 qPrintable(qstrLocaleLower)=[de_de] \n";
    EXPECT_EQ(trace(), start +
                           "../libcommon/OrvLocale.cpp:161 "
                           "qPrintable(qstrLangFileName)=[:/deu.qm] \n"
                           "../libcommon/OrvLocale.cpp:138 qPrintable(qstrDef)=[deu] \n");
    qCleanupResources_texts();
    EXPECT_EQ(trace(), start + "../libcommon/OrvLocale.cpp:138 qPrintable(qstrDef)=[enu] \n");
}

TEST_F(LocaleTest, NumbersItsLanguages) {
    const QStringList codes = OrvLocale::getSupportedLanguages();
    EXPECT_EQ(codes.indexOf(QStringLiteral("ptg")), 17);
    for (int id = -1; id <= codes.size(); ++id) {
        EXPECT_EQ(OrvLocale::getLanguageAbbrByID(id), codes.value(id));
    }
    EXPECT_FALSE(OrvLocale::isLanguageInstalled(QStringLiteral("xyz")));
}

TEST_F(LocaleTest, LoadsTextsInEnglishAndTranslated) {
    int argc = 0;
    const QCoreApplication app(argc, nullptr);
    EXPECT_EQ(StrTable::LoadStr(493), QStringLiteral("Tarnwell Backup"));
    QTranslator english;
    ASSERT_TRUE(english.load(QStringLiteral(":/enu.qm")));
    QCoreApplication::installTranslator(&english);
    EXPECT_EQ(StrTable::LoadStr(493), QStringLiteral("Orvane Tarnwell"));
    EXPECT_EQ(StrTable::LoadStr(43), QStringLiteral("Tarnwell is ready."));
    class Escapes : public QTranslator {
        QString translate(const char*, const char*, const char*, int) const override {
            return QStringLiteral("one\\ntwo\\tthree\\Nfour");
        }
    } escapes;
    QCoreApplication::installTranslator(&escapes);
    EXPECT_EQ(StrTable::LoadStr(0), QStringLiteral("one\ntwo\tthree\\Nfour"));
}

TEST_F(LocaleTest, FindsIdsByKey) {
    const std::pair<const char*, int> cases[] = {{"btn_resume", 0},
                                                 {"APP_NAME", 493},
                                                 {"desc_cannot_list_version", 599},
                                                 {"app_name ", -1},
                                                 {"", -1}};
    for (const auto& [key, id] : cases) {
        EXPECT_EQ(StrTable::LookupStrID(QString::fromLatin1(key)), id) << key;
    }
}

}  // namespace
