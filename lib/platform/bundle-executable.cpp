#include <QXmlStreamReader>

#include "lib/platform/open-bundle.h"

namespace {

bool IsFileName(const QString& text) {
    return !text.isEmpty() && !text.contains(QLatin1Char('/')) &&
           !text.contains(QChar(QChar::Null)) && text != QLatin1String(".") &&
           text != QLatin1String("..");
}

}  // namespace

namespace platform {

QString BundleExecutable(const QByteArray& info_plist) {
    QXmlStreamReader xml(info_plist);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("plist") ||
        !xml.readNextStartElement() || xml.name() != QLatin1String("dict")) {
        return QString();
    }
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("key")) {
            key = xml.readElementText();
        } else if (xml.name() == QLatin1String("string") &&
                   key == QLatin1String("CFBundleExecutable")) {
            const QString name = xml.readElementText();
            return !xml.hasError() && IsFileName(name) ? name : QString();
        } else {
            xml.skipCurrentElement();
        }
    }
    return QString();
}

}  // namespace platform
