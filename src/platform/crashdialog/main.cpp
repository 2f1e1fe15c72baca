// vorlin-crashdialog TITLE TEXT: shows the crash box of a crashing process and waits until
// the user closes it. Without a display the text goes to standard error.
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <cstdio>
#include <cstdlib>

static bool hasDisplay()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.startsWith("offscreen") || platform.startsWith("minimal"))
        return false;
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s TITLE TEXT\n", argv[0]);
        return 2;
    }
    if (!hasDisplay()) {
        std::fprintf(stderr, "%s: %s\n", argv[1], argv[2]);
        return 0;
    }
    QApplication app(argc, argv);
    QMessageBox::critical(nullptr, QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    return 0;
}
