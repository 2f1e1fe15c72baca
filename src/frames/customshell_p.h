#pragma once

#include <QtCore/QPoint>
#include <QtCore/QString>
#include <QtGui/QColor>

class QEvent;
class QFrame;
class QHBoxLayout;
class QLabel;
class QMouseEvent;
class QObject;
class QSpacerItem;
class QToolButton;
class QVBoxLayout;
class QWidget;

namespace vorlin {

// The form and behaviour the dialog shell and the widget shell share: a title row (logo,
// title, menu and close buttons) above a container frame, a rounded translucent body with a
// soft shadow, optional skin images, dragging from anywhere and an optional resize band.
class CustomShell
{
public:
    CustomShell(QWidget* shell, const QString& defaultObjectName);

    // The form, with these object names.
    QVBoxLayout* verticalLayout;
    QWidget* titleWidget;
    QHBoxLayout* horizontalLayout;
    QLabel* logoLabel;
    QLabel* titleLabel;
    QSpacerItem* horizontalSpacer;
    QToolButton* pBtnMenu;
    QToolButton* pBtnClose;
    QFrame* ContainerFrame;

    QString contentSkin;
    QString titleSkin;
    bool moving = false;
    QPoint grabPoint;
    int borderWidth = 1;
    QColor titleBackground = Qt::transparent;
    QColor background = Qt::transparent;

    void setDialogTitle(const QString& title, const QString& logoPath);
    void updateBackgroundSkin(const QString& titleSkinPath, const QString& contentSkinPath);
    void retranslate();
    void paintBody();
    // Paints the title row and the container under the skins or outlines; never consumes.
    void paintArea(QObject* watched, QEvent* event);
    void watchAreas(bool watch);
    int hitTest(const QPoint& pos) const;
    void mousePress(QMouseEvent* event);
    void mouseMove(QMouseEvent* event);
    void mouseRelease(QMouseEvent* event);

private:
    void setupForm();

    QWidget* m_shell;
};

// The translation context of the shells' texts.
constexpr const char kShellContext[] = "BaseCustomDialog";

} // namespace vorlin
