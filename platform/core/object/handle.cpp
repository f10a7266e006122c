#include "platform/core/object/handle.h"

#include "platform/core/object/errors.h"

void gk_ThrowBadPointer() { throw gkBadPointer(); }
