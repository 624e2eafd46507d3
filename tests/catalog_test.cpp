// Checks the translations for the mistakes that careless edits and translation tools make.

#include <QFontMetrics>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTranslator>
#include <algorithm>
#include <iterator>
#include <set>

#include "libcommon/OrvLocale.h"
#include "tests/support/scenario.h"
#include "ui-client/launcher/translations/str-table-rows.h"

int qInitResources_texts();

namespace {

// Names, abbreviations and placeholders that are the same in every language.
const QRegularExpression kNames(
    QStringLiteral("Orvane Station|StationOS|OrvaneLink|Orvane|Tarnwell|\\[ProductName\\]|"
                   "\\b(ID|SSL|IP|OK)\\b|MB|\\.tmp|%[12]"));

QString CaseAndMarksAside(const QString& text) {
    return text.toLower().remove(QRegularExpression(QStringLiteral("[.:…\\s]+$")));
}

// Loads a catalog from the launcher's resources and translates each text of the string table.
class CatalogTest : public testing::TestWithParam<QString> {
  protected:
    CatalogTest() {
        qInitResources_texts();
        QTranslator catalog;
        EXPECT_TRUE(catalog.load(QStringLiteral(":/%1.qm").arg(GetParam())));
        for (const StrTableRow& row : kStrTableRows) {
            translations_[QString::fromUtf8(row.text)] = catalog.translate("global", row.text);
        }
    }
    void expectNone(const QString& pattern, const char* why) const {
        const QRegularExpression found(pattern, QRegularExpression::CaseInsensitiveOption |
                                                    QRegularExpression::UseUnicodePropertiesOption);
        for (const auto& [source, translation] : translations_) {
            EXPECT_FALSE(translation.contains(found)) << why << ": " << translation.toStdString();
        }
    }

