#include "ui-client/launcher/progress-dialog.h"

#include <QApplication>
#include <QFont>
#include <QIcon>

#include "lib/install-layout.h"
#include "ui-client/launcher/tarnwell-service.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

QFont DialogFont() {
    return QFont(QStringLiteral("Arial"), -1, -1, false);
}

}  // namespace

std::unique_ptr<ProcessingProgressDialog> ProcessingProgressDialog::Create() {
    QFont font = QApplication::font();
    font.setFamily(DialogFont().family());
    QApplication::setFont(font);
    return std::make_unique<ProcessingProgressDialog>();
}

ProcessingProgressDialog::ProcessingProgressDialog() {
    const QString icon = QString::fromUtf8(Service::GetRootTarnwellResourceInstallPath().c_str()) +
                         QLatin1Char('/') + QString::fromLatin1(install_layout::kIcon);
    setWindowTitle(StrTable::LoadStr(StrTable::kAppName));
    setWindowIcon(QIcon(icon));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(StrTable::kPreparing));
    setFont(DialogFont());
    setFixedWidth(400);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(
        QStringLiteral(" QProgressDialog { background-color: WhiteSmoke; \n"
                       "  vertical-align: middle } "));
}
