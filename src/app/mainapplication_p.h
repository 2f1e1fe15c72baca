#pragma once

#include "mainapplication.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPointer>

class QSound;
class QTextToSpeech;
class QTranslator;

class MainApplicationImpl
{
public:
    // Guarded so that a window deleted elsewhere is never deleted twice. Held as a QObject and
    // cast on use: while the window is being destroyed it is no longer an IMainWindow.
    QPointer<QObject> mainWindow;
    QMap<QString, QWidget*> pages;
    QMap<MainApplication::language_role, QList<QTranslator*>> translators;
    QTextToSpeech* speech = nullptr;
    QSound* sound = nullptr;
    QDialog* loginDialog = nullptr;
    MainApplication::language_role currentLanguage = MainApplication::enLanguageLast;
};
