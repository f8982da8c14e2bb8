// The floor for the launcher's start when there is nothing to upgrade: a Qt
// widgets application that is constructed, enters its event loop and quits.
// It loads its platform plug-in the same way the launcher does, from
// Contents/Frameworks/plugins beside its executable, so both pay for the
// same plug-in search.
#include <QApplication>
#include <QDir>
#include <QStringList>
#include <QTimer>

int main(int argc, char* argv[])
{
    const QString exe = (argc > 0 && argv[0] != nullptr) ? QString::fromUtf8(argv[0]) : QString();
    const QString plugins = QDir::cleanPath(exe + "/../../Frameworks/plugins");
    QCoreApplication::setLibraryPaths(QStringList{plugins});
    QApplication app(argc, argv);
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return app.exec();
}
