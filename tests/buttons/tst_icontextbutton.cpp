#include "buttontesthelpers.h"

#include "displaybutton.h"
#include "icontextbutton.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QHelpEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>

using namespace buttontest;

namespace {

const QColor Normal(10, 20, 30);
const QColor Hover(40, 80, 120);
const QColor Press(200, 30, 30);
const QColor Disable(150, 150, 150);

IconTextButton* makeButton(QWidget* parent, IconTextButton::CheckableType type = IconTextButton::CheckableFalse)
{
    auto* button = new IconTextButton(parent);
    button->resize(120, 40);
    button->setBackgroundColor(Normal, Hover, Press, Disable);
    button->setCheckable(type);
    return button;
}

QColor background(IconTextButton* button)
{
    return pixel(button, 3, 3);
}

// Bounding box of the pixels of one colour.
QRect areaOf(const QImage& image, const QColor& color)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (near(image.pixelColor(x, y), color, 2))
                box |= QRect(x, y, 1, 1);
    return box;
}

} // namespace

class IconTextButtonTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void clickModes_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QVariantList>("emitted");   // sigClicked argument per click
        QTest::addColumn<QVariantList>("pressed");   // isChecked() after each click
        QTest::newRow("plain") << int(IconTextButton::CheckableFalse) << QVariantList{true, true}
                               << QVariantList{false, false};
        QTest::newRow("hold") << int(IconTextButton::CheckableHold) << QVariantList{true, true}
                              << QVariantList{true, true};
        QTest::newRow("toggle") << int(IconTextButton::CheckableToggle) << QVariantList{true, false}
                                << QVariantList{true, false};
    }

    void clickModes()
    {
        QFETCH(int, type);
        QFETCH(QVariantList, emitted);
        QFETCH(QVariantList, pressed);
        QWidget parent;
        IconTextButton* button = makeButton(&parent, IconTextButton::CheckableType(type));
        QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
        for (int click = 0; click < emitted.size(); ++click) {
            QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
            QCOMPARE(spy.count(), click + 1);
            QCOMPARE(spy.at(click).at(0), emitted.at(click));
            QCOMPARE(button->isChecked(), pressed.at(click).toBool());
            QVERIFY(near(background(button), pressed.at(click).toBool() ? Press : Hover));
        }
    }

    // isChecked() reports the pressed look, not the stored flag.
    void checkedIsTheDisplayState()
    {
        QWidget parent;
        // A plain button takes the checked look only while hovered.
        IconTextButton* plain = makeButton(&parent);
        plain->setChecked(true);
        QVERIFY(!plain->isChecked());
        sendEnter(plain);
        plain->setChecked(true);
        QVERIFY(plain->isChecked());

        // A held button ignores hover until released in code.
        IconTextButton* hold = makeButton(&parent, IconTextButton::CheckableHold);
        QTest::mouseClick(hold, Qt::LeftButton, {}, QPoint(60, 20));
        sendLeave(hold);
        sendEnter(hold);
        QVERIFY(hold->isChecked());
        hold->setChecked(false);
        QVERIFY(near(background(hold), Normal));
        sendEnter(hold);
        QVERIFY(near(background(hold), Hover));

        // A toggle released outside reports nothing, but its flag flipped at the press:
        // the next click flips it back.
        IconTextButton* toggle = makeButton(&parent, IconTextButton::CheckableToggle);
        QSignalSpy spy(toggle, SIGNAL(sigClicked(bool)));
        QTest::mousePress(toggle, Qt::LeftButton, {}, QPoint(60, 20));
        QTest::mouseRelease(toggle, Qt::LeftButton, {}, QPoint(300, 20));
        QCOMPARE(spy.count(), 0);
        QVERIFY(near(background(toggle), Hover));
        QTest::mouseClick(toggle, Qt::LeftButton, {}, QPoint(60, 20));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toBool(), false);
    }

    void ignoredInputReachesParent()
    {
        PressRecorder parent;
        IconTextButton* button = makeButton(&parent, IconTextButton::CheckableToggle);
        QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
        QTest::mouseClick(button, Qt::RightButton, {}, QPoint(60, 20));
        QCOMPARE(parent.presses, 1);
        QCOMPARE(spy.count(), 0);
        QVERIFY(near(background(button), Normal));

        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
        button->setDisable(true);
        QVERIFY(!button->isChecked());
        QVERIFY(near(background(button), Disable));
        sendEnter(button);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(parent.presses, 2);
        QVERIFY(near(background(button), Disable));

        // Enabling returns to the normal look although the flag is still set.
        button->setDisable(false);
        QVERIFY(near(background(button), Normal));
    }

    void iconAndTextLayout_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QRect>("iconRect");   // null: no icon painted
        const int th = QFontMetrics(QApplication::font()).height();
        const QString text = QStringLiteral("WWWW");
        QTest::newRow("centre") << int(IconTextButton::AlignTextCenter) << text << QRect(55, 15, 10, 10);
        QTest::newRow("right") << int(IconTextButton::AlignTextRight) << text << QRect(4, 15, 10, 10);
        QTest::newRow("bottom") << int(IconTextButton::AlignTextBottom) << text
                                << QRect(55, (40 - 6 - th - 10) / 2, 10, 10);
        // Icon plus caption aligned left paints neither; an icon alone is always centred.
        QTest::newRow("left") << int(IconTextButton::AlignTextLeft) << text << QRect();
        QTest::newRow("left, icon only") << int(IconTextButton::AlignTextLeft) << QString() << QRect(55, 15, 10, 10);
    }

    void iconAndTextLayout()
    {
        QFETCH(int, alignment);
        QFETCH(QString, text);
        QFETCH(QRect, iconRect);
        QWidget parent;
        IconTextButton* button = makeButton(&parent);
        button->setIcon(solid(10, 10, Qt::green), QPixmap(), QPixmap(), QPixmap());
        button->setTextColor(Qt::yellow, Qt::yellow, Qt::yellow, Qt::yellow);
        button->setText(text);
        button->setTextAlignment(IconTextButton::AlignText(alignment));
        const QImage image = render(button);
        const QRect textRect = areaOf(image, Qt::yellow);
        QCOMPARE(areaOf(image, Qt::green), iconRect);
        QCOMPARE(textRect.isNull(), text.isEmpty() || alignment == IconTextButton::AlignTextLeft);
        if (alignment == IconTextButton::AlignTextRight)
            QVERIFY(textRect.left() >= iconRect.right() + 5);
        if (alignment == IconTextButton::AlignTextBottom)
            QVERIFY(textRect.top() > iconRect.bottom());
    }

    void leftMarginAndFontGuards()
    {
        QWidget parent;
        IconTextButton* button = makeButton(&parent);
        button->setIcon(solid(10, 10, Qt::green), QPixmap(), QPixmap(), QPixmap());
        button->setText(QStringLiteral("x"));
        button->setTextAlignment(IconTextButton::AlignTextRight);
        button->setLeftMargin(2);
        button->setLeftMargin(button->width());
        QCOMPARE(areaOf(render(button), Qt::green).left(), 4);
        button->setRadius(3);
        button->setLeftMargin(10);
        QCOMPARE(areaOf(render(button), Qt::green).left(), 13);

        button->setFontPixelSize(20, QStringLiteral("Serif"), true);
        button->setFontPixelSize(9, QString(), false);
        QCOMPARE(button->font().pixelSize(), 20);
        // The same size rejects the whole call, family and weight included.
        button->setFontPixelSize(20, QStringLiteral("Monospace"), false);
        QCOMPARE(button->font().family(), QStringLiteral("Serif"));
        QCOMPARE(button->font().weight(), int(QFont::Bold));
    }

    void underlineHintDotAndBorder()
    {
        QWidget parent;
        IconTextButton* button = makeButton(&parent);
        button->setUnderline(true);
        button->setUnderlineAttribute(Qt::magenta, 2);
        QVERIFY(near(pixel(button, 60, 39), Qt::magenta));
        QVERIFY(near(pixel(button, 60, 20), Normal));

        button->setUnderline(false);
        button->setBorderColor(Qt::cyan, Qt::cyan, Qt::cyan, Qt::cyan);
        button->setBorderWidget(2);
        QVERIFY(near(pixel(button, 0, 20), Qt::cyan));
        QVERIFY(near(pixel(button, 60, 20), Normal));

        // The hint dot's brush stays set, so the border path is filled with the hint colour.
        button->setHintColor(Qt::darkGreen);
        button->enableHintColor(true);
        QVERIFY(near(pixel(button, 60, 20), Qt::darkGreen));
        QVERIFY(near(pixel(button, 0, 20), Qt::cyan));

        button->setBorderWidget(0);
        const QImage image = render(button);
        // Dot in the top-right corner of the (empty) icon box: 6 x 6 at (54, 26).
        QVERIFY(near(image.pixelColor(57, 29), Qt::darkGreen));
        QVERIFY(near(image.pixelColor(57, 22), Normal));
        QVERIFY(near(image.pixelColor(20, 20), Normal));
    }

    void eventFiltering()
    {
        QWidget parent;
        IconTextButton* button = makeButton(&parent);
        button->setText(QStringLiteral("tip"));
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(button, &help);
        QVERIFY(!QToolTip::isVisible());
        button->setEnabledToolTip(true);
        QApplication::sendEvent(button, &help);
        QVERIFY(QToolTip::isVisible());
        QToolTip::hideText();

        QSignalSpy spy(button, SIGNAL(sigClicked(bool)));
        button->setEnableFilterMousePressEvent(true);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(60, 20));
        QCOMPARE(spy.count(), 0);

        QWheelEvent wheel(QPointF(5, 5), QPointF(button->mapToGlobal(QPoint(5, 5))), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        wheel.ignore();
        QApplication::sendEvent(button, &wheel);
        QVERIFY(wheel.isAccepted());
    }

    void displayButtonClicksOnlyInArea()
    {
        DisplayButton button;
        button.resize(100, 80);
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QSignalSpy spy(&button, &DisplayButton::sigClicked);
        for (const QPoint& at : {QPoint(50, 10), QPoint(50, 60)}) {
            QCursor::setPos(button.mapToGlobal(at));
            QTest::mouseClick(&button, Qt::LeftButton, {}, at);
        }
        QCOMPARE(spy.count(), 1);
        // Press colour shows in the area only while the cursor is there.
        QCursor::setPos(button.mapToGlobal(QPoint(50, 60)));
        QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(50, 60));
        QVERIFY(near(pixel(&button, 10, 50), QColor(201, 107, 0)));
        QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(50, 60));
    }

    void repaintsEveryChangeOfLook()
    {
        // A subclass may change the protected members directly.
        struct Rounded : IconTextButton
        {
            void setRadiusDirectly(int r) { m_radius = r; update(); }
        };
        QWidget parent;
        parent.resize(200, 100);
        auto* button = new Rounded;
        button->setParent(&parent);
        button->resize(120, 40);
        button->setBackgroundColor(Normal, Hover, Press, Disable);
        button->setText(QStringLiteral("WWWW"));
        QVERIFY(near(pixel(button, 0, 0), Normal));
        button->setRadiusDirectly(12);
        QVERIFY(!near(pixel(button, 0, 0), Normal));

        // Unset text colours follow the palette.
        QPalette palette = button->palette();
        palette.setColor(QPalette::WindowText, Qt::yellow);
        button->setPalette(palette);
        QVERIFY(!areaOf(render(button), Qt::yellow).isNull());
        palette.setColor(QPalette::WindowText, Qt::green);
        button->setPalette(palette);
        QVERIFY(areaOf(render(button), Qt::yellow).isNull());
        QVERIFY(!areaOf(render(button), Qt::green).isNull());
    }
};

QObject* createIconTextButtonTest()
{
    return new IconTextButtonTest;
}

#include "tst_icontextbutton.moc"
