// What needs a real X server: the edge resize through the native window's mouse events,
// the resize cursors over child widgets, stay-on-top and window-state changes.
#include "imainwindow.h"
#include "imovewidget.h"
#include "ititlebarwidget.h"
#include "mainapplication.h"

#include <QtCore/QDir>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace {

class TestMainWindow : public IMainWindow
{
public:
    TestMainWindow() { initWindowStyle(); }
    using IMainWindow::showStayOnTopOrNot;
};

class TitleBar : public ITitleBarWidget
{
public:
    TitleBar() { initSysBtnLayout(); }
};

} // namespace

class FramesX11Test : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void edgeBandsResizeOverChildren()
    {
        IMoveWidget widget;
        widget.setMinimumSize(200, 150);
        auto* layout = new QVBoxLayout(&widget);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* child = new QLabel(QStringLiteral("covers the edges"));
        child->setCursor(Qt::IBeamCursor);
        layout->addWidget(child);
        widget.setGeometry(100, 100, 400, 300);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        QWindow* native = widget.windowHandle();

        // Hovering the band over the child shows the resize cursor; leaving it gives the
        // child's cursor back.
        QTest::mouseMove(native, QPoint(397, 150));
        QTRY_COMPARE(native->cursor().shape(), Qt::SizeHorCursor);
        QTest::mouseMove(native, QPoint(3, 297));
        QTRY_COMPARE(native->cursor().shape(), Qt::SizeBDiagCursor);
        QTest::mouseMove(native, QPoint(200, 150));
        QTRY_COMPARE(native->cursor().shape(), Qt::IBeamCursor);

        // With no window manager to resize it, the window follows the mouse itself.
        QTest::mousePress(native, Qt::LeftButton, Qt::NoModifier, QPoint(397, 150));
        QTest::mouseMove(native, QPoint(447, 150));
        QTest::mouseRelease(native, Qt::LeftButton, Qt::NoModifier, QPoint(447, 150));
        QTRY_COMPARE(widget.geometry(), QRect(100, 100, 450, 300));

        // The top-left corner moves the origin and stops at the minimum size.
        QTest::mousePress(native, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QTest::mouseMove(native, QPoint(403, 303));
        QTest::mouseRelease(native, Qt::LeftButton, Qt::NoModifier, QPoint(403, 303));
        QTRY_COMPARE(widget.geometry(), QRect(350, 250, 200, 150));

        // Switched off, the band is ordinary surface.
        widget.setEnableMoveZoom(false);
        QTest::mousePress(native, Qt::LeftButton, Qt::NoModifier, QPoint(197, 75));
        QTest::mouseMove(native, QPoint(150, 75));
        QTest::mouseRelease(native, Qt::LeftButton, Qt::NoModifier, QPoint(150, 75));
        QTest::qWait(50);
        QCOMPARE(widget.size(), QSize(200, 150));
    }

    void stayOnTopTogglesAndKeepsThePlace()
    {
        TestMainWindow window;
        window.setGeometry(40, 50, 1100, 700);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.showStayOnTopOrNot();
        QVERIFY(window.windowFlags() & Qt::WindowStaysOnTopHint);
        QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(window.geometry(), QRect(40, 50, 1100, 700));
        window.showStayOnTopOrNot();
        QVERIFY(!(window.windowFlags() & Qt::WindowStaysOnTopHint));
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(window.geometry(), QRect(40, 50, 1100, 700));
    }

    void titleBarFollowsRealStateChanges()
    {
        TestMainWindow window;
        auto* bar = new TitleBar;
        window.setMenuWidget(bar);
        QPixmap maximise(8, 8);
        maximise.fill(Qt::blue);
        QPixmap restore(8, 8);
        restore.fill(Qt::yellow);
        const QString dir = QDir::tempPath();
        maximise.save(dir + QStringLiteral("/frames-max.png"));
        restore.save(dir + QStringLiteral("/frames-restore.png"));
        bar->setSysBtnIcon(QString(), QString(), dir + QStringLiteral("/frames-max.png"),
                           dir + QStringLiteral("/frames-restore.png"));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* max = bar->findChild<QToolButton*>(QStringLiteral("max_button"));
        const auto colour = [max] { return max->icon().pixmap(8, 8).toImage().pixelColor(4, 4); };

        max->click();
        QTRY_VERIFY(window.isMaximized());
        QCOMPARE(colour(), QColor(Qt::yellow));
        max->click();
        QTRY_VERIFY(!window.isMaximized());
        QCOMPARE(colour(), QColor(Qt::blue));
    }
};

int main(int argc, char** argv)
{
    MainApplication app(argc, argv);
    FramesX11Test test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_frames_x11.moc"
