#include "progress-dialog.h"

#include <QFont>
#include <QIcon>
#include <QString>

#include "bundle_layout.h"
#include "calderix-service.h"
#include "strtable.h"

namespace {

const char kStyleSheet[] = " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ";

} // namespace

// A missing or unreadable icon file leaves the dialog without an icon; an
// absent font family is substituted by the toolkit. Neither is reported.
ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags())
{
    const QFont font(QStringLiteral("Arial"));
    const QString icon_path =
        QString::fromUtf8((Service::GetRootCalderixResourceInstallPath() + "/" + layout::kIconEntry).c_str());

    setWindowTitle(StrTable::LoadStr(StrTable::kStrAppName));
    setWindowIcon(QIcon(icon_path));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    // Setting 0 first starts the toolkit's minimum-duration clock, after
    // which a dialog not yet shown shows itself.
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(StrTable::kStrPreparing));
    setFont(font);
    setFixedWidth(400);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(QString::fromLatin1(kStyleSheet));
}
