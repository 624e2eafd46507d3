#include "ui-client/launcher/translations/str-table.h"

#include <QCoreApplication>
#include <utility>

#include "ui-client/launcher/translations/str-table-rows.h"

const char* StrTable::ktab[kRowCount];
const char* StrTable::stab[kRowCount];

void StrTable::InitStrTable() {
    for (int id = 0; id < kRowCount; ++id) {
        ktab[id] = kStrTableRows[id].key;
        stab[id] = kStrTableRows[id].text;
    }
}

QString StrTable::LoadStr(int id) {
    QString text = QCoreApplication::translate("global", stab[id], nullptr, -1);
    text.replace(QLatin1String("\\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\\t"), QLatin1String("\t"));
    return text;
}

int StrTable::LookupStrID(QString key) {
    const QByteArray bytes = std::move(key).toLocal8Bit();
    for (int id = 0; id < kRowCount; ++id) {
        if (qstricmp(bytes.constData(), ktab[id]) == 0) {
            return id;
        }
    }
    return -1;
}
