#ifndef UI_CLIENT_LAUNCHER_TRANSLATIONS_STR_TABLE_H
#define UI_CLIENT_LAUNCHER_TRANSLATIONS_STR_TABLE_H

#include <QString>

// The texts of the user interface, by string id (0 to 599). Each has a symbolic key and a default
// English text, which the catalogs translate in the context "global". The client's other programs
// share the table; the launcher uses the three rows named below.
//
// Threads: InitStrTable() runs once, before the others; these may then be called from any thread.
class StrTable {
  public:
    enum : int {
        kRowCount = 600,
        kPreparationDone = 43,  // label after a successful upgrade
        kPreparing = 347,       // label while an upgrade runs
        kAppName = 493          // title of the dialog
    };

    static void InitStrTable();

    // The text of an id, which must be in range, in the language of the installed translator, or
    // in English when there is none. "\n" and "\t", written as two characters in a catalog, become
    // a line break and a tab.
    static QString LoadStr(int id);

    // The id of a key, which is compared without regard to letter case; -1 when there is none.
    static int LookupStrID(QString key);

  private:
    static const char* ktab[kRowCount];  // keys
    static const char* stab[kRowCount];  // default texts
};

#endif
