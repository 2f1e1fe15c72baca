#include "displaytest.h"

#include "qrcodelabel.h"
#include "verifycodelabel.h"

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

using namespace displaytest;

namespace {

class CodeProbe : public VerifyCodeLabel
{
public:
    using VerifyCodeLabel::produceRandomLetter;
};

const QString excluded = QStringLiteral("0oOLl1iI");

} // namespace

class CodesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void lettersAvoidConfusableCharacters()
    {
        CodeProbe label;
        QSet<int> classes;
        for (int i = 0; i < 5000; ++i) {
            const QChar c = label.produceRandomLetter();
            QVERIFY2(c.isLetterOrNumber() && c.unicode() < 128, qPrintable(QString(c)));
            QVERIFY2(!excluded.contains(c), qPrintable(QString(c)));
            classes.insert(c.isDigit() ? 0 : c.isLower() ? 1 : 2);
        }
        QCOMPARE(classes.size(), 3);
    }

    void codeRefreshesAndPaints()
    {
        VerifyCodeLabel label;
        label.resize(120, 40);
        QSignalSpy changed(&label, &VerifyCodeLabel::sigVerificationCodeChanged);
        QVERIFY(changed.wait(2000)); // the first code comes by itself
        QCOMPARE(label.getVerificationCode().size(), 4);

        const int before = changed.count();
        QTest::mouseClick(&label, Qt::RightButton);
        QCOMPARE(changed.count(), before);
        QTest::mouseClick(&label, Qt::LeftButton);
        QCOMPARE(changed.count(), before + 1);

        label.setBackgroundColor(QColor(250, 250, 250));
        const QImage image = render(&label);
        int background = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                background += near(image.pixel(x, y), QColor(250, 250, 250), 0);
        // Mostly background, but noise and characters cover part of it.
        QVERIFY(background > image.width() * image.height() / 2);
        QVERIFY(background < image.width() * image.height() - 100);
    }

    void qrCodeDecodesBackToTheText()
    {
        const QString zbar = QStandardPaths::findExecutable(QStringLiteral("zbarimg"));
        if (zbar.isEmpty())
            QSKIP("zbarimg (zbar-tools) is not installed");
        const QString text = QStringLiteral("vorlin QR label #42: level H, 8-bit mode");
        QRcodeLabel label;
        label.resize(300, 300);
        label.GenerateQRcode(text);
        QVERIFY(!label.pixmap(Qt::ReturnByValue).isNull());

        // The label adds no quiet zone; a decoder needs one.
        QImage framed(380, 380, QImage::Format_RGB32);
        framed.fill(Qt::white);
        QPainter(&framed).drawPixmap(40, 40, label.pixmap(Qt::ReturnByValue));
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("code.png"));
        QVERIFY(framed.save(file));
        QProcess decoder;
        decoder.start(zbar, {QStringLiteral("--raw"), QStringLiteral("-q"), file});
        QVERIFY(decoder.waitForFinished(30000));
        QCOMPARE(QString::fromUtf8(decoder.readAllStandardOutput()).trimmed(), text);
    }

    void qrModulesStretchToTheLabel()
    {
        // A short text gives the minimum 25-module symbol. Its finder pattern's dark
        // ring is modules 0 and 6; module 7 is light.
        QRcodeLabel square;
        square.resize(300, 300);
        square.GenerateQRcode(QStringLiteral("hi"));
        QImage image = square.pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(image.size(), QSize(300, 300));
        QVERIFY(near(image.pixel(6 * 12 + 1, 30), Qt::black, 0));
        QVERIFY(near(image.pixel(7 * 12 + 1, 30), Qt::white, 0));
        QVERIFY(near(image.pixel(30, 12 + 1), Qt::white, 0));

        QRcodeLabel wide;
        wide.resize(310, 300);
        wide.GenerateQRcode(QStringLiteral("hi"));
        image = wide.pixmap(Qt::ReturnByValue).toImage();
        // Modules are 12.4 wide: module 6 covers x 74.4 to 86.8.
        QVERIFY(near(image.pixel(85, 30), Qt::black, 0));
        QVERIFY(near(image.pixel(88, 30), Qt::white, 0));
    }

    void qrFailureKeepsThePicture()
    {
        QRcodeLabel label;
        label.resize(100, 100);
        label.GenerateQRcode(QStringLiteral("first"));
        const qint64 picture = label.pixmap(Qt::ReturnByValue).cacheKey();
        const QString tooLong(3000, QLatin1Char('x'));
        LogCapture log;
        label.GenerateQRcode(tooLong);
        QCOMPARE(label.pixmap(Qt::ReturnByValue).cacheKey(), picture);
        QCOMPARE(log.lines.size(), 1);
        QVERIFY(log.lines.first().startsWith(QStringLiteral("GenerateQRcode error:")));
        QVERIFY(log.lines.first().contains(tooLong));
    }
};

QObject* createCodesTest()
{
    return new CodesTest;
}

#include "tst_codes.moc"
