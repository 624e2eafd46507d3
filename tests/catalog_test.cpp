// The translation catalogs as data: what a careless edit or an eager tool would damage.

#include <QFile>
#include <QFontMetrics>
#include <QRegularExpression>
#include <QResource>
#include <QXmlStreamReader>
#include <map>
#include <set>

#include "libcommon/OrvLocale.h"
#include "tests/support/scenario.h"
#include "ui-client/launcher/translations/str-table-rows.h"

int qInitResources_texts();

namespace {

struct Message {
    QString source;
    QString translation;
    bool finished = true;
};

// Names and abbreviations that no language translates.
const QRegularExpression kNames(
    QStringLiteral("Orvane Station|StationOS|OrvaneLink|Orvane|Tarnwell|\\[ProductName\\]|"
                   "\\b(ID|SSL|IP|OK)\\b|MB|\\.tmp|%[12]"));

// Texts that are the same word in a language as in English.
const std::set<std::string> kSameEverywhere = {"%1 / %2", "ID",       "OK",   "OrvaneLink ID",
                                               "Proxy",   "Internet", "Port", "Server",
                                               "Status",  "Version"};
const std::map<std::string, std::set<std::string>> kSame = {
    {"deu", {"April", "August", "Name", "November", "September"}},
    {"fra", {"Action", "Date", "Destination", "Inactive", "Options"}},
    {"ita", {"Account", "File", "No", "Password"}},
    {"esn", {"Error", "No"}},
    {"dan", {"Destination", "Find Orvane Station", "Standby"}},
    {"sve", {"Information"}},
    {"nld", {"Account", "Filters", "Help"}},
    {"plk", {"Folder"}},
    {"hun", {"December", "November"}}};

// What doesn't belong into a language: the form of address that it doesn't use, and the words and
// characters of its neighbour.
const std::map<std::string, const char*> kForeign = {
    {"deu", "\\b(du|dich|dir|deine?[mnrs]?)\\b"},
    {"fra", "\\b(tu|toi|ton|tes)\\b"},
    {"esn", "\\b(tú|tus?|ti|puedes|vosotros|os)\\b"},
    {"nld", "\\b(u|uw)\\b"},
    {"krn", "(요|죠)[.!?]"},
    {"ptb", "\\b(ficheiros?|ecrã|palavra-passe|partilha\\w*|guardar|definições)\\b"},
    {"ptg", "\\b(arquivos?|tela|senha|compartilh\\w*|salvar|configurações|você)\\b"},
    {"cht", "[档资夹设体网电脑选择号码连线开启关闭备储传错误请对应输务删证载议]"},
    {"chs", "[檔資夾設體網電腦選擇號碼連線開啟關閉備儲傳錯誤請對應輸務刪證載議]"}};

std::vector<Message> ReadCatalog(const QString& code) {
    QFile file(QStringLiteral(TRANSLATIONS "/") + code + QStringLiteral(".ts"));
    std::vector<Message> messages;
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            EXPECT_EQ(xml.readElementText(), QStringLiteral("global"));
        } else if (xml.name() == QLatin1String("message")) {
            messages.emplace_back();
        } else if (xml.name() == QLatin1String("comment")) {
            ADD_FAILURE() << "a comment would keep the text from being found";
        } else if (xml.name() == QLatin1String("source")) {
            messages.back().source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            messages.back().finished = xml.attributes().isEmpty();
            messages.back().translation = xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

bool IsButton(const char* key) {
    return strncmp(key, "btn_", 4) == 0 || strncmp(key, "msi_button_", 11) == 0;
}

QString CaseAndMarksAside(const QString& text) {
    return text.toLower().remove(QRegularExpression(QStringLiteral("[.:…\\s]+$")));
}

class CatalogTest : public testing::TestWithParam<std::string> {
  protected:
    const QString code_ = QString::fromStdString(GetParam());
    const std::vector<Message> messages_ = ReadCatalog(code_);

    void expectNone(const QString& pattern, const char* why) const {
        const QRegularExpression found(pattern, QRegularExpression::CaseInsensitiveOption |
                                                    QRegularExpression::UseUnicodePropertiesOption);
        for (const Message& message : messages_) {
            EXPECT_FALSE(message.translation.contains(found))
                << why << ": " << message.translation.toStdString();
        }
    }
};

std::vector<std::string> Codes() {
    std::vector<std::string> codes;
    for (const QString& code : OrvLocale::getSupportedLanguages()) {
        codes.push_back(code.toStdString());
    }
    return codes;
}

INSTANTIATE_TEST_SUITE_P(Languages, CatalogTest, testing::ValuesIn(Codes()),
                         [](const auto& language) { return language.param; });

TEST(StrTable, RowsAreWhatTheCatalogsKnow) {
    std::set<QString> keys;
    std::set<QString> texts;
    int with_placeholder = 0;
    for (const StrTableRow& row : kStrTableRows) {
        const QString text = QString::fromUtf8(row.text);
        keys.insert(QString::fromLatin1(row.key).toLower());
        texts.insert(text);
        with_placeholder += text.contains(QLatin1String("%1")) ? 1 : 0;
        EXPECT_EQ(text, text.trimmed());
        EXPECT_EQ(strncmp(row.key, "msi_", 4) == 0 && text.contains(QLatin1String("Tarnwell")),
                  false)
            << row.key;
    }
    EXPECT_EQ(keys.size(), 600u);
    EXPECT_EQ(texts.size(), 496u);
    EXPECT_EQ(with_placeholder, 28);
}

TEST(Collection, StoresTheEasternCatalogsPlain) {
    qInitResources_texts();
    for (const QString& code : OrvLocale::getSupportedLanguages()) {
        const QResource catalog(QStringLiteral(":/") + code + QStringLiteral(".qm"));
        ASSERT_TRUE(catalog.isValid());
        const bool plain = QStringLiteral("chs cht jpn krn").contains(code);
        EXPECT_EQ(catalog.compressionAlgorithm(),
                  plain ? QResource::NoCompression : QResource::ZlibCompression)
            << code.toStdString();
    }
}

TEST_P(CatalogTest, TranslatesEachTextOnce) {
    std::set<QString> expected;
    for (const StrTableRow& row : kStrTableRows) {
        expected.insert(QString::fromUtf8(row.text));
    }
    std::set<QString> sources;
    for (const Message& message : messages_) {
        sources.insert(message.source);
        EXPECT_TRUE(message.finished && !message.translation.isEmpty())
            << message.source.toStdString();
    }
    EXPECT_EQ(messages_.size(), 496u);
    EXPECT_EQ(sources, expected);
}

TEST_P(CatalogTest, KeepsWhatIsFilledInAndTheMarksAtTheEnd) {
    const QRegularExpression filled_in(QStringLiteral("%.|\\[\\w+\\]|StationOS|OrvaneLink"));
    const QRegularExpression quoted(QStringLiteral("[“„”«「‘]\u00a0?%1\u00a0?[”“»」’]"));
    const auto all = [&](const QString& text) {
        std::multiset<QString> found;
        for (auto match = filled_in.globalMatch(text); match.hasNext();) {
            found.insert(match.next().captured());
        }
        return found;
    };
    const auto end = [](const QString& text) {
        return text.endsWith(QLatin1String("...")) ? u'…'
               : text.endsWith(QChar(u'。'))       ? u'.'
               : text.isEmpty()                    ? u' '
                                                   : text.back().unicode();
    };
    for (const Message& message : messages_) {
        const std::string text = message.translation.toStdString();
        EXPECT_EQ(all(message.source), all(message.translation)) << text;
        EXPECT_EQ(message.source.contains(quoted), message.translation.contains(quoted)) << text;
        EXPECT_EQ(message.translation.trimmed(), message.translation) << text;
        for (const char16_t mark : {u'.', u'…'}) {
            EXPECT_EQ(end(message.source) == mark, end(message.translation) == mark) << text;
        }
    }
    expectNone(QStringLiteral("['\"]"), "a straight quotation mark or apostrophe");
    if (code_ != QLatin1String("enu")) {
        expectNone(QStringLiteral("\\.\\.\\.|  |\\\\"), "three dots, two blanks or a backslash");
    }
}

TEST_P(CatalogTest, IsInItsOwnLanguage) {
    if (code_ == QLatin1String("enu")) {
        int reworded = 0;
        for (const Message& message : messages_) {
            reworded += message.source != message.translation ? 1 : 0;
        }
        EXPECT_EQ(reworded, 4);
        return;
    }
    const std::map<std::string, std::set<QChar::Script>> scripts = {
        {"rus", {QChar::Script_Cyrillic}},
        {"cht", {QChar::Script_Han}},
        {"chs", {QChar::Script_Han}},
        {"jpn", {QChar::Script_Han, QChar::Script_Hiragana, QChar::Script_Katakana}},
        {"krn", {QChar::Script_Hangul}}};
    const auto own = scripts.find(GetParam());
    const auto same = kSame.find(GetParam());
    for (const Message& message : messages_) {
        const std::string text = message.translation.toStdString();
        const bool may_be_same = kSameEverywhere.count(message.source.toStdString()) != 0 ||
                                 (same != kSame.end() && same->second.count(text) != 0) ||
                                 message.source.contains(QLatin1String("Orvane Station"));
        EXPECT_TRUE(may_be_same || message.source != message.translation) << text;
        QString words = message.translation;
        words.remove(kNames);
        for (const QChar letter : words) {
            const QChar::Script script = letter.script();
            const bool neutral = script == QChar::Script_Common ||
                                 script == QChar::Script_Inherited || !letter.isLetter();
            EXPECT_TRUE(neutral || (own == scripts.end() ? script == QChar::Script_Latin
                                                         : own->second.count(script) != 0))
                << text;
        }
    }
    const auto foreign = kForeign.find(GetParam());
    if (foreign != kForeign.end()) {
        expectNone(QString::fromUtf8(foreign->second), "another language or form of address");
    }
}

TEST_P(CatalogTest, OneThingHasOneName) {
    std::map<QString, QString> translations;
    std::map<QString, QString> same_but_for_marks;
    for (const Message& message : messages_) {
        translations[message.source] = message.translation;
        const QString plain = CaseAndMarksAside(message.source);
        const QString translated = CaseAndMarksAside(message.translation);
        const auto [other, is_new] = same_but_for_marks.emplace(plain, translated);
        EXPECT_TRUE(is_new || other->second == translated) << plain.toStdString();
    }
    // Buttons that one word names rightly in some languages; any other two must differ.
    const std::set<std::set<std::string>> synonyms = {
        {"Finish", "Done"}, {"OK", "Got it"}, {"Remove", "Delete"}, {"Change", "Edit"}};
    std::map<QString, std::string> buttons;
    for (const StrTableRow& row : kStrTableRows) {
        if (IsButton(row.key)) {
            const QString& translation = translations[QString::fromUtf8(row.text)];
            const std::string other = buttons.emplace(translation, row.text).first->second;
            EXPECT_TRUE(other == row.text || synonyms.count({other, row.text}) != 0)
                << other << " and " << row.text;
        }
    }
}

TEST_P(CatalogTest, TheDialogsTextsFit) {
    const int bar_width = 400 - 2 * 11;  // the dialog's, without its margins
    const QFontMetrics metrics(QFont(QStringLiteral("Arial")));
    for (const int id : {43, 347, 493}) {
        for (const Message& message : messages_) {
            if (message.source == QString::fromUtf8(kStrTableRows[id].text)) {
                EXPECT_LT(metrics.horizontalAdvance(message.translation), bar_width)
                    << message.translation.toStdString();
            }
        }
    }
}

}  // namespace