    const std::string code_ = GetParam().toStdString();
    // What is peculiar to each language: "same", the texts that may equal the English ones ("every"
    // has those of all languages); "letters", unless they are the Latin ones; "refused", a pattern
    // of the form of address that our translations avoid, and of a related language (Brazilian and
    // European Portuguese, traditional and simplified Chinese).
    const QJsonObject languages_ =
        QJsonDocument::fromJson(QByteArray::fromStdString(ReadFile(LANGUAGES))).object();
    const QJsonObject language_ = languages_[GetParam()].toObject();
    std::map<QString, QString> translations_;
};

INSTANTIATE_TEST_SUITE_P(Languages, CatalogTest,
                         testing::ValuesIn(OrvLocale::getSupportedLanguages()),
                         [](const auto& language) { return language.param.toStdString(); });

TEST(StrTable, RowsAreWellFormed) {
    std::set<QString> keys;
    for (const StrTableRow& row : kStrTableRows) {
        const QString text = QString::fromUtf8(row.text);
        keys.insert(QString::fromLatin1(row.key).toLower());
        EXPECT_EQ(text, text.trimmed());
        EXPECT_FALSE(strncmp(row.key, "msi_", 4) == 0 && text.contains(QLatin1String("Tarnwell")))
            << row.key;
    }
    EXPECT_EQ(keys.size(), std::size(kStrTableRows));
}

TEST_P(CatalogTest, TranslatesEachTextOnce) {
    for (const auto& [source, translation] : translations_) {
        EXPECT_FALSE(translation.isEmpty()) << source.toStdString();
    }
    const std::string file = ReadFile(TRANSLATIONS "/" + code_ + ".ts");
    EXPECT_EQ(LinesWith(file, "<message>").size(), translations_.size());
    EXPECT_EQ(LinesWith(file, "<translation>").size(), translations_.size()) << "unfinished texts";
}

TEST_P(CatalogTest, KeepsWhatIsFilledInAndTheMarksAtTheEnd) {
    const QRegularExpression filled_in(QStringLiteral("%.|\\[\\w+\\]|StationOS|OrvaneLink"));
    const QRegularExpression quoted(QStringLiteral("[“„”«「‘]\u00a0?%1\u00a0?[”“»」’]"));
    const QRegularExpression dots(QStringLiteral(R"((\.\.\.|…)$)"));
    const QRegularExpression full_stop(QStringLiteral("[^.][.。]$"));
    const auto all = [&](const QString& text) {
        std::multiset<QString> found;
        for (auto match = filled_in.globalMatch(text); match.hasNext();) {
            found.insert(match.next().captured());
        }
        return found;
    };
    for (const auto& [source, translation] : translations_) {
        const std::string text = translation.toStdString();
        EXPECT_EQ(all(source), all(translation)) << text;
        EXPECT_EQ(translation.trimmed(), translation) << text;
        for (const QRegularExpression& pattern : {quoted, dots, full_stop}) {
            EXPECT_EQ(source.contains(pattern), translation.contains(pattern)) << text;
        }
    }
    expectNone(QStringLiteral("['\"]"), "a straight quotation mark or apostrophe");
    if (code_ != "enu") {
        expectNone(QStringLiteral("\\.\\.\\.|  |\\\\"), "three dots, two blanks or a backslash");
    }
}

TEST_P(CatalogTest, IsInItsOwnLanguage) {
    if (code_ == "enu") {
        EXPECT_EQ(std::count_if(translations_.begin(), translations_.end(),
                                [](const auto& text) { return text.first != text.second; }),
                  4);
        return;
    }
    const QRegularExpression foreign_letter(
        QStringLiteral("(?![\\p{Common}\\p{Inherited}%1])\\p{L}")
            .arg(language_[QStringLiteral("letters")].toString(QStringLiteral("\\p{Latin}"))));
    const QString same = QStringLiteral("same");
    const QJsonObject every = languages_[QStringLiteral("every")].toObject();
    for (const auto& [source, translation] : translations_) {
        const std::string text = translation.toStdString();
        const bool may_be_same = every[same].toArray().contains(source) ||
                                 language_[same].toArray().contains(source) ||
                                 source.contains(QLatin1String("Orvane Station"));
        EXPECT_TRUE(may_be_same || source != translation) << text;
        EXPECT_FALSE(QString(translation).remove(kNames).contains(foreign_letter)) << text;
    }
    expectNone(language_[QStringLiteral("refused")].toString(QStringLiteral("(?!)")),
               "another language or form of address");
}

TEST_P(CatalogTest, OneThingHasOneName) {
    std::map<QString, QString> same_but_for_marks;
    for (const auto& [source, translation] : translations_) {
        const QString plain = CaseAndMarksAside(source);
        const QString translated = CaseAndMarksAside(translation);
        EXPECT_EQ(same_but_for_marks.emplace(plain, translated).first->second, translated);
    }
    // Pairs of buttons that have the same name in some languages. All others must differ.
    const std::set<std::set<std::string>> synonyms = {
        {"Finish", "Done"}, {"OK", "Got it"}, {"Remove", "Delete"}, {"Change", "Edit"}};
    const QRegularExpression button(QStringLiteral("^(btn_|msi_button_)"));
    std::map<QString, std::string> buttons;
    for (const StrTableRow& row : kStrTableRows) {
        if (QString::fromLatin1(row.key).contains(button)) {
            const QString& translation = translations_[QString::fromUtf8(row.text)];
            const std::string other = buttons.emplace(translation, row.text).first->second;
            EXPECT_TRUE(other == row.text || synonyms.count({other, row.text}) != 0)
                << other << " and " << row.text;
        }
    }
}

TEST_P(CatalogTest, TheDialogsTextsFit) {
    const int bar_width = 400 - 2 * 11;  // the dialog's width without its margins
    const QFontMetrics metrics(QFont(QStringLiteral("Arial")));
    for (const int id : {StrTable::kPreparationDone, StrTable::kPreparing, StrTable::kAppName}) {
        const QString text = translations_[QString::fromUtf8(kStrTableRows[id].text)];
        EXPECT_LT(metrics.horizontalAdvance(text), bar_width) << text.toStdString();
    }
}

}  // namespace
