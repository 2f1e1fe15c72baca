#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QFrame>

class DotLabel;
class IpInputEdit;
class QHBoxLayout;

// An IPv4 address editor: four number fields separated by painted dots inside one rounded
// frame. Typing a full octet or a dot moves on to the next field, Backspace in an (almost)
// empty field moves back. The editor has no signals; its owner reads text().
class VORLIN_EXPORT IPAddressEdit : public QFrame
{
    Q_OBJECT
public:
    explicit IPAddressEdit(QWidget* parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());

    // The dotted text of the four fields, empty parts included ("192.168..").
    QString text() const { return m_ip; }

    // Gives the keyboard focus to the first field.
    using QFrame::setFocus;
    void setFocus();

    void setFontSize(int pixelSize);
    void setBkgColor(const QColor& color);
    void setBorderColor(const QColor& color);
    void setBorderRadius(int radius);
    QColor bkgColor() const { return m_bkgColor; }
    QColor borderColor() const { return m_borderColor; }
    int borderRadius() const { return m_borderRadius; }

public Q_SLOTS:
    // Accepts only a complete dotted-quad address; anything else is ignored.
    void setText(const QString& strIP);
    void clear();

protected Q_SLOTS:
    void textChanged(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void initUI();
    void applyFont(const QFont& font);

    QString m_ip;
    QColor m_bkgColor = Qt::white;
    QColor m_borderColor = Qt::black;
    int m_borderRadius = 6;
    QHBoxLayout* m_layout = nullptr;
    DotLabel* m_dots[3] = {};
    IpInputEdit* m_fields[4] = {};
};
