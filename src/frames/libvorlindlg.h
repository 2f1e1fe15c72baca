#pragma once

#include "vorlinglobal.h"

#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;

// The application's standard modal message boxes, in the library's look and with its fixed
// Chinese button texts. The information, warning and progress boxes can be closed from
// elsewhere (a timer, a signal handler running inside their modal loop) while they are open.
class VORLIN_EXPORT libVorlinDlg
{
    Q_GADGET
public:
    // The answer of the three-button question.
    enum ButtonRole { RoleNo = 0, RoleYes = 1, RoleCancel = 2 };
    Q_ENUM(ButtonRole)

    // Sets the text of the file at path (a resource path works) as the widget's style sheet.
    static void SetStyle(QWidget* widget, QString const& path);

    // True only if "确 认" was clicked.
    static bool QuestionDlg(QWidget* parent, QString const& title, QString const& text);
    static ButtonRole Question_3BtnDlg(QWidget* parent, QString const& title, QString const& text);
    static void InformationDlg(QWidget* parent, QString const& title, QString const& text);
    static void WarningDlg(QWidget* parent, QString const& title, QString const& text);
    // The busy spinner; returns when it is closed. At most one is open per process.
    static void ProgressDlg(QWidget* parent);

    static void CloseInformationDlg();
    static void CloseWarningDlg();
    static void CloseProgressDlg();
};
