#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QComboBox>

// A combo box styled through style sheets: its read-only line edit shows a placeholder and
// opens or closes the list when clicked, and its rows show their full text as tool tip.
// The mouse wheel never changes the selection.
class VORLIN_EXPORT BaseStyleSheetCombobox : public QComboBox
{
    Q_OBJECT
public:
    explicit BaseStyleSheetCombobox(QWidget* parent = nullptr);

    // Gives the box a read-only line edit showing the text and clears the selection.
    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return m_placeholder; }

    bool isPopupShown() const { return m_popupShown; }

    // Reports every attempt to open the list, also when it stays shut for lack of items.
    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    void sigShowPopUp();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void mirrorCurrentText(const QString& text);

    QString m_placeholder;
    bool m_popupShown = false;
};
