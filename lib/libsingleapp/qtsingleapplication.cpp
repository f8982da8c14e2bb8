#include "qtsingleapplication.h"

#include "instance_lock_p.h"
#include "user_service_lock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVector>

namespace {

// Numbered per-user folders tried in the temporary folder before the home folder.
constexpr int kTempFolderChoices = 4;

struct LockPlace {
    QString folder;
    singleapp::FolderUse use;
};

// Returns the folder the per-user lock folders go in. Qt reports an empty path
// when $TMPDIR names nothing; an absolute $TMPDIR is then still tried (and
// fails on its own), anything else falls back to /tmp.
QString temporaryFolder()
{
    const QString qtTemp = QDir::tempPath();
    if (QDir::isAbsolutePath(qtTemp))
        return qtTemp;
    const QString env = qEnvironmentVariable("TMPDIR");
    return QDir::isAbsolutePath(env) ? QDir::cleanPath(env) : QStringLiteral("/tmp");
}

// Returns the places for the lock file, best first. Every instance of one user
// walks the same list in the same order, so a place spoilt by another user is
// skipped by all of them alike and they still meet on one lock file. A
// stranger who removes such a folder between two starts can at worst let both
// of them run; he can never keep one from running.
QVector<LockPlace> lockPlaces(unsigned uid)
{
    QVector<LockPlace> places;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    // The session owns its runtime folder: it is neither made nor mended here.
    if (QDir::isAbsolutePath(runtime))
        places.push_back({QDir::cleanPath(runtime), singleapp::FolderUse::Given});
    const QString base = temporaryFolder() + QStringLiteral("/calderix-singleapp-") + QString::number(uid);
    places.push_back({base, singleapp::FolderUse::Own});
    for (int i = 1; i < kTempFolderChoices; ++i)
        places.push_back({base + QLatin1Char('-') + QString::number(i), singleapp::FolderUse::Own});
    // Anyone may take any name in a shared temporary folder, nobody else can in our home.
    const QString home = qEnvironmentVariable("HOME");
    if (QDir::isAbsolutePath(home))
        places.push_back(
            {QDir::cleanPath(home) + QStringLiteral("/.calderix-singleapp"), singleapp::FolderUse::Own});
    return places;
}

// Returns the lock file name of executable `exe` for user `uid`: a copy at
// another path, or another user, gets another name and runs independently.
QString lockFileName(const QString& exe, unsigned uid)
{
    QString canonical = QFileInfo(exe).canonicalFilePath();
    // Empty when the executable was replaced on disk while running.
    if (canonical.isEmpty())
        canonical = exe;
    const QByteArray digest =
        QCryptographicHash::hash(QFile::encodeName(canonical), QCryptographicHash::Sha256).toHex().left(32);
    return QStringLiteral("calderix-singleapp-%1-%2.lock").arg(uid).arg(QString::fromLatin1(digest));
}

} // namespace

SingleInstanceGuard::SingleInstanceGuard(const QString& executablePath) : executablePath_(executablePath) {}

SingleInstanceGuard::~SingleInstanceGuard()
{
    if (lockHandle_ >= 0)
        singleapp::releaseInstanceLock(lockHandle_);
}

// Claims the instance in the first usable place. Returns Owner with the lock
// held, Running when another process holds it, or Unguarded when no place
// could hold a lock at all.
SingleInstanceGuard::State SingleInstanceGuard::claim()
{
    const unsigned uid = singleapp::currentUserId();
    const QString fileName = lockFileName(executablePath_, uid);
    for (const LockPlace& place : lockPlaces(uid)) {
        const singleapp::LockAttempt attempt = singleapp::tryInstanceLock(place.folder, fileName, place.use);
        if (attempt.status == singleapp::LockStatus::Acquired) {
            lockHandle_ = attempt.handle;
            return State::Owner;
        }
        if (attempt.status == singleapp::LockStatus::HeldElsewhere)
            return State::Running;
    }
    // Every place is missing or controlled by somebody else. Refusing to
    // start would let another user keep this user's program from running at
    // all, so this process runs without the guard instead.
    qWarning(
        "QtSingleApplication: no private folder for the instance lock; a second instance is not refused");
    return State::Unguarded;
}

UserServiceLock::~UserServiceLock()
{
    release();
}

// The first place that can hold a lock decides, as for the instance: every
// run of this user walks the same list and so waits on the same file.
bool UserServiceLock::acquire()
{
    if (handle_ >= 0)
        return true;
    const unsigned uid = singleapp::currentUserId();
    const QString fileName = QStringLiteral("calderix-service-%1.lock").arg(uid);
    for (const LockPlace& place : lockPlaces(uid)) {
        const singleapp::LockAttempt attempt =
            singleapp::tryInstanceLock(place.folder, fileName, place.use, singleapp::LockWait::Yes);
        if (attempt.status == singleapp::LockStatus::Acquired) {
            handle_ = attempt.handle;
            return true;
        }
    }
    return false;
}

void UserServiceLock::release()
{
    if (handle_ >= 0)
        singleapp::releaseInstanceLock(handle_);
    handle_ = -1;
}

bool SingleInstanceGuard::isRunning()
{
    if (state_ == State::Unchecked)
        state_ = claim();
    return state_ == State::Running;
}

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool GUIenabled)
    : QApplication(argc, argv), guard_(new SingleInstanceGuard(QCoreApplication::applicationFilePath()))
{
    Q_UNUSED(GUIenabled);
}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning()
{
    return guard_->isRunning();
}
