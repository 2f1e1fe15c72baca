#include "imoduleobject.h"

IModuleObject::~IModuleObject() = default;
