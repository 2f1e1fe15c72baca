#include "libvorlindlg.h"

#include "waitingdialog.h"

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace {

const QString styleSheetPath = QStringLiteral(":/Style/libVorlin.qss");

// The boxes open at the moment, for the Close... functions. Only the newest of two nested
// information (or warning) boxes is published, and ending it clears the pointer although
// the older box is still open; kept that way.
QPointer<QMessageBox> openInformation;
QPointer<QMessageBox> openWarning;
QPointer<WaitingDialog> openProgress;

struct ButtonSpec
{
    const char* text;
    QMessageBox::ButtonRole role;
    QSize size;
};

QMessageBox* createBox(QWidget* parent, QMessageBox::Icon icon, std::initializer_list<ButtonSpec> buttons)
{
    auto* box = new QMessageBox(parent);
    libVorlinDlg::SetStyle(box, styleSheetPath);
    box->setIcon(icon);
    for (const ButtonSpec& button : buttons)
        box->addButton(QString::fromUtf8(button.text), button.role)->setFixedSize(button.size);
    return box;
}

// Runs the box modally and returns the clicked button's text (empty if none), destroying
// the box afterwards unless its parent took it along already.
QString runBox(QMessageBox* created, const QString& title, const QString& text, QPointer<QMessageBox>* published)
{
    QPointer<QMessageBox> box = created;
    box->setWindowTitle(title);
    box->setText(text);
    if (published)
        *published = box;
    box->exec();
    if (published)
        *published = nullptr;
    QString clicked;
    if (box) {
        if (QAbstractButton* button = box->clickedButton())
            clicked = button->text();
        delete box.data();
    }
    return clicked;
}

const QSize wideButton(70, 30);
const QSize narrowButton(50, 30);

} // namespace

void libVorlinDlg::SetStyle(QWidget* widget, QString const& path)
{
    if (!widget || path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    widget->setStyleSheet(QString::fromUtf8(file.readAll()));
}

bool libVorlinDlg::QuestionDlg(QWidget* parent, QString const& title, QString const& text)
{
    QMessageBox* box = createBox(parent, QMessageBox::Question,
                                 {{"确 认", QMessageBox::YesRole, wideButton}, {"取 消", QMessageBox::NoRole, wideButton}});
    return runBox(box, title, text, nullptr) == QStringLiteral("确 认");
}

libVorlinDlg::ButtonRole libVorlinDlg::Question_3BtnDlg(QWidget* parent, QString const& title, QString const& text)
{
    // "取消" deliberately shares the no role with "否"; only the result tells them apart.
    QMessageBox* box = createBox(parent, QMessageBox::Question,
                                 {{"是", QMessageBox::YesRole, narrowButton},
                                  {"否", QMessageBox::NoRole, narrowButton},
                                  {"取消", QMessageBox::NoRole, narrowButton}});
    // With two no-role buttons the box finds no escape button and would refuse to close;
    // closing it counts as "取消".
    box->setEscapeButton(box->buttons().last());
    const QString clicked = runBox(box, title, text, nullptr);
    if (clicked == QStringLiteral("是"))
        return RoleYes;
    if (clicked == QStringLiteral("否"))
        return RoleNo;
    return RoleCancel;
}

void libVorlinDlg::InformationDlg(QWidget* parent, QString const& title, QString const& text)
{
    runBox(createBox(parent, QMessageBox::Information, {{"确 认", QMessageBox::YesRole, wideButton}}), title, text,
           &openInformation);
}

void libVorlinDlg::WarningDlg(QWidget* parent, QString const& title, QString const& text)
{
    runBox(createBox(parent, QMessageBox::Warning, {{"确 认", QMessageBox::YesRole, wideButton}}), title, text,
           &openWarning);
}

void libVorlinDlg::ProgressDlg(QWidget* parent)
{
    if (openProgress)
        return;
    QPointer<WaitingDialog> dialog = new WaitingDialog(parent, Qt::darkMagenta);
    SetStyle(dialog, styleSheetPath);
    openProgress = dialog;
    dialog->startAnimation();
    dialog->exec();
    openProgress = nullptr;
    if (dialog) {
        dialog->stopAnimation();
        delete dialog.data();
    }
}

void libVorlinDlg::CloseInformationDlg()
{
    if (openInformation)
        openInformation->close();
}

void libVorlinDlg::CloseWarningDlg()
{
    if (openWarning)
        openWarning->close();
}

void libVorlinDlg::CloseProgressDlg()
{
    if (openProgress)
        openProgress->close();
}
