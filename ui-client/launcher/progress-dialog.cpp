#include "progress-dialog.h"

#include <string>

#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QString>

#include "bundle_layout.h"
#include "calderix-service.h"
#include "regular_file.h"
#include "strtable.h"

namespace {

const char kStyleSheet[] = " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ";

} // namespace

// A missing or unreadable icon file leaves the dialog without an icon; an
// absent font family is substituted by the toolkit. Neither is reported.
ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags())
{
    const QFont font(QStringLiteral("Arial"));
    const std::string icon_path =
        std::string((Service::GetRootCalderixResourceInstallPath() + "/" + layout::kIconEntry).c_str());

    setWindowTitle(StrTable::LoadStr(StrTable::kStrAppName));
    // Read here, as a regular file only: the toolkit would open a FIFO in
    // its place when it first paints the icon, and wait there for ever.
    std::string bytes;
    QPixmap icon;
    if (platform::ReadRegularFile(icon_path, platform::kSmallFileLimit, bytes) == 0 &&
        icon.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<uint>(bytes.size()))) {
        setWindowIcon(QIcon(icon));
    }
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
