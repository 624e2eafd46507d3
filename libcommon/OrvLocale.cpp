#include "libcommon/OrvLocale.h"

#include <QFile>
#include <QLocale>
#include <QMessageLogger>

namespace {

const char kSourcePath[] = "../libcommon/OrvLocale.cpp";

// A locale name in lower case (zh_tw) or its language part (zh), and the code for it.
struct Choice {
    const char* name;
    const char* code;
};

// Whole locale names; they take precedence over kLanguages.
const Choice kLocales[] = {
    {"zh_tw", "cht"}, {"zh_hk", "cht"}, {"zh_mo", "cht"}, {"pt", "ptg"}, {"pt_pt", "ptg"}};

const Choice kLanguages[] = {{"en", "enu"}, {"zh", "chs"}, {"ja", "jpn"}, {"de", "deu"},
                             {"ko", "krn"}, {"fr", "fra"}, {"it", "ita"}, {"es", "esn"},
                             {"pt", "ptb"}, {"ru", "rus"}, {"da", "dan"}, {"no", "nor"},
                             {"nb", "nor"}, {"nn", "nor"}, {"sv", "sve"}, {"nl", "nld"},
                             {"pl", "plk"}, {"hu", "hun"}, {"tr", "trk"}, {"cs", "csy"}};

template <std::size_t Count>
QString Find(const Choice (&choices)[Count], const QString& name) {
    for (const Choice& choice : choices) {
        if (name == QLatin1String(choice.name)) {
            return QString::fromLatin1(choice.code);
        }
    }
    return QString();
}

// Writes debug messages. Line number and expression are fixed parts of their text.
class Trace {
  public:
    explicit Trace(const char* function) : function_(function) {}

    void operator()(int line, const char* expression, const QString& value,
                    const char* format = "%s:%d %s=[%s] ") const {
        QMessageLogger(kSourcePath, line, function_)
            .debug(format, kSourcePath, line, expression, qPrintable(value));
    }

  private:
    const char* const function_;
};

}  // namespace

const char* const OrvLocale::grgszLanguages[] = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra",
                                                 "ita", "esn", "ptb", "rus", "dan", "nor", "sve",
                                                 "nld", "plk", "hun", "ptg", "trk", "csy", nullptr};

const QString OrvLocale::qstrLanguageFallSafe = QStringLiteral("enu");

QString OrvLocale::getDefaultLanguage() {
    const Trace trace("QString OrvLocale::getDefaultLanguage()");
    const QString locale = QLocale::system().name().toLower();
    trace(64, "qPrintable(qstrLocaleLower)", locale, "%s:%d %s=[%s\n] ");
    trace(80, "qPrintable(qstrLocaleLower)", locale);

    QString code = Find(kLocales, locale);
    if (code.isEmpty()) {
        code = Find(kLanguages, locale.section(QLatin1Char('_'), 0, 0));
    }
    if (code.isEmpty()) {
        code = Find(kLanguages, QStringLiteral("en"));
    }
    if (!isLanguageInstalled(code)) {
        code = qstrLanguageFallSafe;
    }
    trace(138, "qPrintable(qstrDef)", code);
    return code;
}

bool OrvLocale::isLanguageInstalled(const QString& code) {
    const QString file = QStringLiteral(":/") + code + QStringLiteral(".qm");
    const bool installed = QFile::exists(file);
    if (installed) {
        Trace("bool OrvLocale::isLanguageInstalled(const QString &)")(
            161, "qPrintable(qstrLangFileName)", file);
    }
    return installed;
}

QStringList OrvLocale::getSupportedLanguages() {
    QStringList codes;
    for (const char* const* code = grgszLanguages; *code != nullptr; ++code) {
        codes << QString::fromLatin1(*code);
    }
    return codes;
}

QString OrvLocale::getLanguageAbbrByID(int id) {
    const unsigned count = sizeof grgszLanguages / sizeof *grgszLanguages - 1;
    return static_cast<unsigned>(id) < count ? QString::fromLatin1(grgszLanguages[id]) : QString();
}

QString OrvLocale::getStrLanguageFallSafe() {
    return qstrLanguageFallSafe;
}
