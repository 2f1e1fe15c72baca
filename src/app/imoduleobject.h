#pragma once

#include "stpropertydata.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;

// The interface every module plug-in's root object implements; ModuleObject is the
// ready-made implementation module authors derive from.
class VORLIN_EXPORT IModuleObject
{
public:
    virtual ~IModuleObject();

    virtual QString ModuleClassName() = 0;
    virtual int ModulePriority() = 0;
    virtual QString ModuleVersion() = 0;
    virtual QString FixedVersion() = 0;
    virtual QString ModuleDescription() = 0;
    virtual ST_PropertyData GetPropertyData() = 0;
    virtual bool isMainShowWindow() = 0;

    // Named windows the module offers to the program, by name.
    virtual void addSubmoduleWidget(QString name, QWidget* widget) = 0;
    virtual QMap<QString, QWidget*>* getSubmoduleWidget() = 0;
};

#define IModuleObject_iid "org.vorlin.IModuleObject/1.0"
Q_DECLARE_INTERFACE(IModuleObject, IModuleObject_iid)
Q_DECLARE_METATYPE(IModuleObject*)
