// The floor for the launcher's start when there is nothing to upgrade: a Qt
// widgets application that is constructed, enters its event loop and quits.
// With --window it first shows a plain window of the progress dialog's
// width and quits once that has been painted: the floor for the memory of
// a launcher that shows its dialog.
// It loads its platform plug-in the same way the launcher does, from
// Contents/Frameworks/plugins beside its executable, so both pay for the
// same plug-in search.
#include <QApplication>
#include <QDir>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <cstring>

namespace {

class Window : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QTimer::singleShot(0, qApp, &QCoreApplication::quit); }
};

} // namespace

int main(int argc, char* argv[])
{
    const QString exe = (argc > 0 && argv[0] != nullptr) ? QString::fromUtf8(argv[0]) : QString();
    const QString plugins = QDir::cleanPath(exe + "/../../Frameworks/plugins");
    QCoreApplication::setLibraryPaths(QStringList{plugins});
    QApplication app(argc, argv);
    Window window;
    if (argc > 1 && std::strcmp(argv[1], "--window") == 0) {
        window.resize(400, 120);
        window.show();
    } else {
        QTimer::singleShot(0, &app, &QCoreApplication::quit);
    }
    return app.exec();
}
