#ifndef UI_CLIENT_LAUNCHER_TRANSLATIONS_STR_TABLE_ROWS_H
#define UI_CLIENT_LAUNCHER_TRANSLATIONS_STR_TABLE_ROWS_H

#include "ui-client/launcher/translations/str-table.h"

// The content of StrTable, by string id.
struct StrTableRow {
    const char* key;   // ASCII
    const char* text;  // default English text, UTF-8
};

extern const StrTableRow kStrTableRows[StrTable::kRowCount];

#endif
