#ifndef LIBCOMMON_ORVLOCALE_H
#define LIBCOMMON_ORVLOCALE_H

#include <QString>
#include <QStringList>

// The language of the user interface. Each language has a three-letter code of this product ("enu",
// "cht", "ptg") and a catalog among the embedded resources, ":/" + code + ".qm".
//
// The operations report what they find as Qt debug messages. Threads: any.
class OrvLocale {
  public:
    // The code for the system's locale; "enu" when the locale's language isn't known or has no
    // catalog.
    static QString getDefaultLanguage();

    static bool isLanguageInstalled(const QString& code);

    // The 20 codes; the position of a code is its id.
    static QStringList getSupportedLanguages();
    static QString getLanguageAbbrByID(int id);  // empty for an id out of range

    static QString getStrLanguageFallSafe();  // "enu"

  private:
    static const char* const grgszLanguages[];
    static const QString qstrLanguageFallSafe;
};

#endif
