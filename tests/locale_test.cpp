// The choice of the language, the embedded catalogs and the string table.

#include "libcommon/OrvLocale.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

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

    // Asks a process of its own, because Qt reads the environment's locale once.
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

// The last five are what macOS makes of the user's first language and the region.
TEST_F(LocaleTest, FollowsTheSystemsLocale) {
    if (!HasLocaleInEnvironment()) {
        GTEST_SKIP() << "the environment doesn't name the locale";
    }
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"en_US", "enu"}, {"en_GB", "enu"}, {"zh_TW", "cht"}, {"zh_HK", "cht"}, {"zh_MO", "cht"},
        {"zh_CN", "chs"}, {"zh_SG", "chs"}, {"ja_JP", "jpn"}, {"de_DE", "deu"}, {"de_CH", "deu"},
        {"ko_KR", "krn"}, {"fr_CA", "fra"}, {"it_IT", "ita"}, {"es_MX", "esn"}, {"pt_BR", "ptb"},
        {"pt_PT", "ptg"}, {"ru_RU", "rus"}, {"da_DK", "dan"}, {"nb_NO", "nor"}, {"nn_NO", "nor"},
        {"sv_SE", "sve"}, {"nl_BE", "nld"}, {"pl_PL", "plk"}, {"hu_HU", "hun"}, {"tr_TR", "trk"},
        {"cs_CZ", "csy"}, {"el_GR", "enu"}, {"C", "enu"},     {"en_DE", "enu"}, {"de_US", "deu"},
        {"pt_FI", "ptb"}, {"zh_DE", "chs"}, {"fi_DE", "enu"}};
    for (const auto& [locale, code] : cases) {
        EXPECT_EQ(languageOf(locale).toStdString(), code) << locale;
    }
}

TEST_F(LocaleTest, TracesItsChoice) {
    if (!HasLocaleInEnvironment()) {
        GTEST_SKIP() << "the environment doesn't name the locale";
    }
    qputenv("LC_ALL", "de_DE");
    EXPECT_EQ(CaptureStderr([] { OrvLocale::getDefaultLanguage(); }),
              "../libcommon/OrvLocale.cpp:64 qPrintable(qstrLocaleLower)=[de_de\n] \n"
              "../libcommon/OrvLocale.cpp:80 qPrintable(qstrLocaleLower)=[de_de] \n"
              "../libcommon/OrvLocale.cpp:161 qPrintable(qstrLangFileName)=[:/deu.qm] \n"
              "../libcommon/OrvLocale.cpp:138 qPrintable(qstrDef)=[deu] \n");
}

TEST_F(LocaleTest, FallsBackWithoutTheCatalogs) {
    if (!HasLocaleInEnvironment()) {
        GTEST_SKIP() << "the environment doesn't name the locale";
    }
    qCleanupResources_texts();
    qputenv("LC_ALL", "de_DE");
    EXPECT_EQ(OrvLocale::getDefaultLanguage(), OrvLocale::getStrLanguageFallSafe());
    qInitResources_texts();
    EXPECT_EQ(OrvLocale::getDefaultLanguage(), QStringLiteral("deu"));
}

TEST_F(LocaleTest, NumbersItsLanguages) {
    const QStringList codes = OrvLocale::getSupportedLanguages();
    ASSERT_EQ(codes.size(), 20);
    for (int id = 0; id < 20; ++id) {
        EXPECT_EQ(OrvLocale::getLanguageAbbrByID(id), codes[id]);
        EXPECT_TRUE(OrvLocale::isLanguageInstalled(codes[id]));
    }
    EXPECT_EQ(OrvLocale::getLanguageAbbrByID(17), QStringLiteral("ptg"));
    EXPECT_EQ(OrvLocale::getLanguageAbbrByID(20), QString());
    EXPECT_EQ(OrvLocale::getLanguageAbbrByID(-1), QString());
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
