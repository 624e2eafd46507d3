// Tests the choice of the language, the embedded catalogs and the string table.

#include "libcommon/OrvLocale.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QSysInfo>
#include <QTranslator>
#include <regex>

#include "tests/support/scenario.h"
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

    // Uses a child process, because Qt reads the locale from the environment only once.
    void expectLanguage(const std::string& locale, const QString& code) const {
        const auto choose = [&] {
            qputenv("LC_ALL", locale.c_str());
            _exit(codes_.indexOf(OrvLocale::getDefaultLanguage()));
        };
        EXPECT_EXIT(choose(), testing::ExitedWithCode(codes_.indexOf(code)), "") << locale;
    }

    const QStringList codes_ = OrvLocale::getSupportedLanguages();
    const bool has_environment_ = QSysInfo::kernelType() != QLatin1String("darwin");
};

TEST_F(LocaleTest, FollowsTheSystemsLocale) {
    if (!has_environment_) {
        GTEST_SKIP() << "this system doesn't take the locale from the environment";
    }
    const std::regex language(" language=\"(\\w+)\"");
    for (const QString& code : codes_) {
        const std::string catalog = ReadFile(TRANSLATIONS "/" + code.toStdString() + ".ts");
        std::smatch match;
        ASSERT_TRUE(std::regex_search(catalog, match, language)) << code.toStdString();
        expectLanguage(match[1], code);
    }
    // The last four are locales that macOS forms from the user's first language and region.
    const std::pair<const char*, const char*> cases[] = {
        {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"zh_SG", "chs"}, {"de_CH", "deu"},
        {"nn_NO", "nor"}, {"el_GR", "enu"}, {"C", "enu"},     {"de_US", "deu"},
        {"pt_FI", "ptb"}, {"zh_DE", "chs"}, {"fi_DE", "enu"}};
    for (const auto& [locale, code] : cases) {
        expectLanguage(locale, QLatin1String(code));
    }
}

TEST_F(LocaleTest, TracesItsChoiceAlsoWithoutTheCatalogs) {
    if (!has_environment_) {
        GTEST_SKIP() << "this system doesn't take the locale from the environment";
    }
    qputenv("LC_ALL", "de_DE");
    const auto trace = [] { return CaptureStderr([] { OrvLocale::getDefaultLanguage(); }); };
    const std::string start =
        "../libcommon/OrvLocale.cpp:64 qPrintable(qstrLocaleLower)=[de_de\n] \n"
        "../libcommon/OrvLocale.cpp:80 qPrintable(qstrLocaleLower)=[de_de] \n";
    const std::string file =
        "../libcommon/OrvLocale.cpp:161 qPrintable(qstrLangFileName)=[:/deu.qm] \n";
    const std::string choice = "../libcommon/OrvLocale.cpp:138 qPrintable(qstrDef)=";
    EXPECT_EQ(trace(), start + file + choice + "[deu] \n");
    qCleanupResources_texts();
    EXPECT_EQ(trace(), start + choice + "[enu] \n");
}

TEST_F(LocaleTest, NumbersItsLanguages) {
    EXPECT_EQ(codes_.indexOf(QStringLiteral("ptg")), 17);
    for (int id = -1; id <= codes_.size(); ++id) {
        EXPECT_EQ(OrvLocale::getLanguageAbbrByID(id), codes_.value(id));
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
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("btn_resume")), 0);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("APP_NAME")), 493);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("desc_cannot_list_version")), 599);
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("app_name ")), -1);
    EXPECT_EQ(StrTable::LookupStrID(QString()), -1);
}

}  // namespace
