#include "framestest.h"

#include "libvorlindlg.h"
#include "waitingdialog.h"

#include <QtTest/QTest>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using namespace framestest;

class DialogsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void questionAnswers_data()
    {
        QTest::addColumn<QString>("click");
        QTest::addColumn<bool>("expected");
        QTest::newRow("confirm") << QStringLiteral("确 认") << true;
        QTest::newRow("cancel") << QStringLiteral("取 消") << false;
        QTest::newRow("window closed") << QString() << false;
    }

    void questionAnswers()
    {
        QFETCH(QString, click);
        QFETCH(bool, expected);
        QStringList texts;
        QList<QSize> sizes;
        QString title;
        whenModal([&](QWidget* box) {
            title = box->windowTitle();
            for (QPushButton* button : box->findChildren<QPushButton*>()) {
                texts << button->text();
                sizes << button->size();
            }
            if (click.isEmpty())
                box->close();
            else
                clickButton(box, click);
        });
        QCOMPARE(libVorlinDlg::QuestionDlg(nullptr, QStringLiteral("Title"), QStringLiteral("Sure?")), expected);
        QCOMPARE(title, QStringLiteral("Title"));
        QCOMPARE(texts, (QStringList{QStringLiteral("确 认"), QStringLiteral("取 消")}));
        QCOMPARE(sizes, (QList<QSize>{QSize(70, 30), QSize(70, 30)}));
    }

    void threeButtonAnswers_data()
    {
        QTest::addColumn<QString>("click");
        QTest::addColumn<int>("expected");
        QTest::newRow("yes") << QStringLiteral("是") << int(libVorlinDlg::RoleYes);
        QTest::newRow("no") << QStringLiteral("否") << int(libVorlinDlg::RoleNo);
        QTest::newRow("cancel") << QStringLiteral("取消") << int(libVorlinDlg::RoleCancel);
        QTest::newRow("window closed") << QString() << int(libVorlinDlg::RoleCancel);
    }

    void threeButtonAnswers()
    {
        QFETCH(QString, click);
        QFETCH(int, expected);
        QList<QMessageBox::ButtonRole> roles;
        whenModal([&](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            for (QAbstractButton* button : box->buttons()) {
                roles << box->buttonRole(button);
                QCOMPARE(button->size(), QSize(50, 30));
            }
            if (click.isEmpty()) {
                box->close();
                // A box that refuses to close is answered "是", so the comparison fails
                // instead of the test hanging.
                if (box->isVisible())
                    clickButton(box, QStringLiteral("是"));
            } else {
                clickButton(box, click);
            }
        });
        QCOMPARE(int(libVorlinDlg::Question_3BtnDlg(nullptr, QStringLiteral("T"), QStringLiteral("Save?"))), expected);
        QCOMPARE(roles, (QList<QMessageBox::ButtonRole>{QMessageBox::YesRole, QMessageBox::NoRole, QMessageBox::NoRole}));
    }

    void informationAndWarningCloseFromOutside()
    {
        for (bool warning : {false, true}) {
            QString style;
            whenModal([&](QWidget* box) {
                style = box->styleSheet();
                QCOMPARE(qobject_cast<QMessageBox*>(box)->icon(), warning ? QMessageBox::Warning : QMessageBox::Information);
                // The other kind's close reaches nothing.
                warning ? libVorlinDlg::CloseInformationDlg() : libVorlinDlg::CloseWarningDlg();
                QTimer::singleShot(20, [warning] {
                    warning ? libVorlinDlg::CloseWarningDlg() : libVorlinDlg::CloseInformationDlg();
                });
            });
            if (warning)
                libVorlinDlg::WarningDlg(nullptr, QStringLiteral("W"), QStringLiteral("Low battery"));
            else
                libVorlinDlg::InformationDlg(nullptr, QStringLiteral("I"), QStringLiteral("Landed"));
            QVERIFY(style.contains(QLatin1String("QPushButton")));
            QVERIFY(!QApplication::activeModalWidget());
        }
        libVorlinDlg::CloseInformationDlg(); // nothing open: harmless
    }

    void nestedInformationBoxesPublishOnlyTheNewest()
    {
        QWidget* older = nullptr;
        bool olderStillOpen = false;
        whenModal([&](QWidget* first) {
            older = first;
            whenModal([&](QWidget* second) {
                // Closing reaches the newer box only.
                libVorlinDlg::CloseInformationDlg();
                QVERIFY(second);
            });
            libVorlinDlg::InformationDlg(nullptr, QStringLiteral("2"), QStringLiteral("newer"));
            // The newer box's end cleared the pointer: the older one can no longer be closed
            // from outside.
            libVorlinDlg::CloseInformationDlg();
            QApplication::processEvents();
            olderStillOpen = older->isVisible();
            clickButton(older, QStringLiteral("确 认"));
        });
        libVorlinDlg::InformationDlg(nullptr, QStringLiteral("1"), QStringLiteral("older"));
        QVERIFY(olderStillOpen);
    }

    void progressDialogIsSingleAndClosable()
    {
        int spinners = -1;
        bool animating = false;
        whenModal([&](QWidget* modal) {
            auto* spinner = qobject_cast<WaitingDialog*>(modal);
            QVERIFY(spinner);
            animating = spinner->isRunning();
            QCOMPARE(spinner->size(), QSize(200, 200));
            // A second progress dialog returns at once without showing anything.
            libVorlinDlg::ProgressDlg(nullptr);
            spinners = 0;
            for (QWidget* w : QApplication::topLevelWidgets())
                spinners += qobject_cast<WaitingDialog*>(w) && w->isVisible();
            libVorlinDlg::CloseProgressDlg();
        });
        libVorlinDlg::ProgressDlg(nullptr);
        QCOMPARE(spinners, 1);
        QVERIFY(animating);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void spinnerAdvancesAndPaintsItsBiggestDot()
    {
        WaitingDialog spinner(nullptr, Qt::darkMagenta);
        spinner.show();
        spinner.startAnimation();
        QTRY_COMPARE(spinner.step(), 2);
        spinner.stopAnimation();
        const int stopped = spinner.step();
        QTest::qWait(400);
        QCOMPARE(spinner.step(), stopped);

        // Step 0 puts the biggest dot (40 units) at the top of the ring, just right of
        // the centre line.
        WaitingDialog fresh(nullptr, Qt::darkMagenta);
        fresh.resize(200, 200);
        const QImage image = fresh.grab().toImage();
        // Logical (20, -80) maps to (113, 47) in the 200 x 200 dialog.
        QCOMPARE(image.pixelColor(113, 47), QColor(Qt::darkMagenta));
        QCOMPARE(image.pixelColor(100, 100).alpha(), 0);
    }

    void setStyleIgnoresWhatItCannotRead()
    {
        QWidget widget;
        widget.setStyleSheet(QStringLiteral("QWidget { color: red; }"));
        libVorlinDlg::SetStyle(&widget, QStringLiteral(":/no/such.qss"));
        libVorlinDlg::SetStyle(nullptr, QStringLiteral(":/Style/libVorlin.qss"));
        QCOMPARE(widget.styleSheet(), QStringLiteral("QWidget { color: red; }"));
        libVorlinDlg::SetStyle(&widget, QStringLiteral(":/Style/libVorlin.qss"));
        QVERIFY(widget.styleSheet().contains(QLatin1String("checkbox_checked.png")));
    }
};

int runDialogTests(int argc, char** argv)
{
    DialogsTest dialogs;
    return QTest::qExec(&dialogs, argc, argv);
}

#include "tst_dialogs.moc"
