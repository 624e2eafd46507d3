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

QString PropertyListText(const QByteArray& list, const QString& wanted) {
    QXmlStreamReader xml(list);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("plist") ||
        !xml.readNextStartElement() || xml.name() != QLatin1String("dict")) {
        return QString();
    }
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("key")) {
            key = xml.readElementText();
        } else if (xml.name() == QLatin1String("string") && key == wanted) {
            const QString text = xml.readElementText();
            return xml.hasError() ? QString() : text;
        } else {
            xml.skipCurrentElement();
        }
    }
    return QString();
}

QString BundleExecutable(const QByteArray& info_plist) {
    const QString name = PropertyListText(info_plist, QStringLiteral("CFBundleExecutable"));
    return IsFileName(name) ? name : QString();
}

}  // namespace platform
