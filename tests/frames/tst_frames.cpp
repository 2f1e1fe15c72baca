#include "framestest.h"

#include "basecustomdialog.h"
#include "basecustomwidget.h"
#include "imainwindow.h"
#include "imovedialog.h"
#include "imovewidget.h"
#include "mainapplication.h"
#include "separatelinewidget.h"
#include "shadowwidget.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>

#include <memory>

using namespace framestest;

int runDialogTests(int argc, char** argv);
int runTitleBarTests(int argc, char** argv);

namespace {

// A main window with the protected parts a derived window uses made reachable.
class TestMainWindow : public IMainWindow
{
public:
    TestMainWindow() { initWindowStyle(); }

    using IMainWindow::initStatusBarWidgetUI;
    using IMainWindow::setDeviceLinked;
    using IMainWindow::slotUpdateDevLinkStatusUI;
};

// One frameless window of any family behind its family's band test.
struct Frame
{
    std::unique_ptr<QWidget> widget;
    std::function<int(const QPoint&)> hitTest;
};

template <typename Window>
Frame frameOf()
{
    auto* w = new Window;
    return {std::unique_ptr<QWidget>(w), [w](const QPoint& p) { return w->hitTest(p); }};
}

Frame makeFrame(const QString& family)
{
    if (family == QLatin1String("main"))
        return frameOf<IMainWindow>();
    if (family == QLatin1String("moveDialog"))
        return frameOf<IMoveDialog>();
    if (family == QLatin1String("moveWidget"))
        return frameOf<IMoveWidget>();
    if (family == QLatin1String("customDialog"))
        return frameOf<BaseCustomDialog>();
    return frameOf<BaseCustomWidget>();
}

const QSize frameSize(1200, 800);

// Places a window on the screen and waits until it is shown there.
bool showAt(QWidget* window, const QRect& geometry)
{
    window->setGeometry(geometry);
    window->show();
    return QTest::qWaitForWindowExposed(window);
}

} // namespace

class FramesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void bandTest_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QPoint>("pos");
        QTest::addColumn<int>("expected");
        const int w = frameSize.width();
        const int h = frameSize.height();
        const int midX = w / 2;
        const int midY = h / 2;

        // The band arithmetic is shared; the main window's rows cover it, the other families
        // what differs. The main window: 8-pixel bands, the plain right band two pixels narrower.
        QTest::newRow("main: column 0") << "main" << "" << QPoint(0, midY) << 0;
        QTest::newRow("main: left") << "main" << "" << QPoint(7, midY) << 10;
        QTest::newRow("main: left ends at m") << "main" << "" << QPoint(8, midY) << 0;
        QTest::newRow("main: W-7 is no right edge") << "main" << "" << QPoint(w - 7, midY) << 0;
        QTest::newRow("main: W-5 is the right edge") << "main" << "" << QPoint(w - 5, midY) << 11;
        QTest::newRow("main: W-7 at the top is the corner") << "main" << "" << QPoint(w - 7, 3) << 14;
        QTest::newRow("main: top") << "main" << "" << QPoint(midX, 1) << 12;
        QTest::newRow("main: bottom") << "main" << "" << QPoint(midX, h - 7) << 15;
        QTest::newRow("main: top-left") << "main" << "" << QPoint(1, 1) << 13;
        QTest::newRow("main: bottom-left") << "main" << "" << QPoint(3, h - 3) << 16;
        QTest::newRow("main: bottom-right") << "main" << "" << QPoint(w - 7, h - 1) << 17;
        QTest::newRow("main: maximised") << "main" << "maximized" << QPoint(1, 1) << 0;

        // The movable frames: a full-width right band, and the move-and-zoom gate.
        QTest::newRow("moveDialog: W-7 is the right edge") << "moveDialog" << "" << QPoint(w - 7, midY) << 11;
        QTest::newRow("moveDialog: W-8 is not") << "moveDialog" << "" << QPoint(w - 8, midY) << 0;
        QTest::newRow("moveDialog: maximised") << "moveDialog" << "maximized" << QPoint(5, midY) << 0;
        QTest::newRow("moveDialog: full screen") << "moveDialog" << "fullScreen" << QPoint(5, midY) << 0;
        QTest::newRow("moveWidget: left") << "moveWidget" << "" << QPoint(5, midY) << 10;
        QTest::newRow("moveWidget: move and zoom off") << "moveWidget" << "noMoveZoom" << QPoint(5, midY) << 0;

        // The shells: bands from the border width, n - 1 pixels wide, also when maximised.
        QTest::newRow("customDialog: default border has no band") << "customDialog" << "" << QPoint(1, midY) << 0;
        QTest::newRow("customDialog: border 6, W-3") << "customDialog" << "border6" << QPoint(w - 3, midY) << 11;
        QTest::newRow("customDialog: border 6, W-6") << "customDialog" << "border6" << QPoint(w - 6, midY) << 0;
        QTest::newRow("customWidget: default border has no band") << "customWidget" << "" << QPoint(w - 1, midY) << 0;
        QTest::newRow("customWidget: border 6 maximised") << "customWidget" << "border6 maximized" << QPoint(1, 1) << 13;
    }

    void bandTest()
    {
        QFETCH(QString, family);
        QFETCH(QString, setup);
        QFETCH(QPoint, pos);
        QFETCH(int, expected);

        Frame frame = makeFrame(family);
        QWidget* widget = frame.widget.get();
        widget->setMinimumSize(0, 0);
        widget->resize(frameSize);
        if (setup.contains(QLatin1String("border6")))
            QMetaObject::invokeMethod(widget, [widget] {
                if (auto* d = qobject_cast<BaseCustomDialog*>(widget))
                    d->SetBorder(6);
                else
                    static_cast<BaseCustomWidget*>(widget)->SetBorder(6);
            });
        if (setup == QLatin1String("noMoveZoom"))
            QVERIFY(QMetaObject::invokeMethod(widget, "setEnableMoveZoom", Q_ARG(bool, false)));
        // The band is tested in the window's own size, so a maximised window keeps the
        // size the rows were written for.
        if (setup.contains(QLatin1String("maximized")))
            widget->setWindowState(Qt::WindowMaximized);
        if (setup.contains(QLatin1String("fullScreen")))
            widget->setWindowState(Qt::WindowFullScreen);
        widget->resize(frameSize);
        QCOMPARE(frame.hitTest(pos), expected);
    }

    void dragsStartOnlyOffTheBand()
    {
        IMoveWidget widget;
        QVERIFY(showAt(&widget, QRect(100, 100, 400, 300)));

        // 5 pixels inside the left edge lies on the band: no drag.
        dragTo(&widget, QPoint(5, 150), QPoint(400, 400));
        QCOMPARE(widget.pos(), QPoint(100, 100));

        // 10 pixels inside starts one; the grab point stays under the cursor.
        dragTo(&widget, QPoint(10, 150), QPoint(400, 400));
        QCOMPARE(widget.pos(), QPoint(390, 250));

        // Switching resizing off keeps dragging.
        widget.setEnableMoveZoom(false);
        dragTo(&widget, QPoint(200, 100), QPoint(300, 300));
        QCOMPARE(widget.pos(), QPoint(100, 200));

        // A shell's default border of 1 insets its drag area by 2.
        BaseCustomDialog dialog;
        QVERIFY(showAt(&dialog, QRect(100, 100, 300, 200)));
        dragTo(&dialog, QPoint(1, 100), QPoint(400, 400));
        QCOMPARE(dialog.pos(), QPoint(100, 100));
        dragTo(&dialog, QPoint(2, 100), QPoint(400, 400));
        QCOMPARE(dialog.pos(), QPoint(398, 300));
    }

    void snapPreviewAndRestoreFromMaximised()
    {
        IMoveDialog dialog;
        QVERIFY(showAt(&dialog, QRect(100, 100, 400, 300)));
        const int normalWidth = dialog.width();
        auto* preview = dialog.findChild<ShadowWidget*>();
        QVERIFY(preview);
        QVERIFY(!preview->isVisible());
        QVERIFY(qAbs(preview->windowOpacity() - 0.1) < 0.01); // stored in eight bits

        const QPoint local(200, 150);
        const QPoint press = dialog.mapToGlobal(local);
        sendMouse(&dialog, QEvent::MouseButtonPress, local, press, Qt::LeftButton, Qt::LeftButton);
        sendMouse(&dialog, QEvent::MouseMove, local, QPoint(300, 2), Qt::NoButton, Qt::LeftButton);
        QVERIFY(!preview->isVisible());
        sendMouse(&dialog, QEvent::MouseMove, local, QPoint(300, 1), Qt::NoButton, Qt::LeftButton);
        QVERIFY(preview->isVisible());
        const QRect available = QGuiApplication::screenAt(QPoint(300, 1))->availableGeometry();
        QCOMPARE(preview->geometry(), available.adjusted(5, 0, -5, -5));

        // A release at y = 2 does not snap.
        sendMouse(&dialog, QEvent::MouseButtonRelease, local, QPoint(300, 2), Qt::LeftButton, Qt::NoButton);
        QVERIFY(!preview->isVisible());
        QVERIFY(!dialog.isMaximized());

        dragTo(&dialog, QPoint(200, 150), QPoint(300, 1));
        QVERIFY(dialog.isMaximized());
        QVERIFY(!preview->isVisible());

        // Dragging the maximised window restores it under the cursor: at the same relative
        // place across the width, and 10 pixels above the top.
        QTRY_VERIFY(dialog.width() > normalWidth);
        const int maximisedWidth = dialog.width();
        const QPoint grab(maximisedWidth / 2, 20);
        const QPoint global = dialog.mapToGlobal(grab);
        sendMouse(&dialog, QEvent::MouseButtonPress, grab, global, Qt::LeftButton, Qt::LeftButton);
        sendMouse(&dialog, QEvent::MouseMove, grab, global, Qt::NoButton, Qt::LeftButton);
        QVERIFY(!dialog.isMaximized());
        QCOMPARE(dialog.pos(), global - QPoint(grab.x() * normalWidth / maximisedWidth, grab.y() + 10));
        sendMouse(&dialog, QEvent::MouseButtonRelease, grab, global, Qt::LeftButton, Qt::NoButton);
    }

    void mainWindowTitleDragsAndDoubleClicks()
    {
        TestMainWindow window;
        auto* title = new QWidget(&window);
        title->setGeometry(0, 0, 1100, 40);
        window.SetTitleWidget(title);
        QVERIFY(showAt(&window, QRect(50, 60, 1100, 700)));

        // Left button below the title: nothing moves.
        dragTo(&window, QPoint(300, 200), QPoint(500, 500));
        QCOMPARE(window.pos(), QPoint(50, 60));

        dragTo(&window, QPoint(300, 20), QPoint(500, 500));
        QCOMPARE(window.pos(), QPoint(200, 480));

        // The middle button moves from anywhere.
        const QPoint local(400, 400);
        sendMouse(&window, QEvent::MouseButtonPress, local, window.mapToGlobal(local), Qt::MiddleButton, Qt::MiddleButton);
        sendMouse(&window, QEvent::MouseMove, local, QPoint(410, 420), Qt::NoButton, Qt::MiddleButton);
        sendMouse(&window, QEvent::MouseButtonRelease, local, QPoint(410, 420), Qt::MiddleButton, Qt::NoButton);
        QCOMPARE(window.pos(), QPoint(10, 20));

        // A double click at the very top: the release would snap, but the double click
        // already toggles, so the window ends maximised once, not restored again.
        QSignalSpy toggles(&window, &IMainWindow::sigShowMaxRestore);
        const auto doubleClick = [&window] {
            const QPoint local(300, 1);
            const QPoint global(window.mapToGlobal(local).x(), 1);
            sendMouse(&window, QEvent::MouseButtonDblClick, local, global, Qt::LeftButton, Qt::LeftButton);
            sendMouse(&window, QEvent::MouseButtonRelease, local, global, Qt::LeftButton, Qt::NoButton);
        };
        doubleClick();
        QCOMPARE(toggles.count(), 1);
        QVERIFY(!window.isMaximized()); // queued: the double click is handled first
        QTRY_VERIFY(window.isMaximized());
        doubleClick();
        QCOMPARE(toggles.count(), 2);
        QTRY_VERIFY(!window.isMaximized());

        // Below the title a double click toggles nothing.
        const QPoint below(300, 300);
        sendMouse(&window, QEvent::MouseButtonDblClick, below, window.mapToGlobal(below), Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(toggles.count(), 2);

        // A title drag released in the top pixel row snaps.
        dragTo(&window, QPoint(300, 20), QPoint(500, 1));
        QVERIFY(window.isMaximized());
    }

    void borderLinesFollowTheSize()
    {
        IMainWindow window;
        window.setBorderColor(Qt::red);
        window.setBorderColor(Qt::blue); // recolours, creates no second set
        const QList<SeparateLineWidget*> lines = window.findChildren<SeparateLineWidget*>();
        QCOMPARE(lines.size(), 4);
        window.resize(1200, 750);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QList<QRect> expected{QRect(0, 0, 1200, 1), QRect(0, 0, 1, 750), QRect(1199, 0, 1, 750),
                              QRect(0, 749, 1200, 1)};
        for (SeparateLineWidget* line : lines) {
            QCOMPARE(line->color(), QColor(Qt::blue));
            QVERIFY2(expected.removeOne(line->geometry()), "a line out of place");
        }
    }

    void softOutlineDarkensTheEdge()
    {
        IMainWindow window;
        window.setStyleSheet(QStringLiteral("IMainWindow { background: white; }"));
        window.resize(1100, 700);
        const QImage image = window.grab().toImage();
        QVERIFY(qGray(image.pixel(0, 350)) < 235); // half of the 150-alpha ring falls inside
        QCOMPARE(qGray(image.pixel(20, 350)), 255);
    }

    void linkIndicator()
    {
        TestMainWindow window;
        window.initStatusBarWidgetUI(true); // no status bar: nothing happens
        QVERIFY(!window.findChild<QLabel*>(QStringLiteral("labelLinkImg")));

        window.setStatusBar(new QStatusBar);
        window.initStatusBarWidgetUI(true);
        auto* image = window.statusBar()->findChild<QLabel*>(QStringLiteral("labelLinkImg"));
        QVERIFY(image);

        // Not linked: the red image blinks.
        QList<bool> shown;
        for (int i = 0; i < 4; ++i) {
            window.slotUpdateDevLinkStatusUI();
            shown << !image->pixmap(Qt::ReturnByValue).isNull();
        }
        QCOMPARE(shown.count(true), 2);
        QVERIFY(shown[0] != shown[1]);

        // Linked: the green image, steadily.
        window.setDeviceLinked(true);
        for (int i = 0; i < 2; ++i) {
            window.slotUpdateDevLinkStatusUI();
            const QImage shownImage = image->pixmap(Qt::ReturnByValue).toImage();
            QCOMPARE(shownImage.size(), QSize(22, 22));
            const QColor centre = shownImage.pixelColor(11, 11);
            QVERIFY(centre.green() > centre.red());
        }
    }

    void customDialogSwallowsDialogKeys()
    {
        BaseCustomDialog dialog;
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(&dialog, key);
        QVERIFY(dialog.isVisible());
        QCOMPARE(finished.count(), 0);
    }

    void customShellButtons()
    {
        BaseCustomWidget widget;
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        QSignalSpy menu(&widget, &BaseCustomWidget::sigShowMenu);
        widget.findChild<QAbstractButton*>(QStringLiteral("pBtnMenu"))->click();
        QCOMPARE(menu.count(), 1);
        widget.HiddenSysButton(true, false);
        QVERIFY(widget.findChild<QAbstractButton*>(QStringLiteral("pBtnMenu"))->isHidden());
        widget.findChild<QAbstractButton*>(QStringLiteral("pBtnClose"))->click();
        QVERIFY(!widget.isVisible());
    }

    void customShellSkinsAndOutlines()
    {
        QTemporaryDir dir;
        const QString red = dir.filePath(QStringLiteral("red.png"));
        QImage skin(8, 8, QImage::Format_RGB32);
        skin.fill(Qt::red);
        QVERIFY(skin.save(red));

        BaseCustomDialog dialog;
        dialog.setBackgroundColor(Qt::blue);
        dialog.resize(300, 240);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QWidget* title = dialog.findChild<QWidget*>(QStringLiteral("titleWidget"));
        QWidget* container = dialog.findChild<QWidget*>(QStringLiteral("ContainerFrame"));
        const auto colourAt = [&dialog](QWidget* area, QPoint pos) {
            return dialog.grab().toImage().pixelColor(area->mapTo(&dialog, pos));
        };
        const QPoint inside(container->width() / 2, container->height() / 2);
        // Without skins: the blue body shows through the container.
        QCOMPARE(colourAt(container, inside), QColor(Qt::blue));

        dialog.slotUpdateBackgroundSkin(red, red);
        QCOMPARE(colourAt(container, inside), QColor(Qt::red));
        QCOMPARE(colourAt(title, QPoint(title->width() / 2, title->height() / 2)), QColor(Qt::red));

        // A skin that does not load paints nothing, not even the outline.
        dialog.slotUpdateBackgroundSkin(QString(), dir.filePath(QStringLiteral("missing.png")));
        QCOMPARE(colourAt(container, inside), QColor(Qt::blue));
        QCOMPARE(colourAt(title, QPoint(title->width() / 2, title->height() / 2)), QColor(Qt::blue));
    }
};

int main(int argc, char** argv)
{
    MainApplication app(argc, argv);
    FramesTest frames;
    int failures = QTest::qExec(&frames, argc, argv);
    failures += runDialogTests(argc, argv);
    failures += runTitleBarTests(argc, argv);
    return failures;
}

#include "tst_frames.moc"
